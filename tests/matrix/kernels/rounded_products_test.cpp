#include "qorvex/matrix/detail/rounded_products.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "qorvex/vector/building.h"
#include "support/hard_vectors.h"
#include "support/test.h"

namespace qorvex {
namespace {

using testing::Engine;
using testing::Hard;
using testing::HardVector;
using testing::SameBits;

template <class T>
T PlainSum(T target, T source, T factor) {
  return static_cast<T>(static_cast<Extended>(source) * factor + target);
}

template <class T>
TQorVector<T> PlainSums(const TQorVector<T>& target, const TQorVector<T>& source, T factor) {
  auto sums = CopyVector(target);
  for (std::size_t i = 0; i < sums.size(); ++i) sums[i] = PlainSum(target[i], source[i], factor);
  return sums;
}

template <class T>
void ExpectPlainSums(const TQorVector<T>& target, const TQorVector<T>& source, T factor) {
  auto sums = CopyVector(target);
  QorvexMatrix::detail::AddRoundedProducts(sums.data(), source.data(), sums.size(), factor);
  EXPECT_TRUE(SameBits(sums, PlainSums(target, source, factor)));
}

template <class T>
class RoundedProducts : public ::testing::Test {};
using Types = ::testing::Types<double, float>;
TYPED_TEST_SUITE(RoundedProducts, Types);

TYPED_TEST(RoundedProducts, AreThoseOfThePlainLoopForEveryLength) {
  using T = TypeParam;
  Engine engine(20261122);
  for (std::size_t n = QorvexMatrix::detail::kLeastRoundedProducts; n <= 10'007;
       n += n < 300 ? 1 : 9'707 / 3) {
    testing::ForEachHardKind([&](Hard kind) {
      SCOPED_TRACE(::testing::Message() << n << " elements, kind " << static_cast<int>(kind));
      const auto other = static_cast<Hard>(engine() % (static_cast<unsigned>(Hard::kLast) + 1));
      const auto target = HardVector<T>(engine, n, kind);
      const auto source = HardVector<T>(engine, n, other);
      ExpectPlainSums(target, source, HardVector<T>(engine, 1, kind)[0]);
      ExpectPlainSums(source, target, HardVector<T>(engine, 1, Hard::kSigned)[0]);
      // Sums that cancel or nearly so.
      const T factor = HardVector<T>(engine, 1, Hard::kTies)[0];
      auto opposite = CopyVector(source);
      for (T& x : opposite) x = static_cast<T>(x * -factor * (engine() % 4 == 0 ? 1.5L : 1.0L));
      ExpectPlainSums(opposite, source, factor);
    });
    if (this->HasFailure()) return;
  }
}

// The products are about half the last place of the sum, less or more by up to 2^-104 of it. Some
// sums are subnormal.
TYPED_TEST(RoundedProducts, AreThoseOfThePlainLoopNearMidpoints) {
  using T = TypeParam;
  constexpr T epsilon = std::numeric_limits<T>::epsilon();
  constexpr int digits = std::numeric_limits<T>::digits;
  constexpr int half_of_least = std::numeric_limits<T>::min_exponent - digits - 1;
  Engine engine(7);
  // A distance from one with a random number of bits.
  const auto distance = [&] {
    const auto bits = static_cast<int>(engine() % static_cast<unsigned>(digits - 2));
    return std::ldexp(static_cast<T>(engine() >> 40), bits - 24) * epsilon;
  };
  int rounded_differently = 0;
  for (int repetition = 0; repetition < 4'000; ++repetition) {
    const int exponent = static_cast<int>(engine() % 60) - 30;
    const T x = distance();
    const bool subnormal = repetition % 4 == 0;
    const T factor = (engine() % 2 == 0 ? 1 - x : (1 + x) / (1 + distance())) *
                     std::ldexp(T(1), subnormal ? half_of_least - half_of_least / 2 : 0);
    auto target = TQorVector<T>::WithLength(40);
    auto source = CopyVector(target);
    for (std::size_t i = 0; i < target.size(); ++i) {
      const T power = std::ldexp(T(1), exponent - static_cast<int>(engine() % 3));
      const T sum = engine() % 4 == 0 ? 1 : 1 + std::floor(distance() / epsilon) * epsilon;
      target[i] = (engine() % 2 == 0 ? -sum : sum) * power;
      source[i] = (engine() % 2 == 0 ? -1 : 1) * (1 + x) * power * epsilon / 2;
      if (subnormal) {
        target[i] = static_cast<T>(engine() % 2'001) * std::numeric_limits<T>::denorm_min();
        source[i] = std::ldexp(engine() % 2 == 0 ? -1 - x : 1 + x, half_of_least / 2);
      } else if (engine() % 8 == 0) {
        target[i] = static_cast<T>(-source[i] * (1 + distance()));
      }
      rounded_differently +=
          std::fma(source[i], factor, target[i]) != PlainSum(target[i], source[i], factor);
    }
    ExpectPlainSums(target, source, factor);
    if (this->HasFailure()) return;
  }
  EXPECT_GT(rounded_differently, 50) << "the data are too easy";
}

TYPED_TEST(RoundedProducts, SpecialValuesAndTheEndsOfTheRange) {
  using T = TypeParam;
  using Limits = std::numeric_limits<T>;
  const T largest = Limits::max();
  const T tiny = Limits::denorm_min();
  const T values[] = {0,
                      1,
                      1 + Limits::epsilon(),
                      T(1) / 3,
                      largest,
                      largest / 2,
                      std::sqrt(largest),
                      Limits::min(),
                      tiny,
                      3 * tiny,
                      Limits::min() - tiny,
                      std::sqrt(Limits::min()),
                      std::sqrt(tiny),
                      Limits::min() / Limits::epsilon(),
                      Limits::infinity(),
                      Limits::quiet_NaN()};
  TQorVector<T> source;
  TQorVector<T> target;
  for (const T x : values) {
    for (const T y : values) {
      for (const T sign : {T(1), T(-1)}) {
        source.Append(x);
        target.Append(sign * y);
      }
    }
  }
  for (const T factor : values) {
    for (const T sign : {T(1), T(-1)}) {
      ExpectPlainSums(target, source, sign * factor);
      auto same = CopyVector(target);
      QorvexMatrix::detail::AddRoundedProducts(same.data(), same.data(), same.size(), factor);
      EXPECT_TRUE(SameBits(same, PlainSums(target, target, factor)));
    }
  }
}

}  // namespace
}  // namespace qorvex
