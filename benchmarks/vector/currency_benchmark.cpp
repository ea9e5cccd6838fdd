// Vectors of amounts, compared with the plain loop and with the routines for the stored integers.

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "qorvex/base/currency_arithmetic.h"
#include "qorvex/vector/QorvexFinVector.h"
#include "qorvex/vector/QorvexVector.h"
#include "support/compare.h"

namespace qorvex::benchmarks {
namespace {

template <class T>
TQorVector<T> Amounts(std::size_t n, std::size_t seed) {
  std::mt19937_64 engine(seed);
  auto amounts = TQorVector<T>::ForOverwrite(n);
  for (T& x : amounts) x = T(static_cast<std::int32_t>(engine()) / 8);
  return amounts;
}

// Registers work(vector), on a copy if work changes the vector, which is made within the measured
// time, but without allocation. The vectors differ from call to call, so that the branch predictor
// cannot learn them.
template <class T, class Work>
void Register(const std::string& routine, const std::string& type, const std::string& who,
              Work work) {
  for (const std::size_t n : {1'000U, 100'000U}) {
    const std::string name = routine + "/" + type + "/" + who + "/" + std::to_string(n);
    benchmark::RegisterBenchmark(name.c_str(), [n, work](benchmark::State& state) {
      std::vector<TQorVector<T>> samples;
      for (std::size_t seed = 0; seed < 16'000 / n + 2; ++seed)
        samples.push_back(Amounts<T>(n, seed));
      auto scratch = TQorVector<T>::WithLength(n);
      std::size_t next = 0;
      for (auto _ : state) {
        const TQorVector<T>& amounts = samples[next];
        next = (next + 1) % samples.size();
        if constexpr (std::invocable<Work, const TQorVector<T>&>) {
          benchmark::DoNotOptimize(work(amounts));
        } else {
          std::ranges::copy(amounts, scratch.begin());
          work(scratch);
          benchmark::ClobberMemory();
        }
      }
      state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(n));
    });
  }
}

template <class T>
void RegisterCurrency(const std::string& type) {
  using Stored = typename T::StoredType;
  Register<T>("SumVector", type, "ours", [](const TQorVector<T>& v) { return SumVector(v); });
  Register<T>("SumVector", type, "loop", [](const TQorVector<T>& v) {
    T sum;
    for (const T x : v) sum += x;
    return sum;
  });
  Register<Stored>("SumVector", type, "integers",
                   [](const TQorVector<Stored>& v) { return SumVector(v); });

  Register<T>("QSortVector", type, "ours", [](TQorVector<T>& v) { QSortVector(v, true); });
  Register<T>("QSortVector", type, "std::sort", [](TQorVector<T>& v) { std::ranges::sort(v); });
  Register<Stored>("QSortVector", type, "integers",
                   [](TQorVector<Stored>& v) { QSortVector(v, true); });

  Register<T>("LinearTransformVector", type, "ours",
              [](TQorVector<T>& v) { LinearTransformVector(v, 1.19L, 0.5L); });
  // Rounds only twice, so that some amounts beside ties differ.
  Register<T>("LinearTransformVector", type, "loop", [](TQorVector<T>& v) {
    constexpr auto scale = static_cast<Extended>(T::kScale);
    for (T& x : v)
      x = T(
          static_cast<Stored>(std::llrint(1.19L * static_cast<Extended>(x.stored()) + scale / 2)));
  });

  // Every amount is a tie or an exact integer.
  Register<T>("LinearTransformVector, ties", type, "ours",
              [](TQorVector<T>& v) { LinearTransformVector(v, 1.5L, 0); });
  Register<T>("LinearTransformVector, ties", type, "loop", [](TQorVector<T>& v) {
    for (T& x : v)
      x = T(static_cast<Stored>(std::llrint(1.5L * static_cast<Extended>(x.stored()))));
  });

  Register<T>("Vector2FloatVector", type, "ours",
              [](const TQorVector<T>& v) { return Vector2FloatVector(v); });
  Register<T>("Vector2FloatVector", type, "loop", [](const TQorVector<T>& v) {
    auto floats = TQorFloatVector::ForOverwrite(v.size());
    for (std::size_t i = 0; i < v.size(); ++i)
      floats[i] = static_cast<Extended>(v[i].stored()) / static_cast<Extended>(T::kScale);
    return floats;
  });
}

// Without a range check, and only correct for amounts that are not negative.
template <class T>
TQorCurrVector CentsByLoop(const TQorVector<T>& v) {
  constexpr std::int64_t ratio = T::kScale / QorCurrency::kScale;
  auto cents = TQorCurrVector::ForOverwrite(v.size());
  for (std::size_t i = 0; i < v.size(); ++i) {
    const std::int64_t quotient = v[i].stored() / ratio;
    const std::int64_t rest = v[i].stored() % ratio;
    const bool up = rest > ratio / 2 || (rest == ratio / 2 && quotient % 2 != 0);
    cents[i] = QorCurrency(static_cast<std::int32_t>(quotient + (up ? 1 : 0)));
  }
  return cents;
}

template <class T>
void RegisterCents(const std::string& type) {
  Register<T>("Vector2QorCurrVector", type, "ours",
              [](const TQorVector<T>& v) { return Vector2QorCurrVector(v); });
  Register<T>("Vector2QorCurrVector", type, "loop", CentsByLoop<T>);
}

[[maybe_unused]] const bool registered = [] {
  Register<Currency>("CheckedSum", "Currency", "ours",
                     [](const TQorCurrencyVector& v) { return CheckedSum(v); });
  Register<Currency>("CheckedSum", "Currency", "SumVector",
                     [](const TQorCurrencyVector& v) { return SumVector(v); });
  Register<Currency>("Allocate", "Currency", "ours", [](TQorCurrencyVector& v) {
    for (Currency& x : v) x = abs(x);
    return Allocate(Currency::Units(1'000'000), v);
  });
  // Cumulative rounding in doubles: the sum is right, but the parts depend on their order.
  Register<Currency>("Allocate", "Currency", "doubles", [](TQorCurrencyVector& v) {
    double total = 0;
    for (const Currency x : v) total += std::fabs(static_cast<double>(x.stored()));
    double below = 0;
    std::int64_t given = 0;
    for (Currency& x : v) {
      below += std::fabs(static_cast<double>(x.stored()));
      const std::int64_t upto = std::llrint(1e10 * (below / total));
      x = Currency(upto - std::exchange(given, upto));
    }
  });
  Register<Currency>("MultiplyAmount", "Currency", "ours", [](TQorCurrencyVector& v) {
    for (Currency& x : v) x = MultiplyAmount(x, 119, 100, RoundingMode::kToNearestEven);
  });
  Register<Currency>("MultiplyAmount", "Currency", "LinearTransformVector",
                     [](TQorCurrencyVector& v) { LinearTransformVector(v, 1.19L, 0); });
  RegisterCurrency<QorCurrency>("QorCurrency");
  RegisterCurrency<Currency>("Currency");
  RegisterCurrency<QorLongCurrency>("QorLongCurrency");

  RegisterCents<Currency>("Currency");
  RegisterCents<QorLongCurrency>("QorLongCurrency");
  return true;
}();

}  // namespace
}  // namespace qorvex::benchmarks
