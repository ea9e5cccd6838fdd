// Extremes, compared with a plain loop.

#include "qorvex/vector/extremes.h"

#include <cstdint>
#include <functional>
#include <limits>

#include "support/hard_vectors.h"
#include "support/kernel_lengths.h"
#include "support/test.h"

namespace qorvex {
namespace {

template <class T>
struct Extreme {
  T value;
  std::uint32_t index = 0;
  bool unique = true;
};

template <class T, class Better>
Extreme<T> LoopExtreme(VectorView<T> vector, Better better) {
  Extreme<T> best{vector[0]};
  for (std::size_t i = 1; i < vector.size(); ++i) {
    if (better(vector[i], best.value)) {
      best = {vector[i], static_cast<std::uint32_t>(i)};
    } else if (vector[i] == best.value) {
      best.unique = false;
    }
  }
  return best;
}

template <class T>
bool Same(const Extreme<T>& x, const Extreme<T>& y) {
  if constexpr (FloatElement<T>) {
    if (!testing::SameBits(x.value, y.value)) return false;
  } else {
    if (x.value != y.value) return false;
  }
  return x.index == y.index && x.unique == y.unique;
}

template <class T>
void ExpectExtremesOfALoop(VectorView<T> vector, int kind) {
  SCOPED_TRACE("n = " + std::to_string(vector.size()) + ", kind " + std::to_string(kind));
  const Extreme<T> low = LoopExtreme(vector, std::less());
  const Extreme<T> high = LoopExtreme(vector, std::greater());
  Extreme<T> min{};
  Extreme<T> max{};
  MinMaxVector(vector, min.value, max.value, min.index, max.index, min.unique, max.unique);
  ASSERT_TRUE(Same(min, low));
  ASSERT_TRUE(Same(max, high));
  min.value = MinVector(vector);
  max.value = MaxVector(vector);
  ASSERT_TRUE(Same(min, low));
  ASSERT_TRUE(Same(max, high));
}

// Elements of few values, among them neighbours, the limits and, for floating elements, zeros of
// both signs, infinities and NaN.
template <class T>
T FewValues(testing::Engine& engine, int kind) {
  using Limits = std::numeric_limits<T>;
  const auto choice = engine() % 8;
  if constexpr (FloatElement<T>) {
    const T sign = engine() % 2 == 0 ? T(1) : T(-1);
    switch (kind) {
      case 0:  // differences in the last bit
        return sign * (T(1) + static_cast<T>(choice) * Limits::epsilon());
      case 1:
        return choice == 0 ? sign * Limits::denorm_min() : sign * T(0);
      case 2:  // whole blocks of NaN
        return engine() % 600 == 0 ? sign * Limits::infinity() : Limits::quiet_NaN();
      case 3:
        return choice == 0 ? Limits::signaling_NaN() : T(1'000 + engine() % 500);
      case 4:
        return choice < 4 ? sign * Limits::infinity() : Limits::max();
      default:  // now and then the largest: zeros of both signs, in different blocks
        return engine() % 700 == 0 ? sign * T(0) : -static_cast<T>(engine());
    }
  } else {
    const T nearest = static_cast<T>(choice % 2);
    return kind % 2 == 0 ? static_cast<T>(Limits::min() + nearest)
                         : static_cast<T>(Limits::max() - nearest);
  }
}

template <class T>
class ExtremeKernels : public ::testing::Test {};
TYPED_TEST_SUITE(ExtremeKernels, AllTypes);

TYPED_TEST(ExtremeKernels, FindWhatALoopFinds) {
  using T = TypeParam;
  testing::Engine engine(3);
  for (const std::size_t n : testing::KernelLengths()) {
    for (int kind = 0; kind < 8; ++kind) {
      auto vector = testing::RandomVector<T>(engine, n + 1);
      for (T& x : vector) {
        if (kind < 6) x = FewValues<T>(engine, kind);
        if (kind == 6) x = T(x / T(2));  // a single extreme of either kind
      }
      if constexpr (FloatElement<T>) {
        // Behind a single infinity, blocks of NaN.
        if (kind == 2 && n % 2 == 0) {
          std::ranges::fill(vector, std::numeric_limits<T>::quiet_NaN());
          vector[1] = std::numeric_limits<T>::infinity();
        }
      }
      if (kind == 6) {
        vector[engine() % n] = std::numeric_limits<T>::lowest();
        vector[engine() % n] = std::numeric_limits<T>::max();
      }
      ExpectExtremesOfALoop<T>(std::span<const T>(vector).subspan(engine() % 2, n), kind);
      if (this->HasFatalFailure()) return;
    }
    if constexpr (FloatElement<T>) {
      testing::ForEachHardKind([&](testing::Hard kind) {
        const auto vector = testing::HardVector<T>(engine, n, kind);
        ExpectExtremesOfALoop<T>(vector, 100 + static_cast<int>(kind));
      });
      if (this->HasFatalFailure()) return;
    }
  }
}

TYPED_TEST(ExtremeKernels, FindThemInAscendingAndDescendingOrder) {
  using T = TypeParam;
  auto vector = TQorVector<T>::WithLength(9'001);
  for (const bool ascending : {true, false}) {
    for (std::size_t i = 0; i < vector.size(); ++i) {
      vector[i] = static_cast<T>((ascending ? i : vector.size() - i) / (8 * sizeof(T)));
    }
    ExpectExtremesOfALoop<T>(vector, ascending ? 0 : 1);
  }
}

}  // namespace
}  // namespace qorvex
