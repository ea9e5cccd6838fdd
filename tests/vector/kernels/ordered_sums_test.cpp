#include <algorithm>
#include <cmath>
#include <functional>

#include "qorvex/vector/QorvexVector.h"
#include "support/hard_vectors.h"
#include "support/test.h"

namespace qorvex {

using testing::Engine;
using testing::Hard;
using testing::SameBits;

template <class T>
struct OrderedSums : ::testing::Test {
  using Term = std::function<Extended(Extended x, Extended y)>;

  static Extended Loop(const TQorVector<T>& v, const TQorVector<T>& w, const Term& term) {
    Extended sum = term(v[0], w[0]);
    for (std::size_t i = 1; i < v.size(); ++i) sum += term(v[i], w[i]);
    return sum;
  }

  // Whether all routines give the bits of the plain loop.
  static ::testing::AssertionResult Agree(const TQorVector<T>& v, const TQorVector<T>& w) {
    const T mean = w[0];
    const Extended squares = Loop(v, v, [](Extended x, Extended y) { return x * y; });
    const auto square_of_difference = [](Extended x, Extended y) { return (x - y) * (x - y); };
    const struct {
      const char* name;
      Extended sum;
      Extended expected;
    } sums[] = {
        {"sum", SumVector(v), Loop(v, v, [](Extended x, Extended) { return x; })},
        {"squares", SumSqVector(v), squares},
        {"magnitude", VectorMagnitude(v), std::sqrt(squares)},
        {"products", DotProdVectors(v, w),
         0 + Loop(v, w, [](Extended x, Extended y) { return x * y; })},
        {"differences", SumSqDiffVectors(v, w), Loop(v, w, square_of_difference)},
        {"deviations", SumSqDiffVector(v, mean),
         Loop(v, v, [=](Extended x, Extended) { return square_of_difference(x, mean); })},
    };
    for (const auto& [name, sum, expected] : sums) {
      if (!SameBits(sum, expected)) {
        return ::testing::AssertionFailure()
               << name << " of " << v.size() << " is " << sum << " instead of " << expected;
      }
    }
    return ::testing::AssertionSuccess();
  }
};
TYPED_TEST_SUITE(OrderedSums, FloatTypes);

// One of two vectors has a large first element, so that its sum soon is much greater than the other
// elements.
TYPED_TEST(OrderedSums, AreThoseOfTheLoop) {
  using T = TypeParam;
  Engine engine(1901);
  const auto check = [&](std::size_t n) {
    testing::ForEachHardKind([&](Hard kind) {
      auto v = testing::HardVector<T>(engine, n, kind);
      auto w = testing::HardVector<T>(engine, n, engine() % 2 != 0 ? kind : Hard::kPositive);
      if (engine() % 2 != 0) {
        for (T& x : v) x = std::fabs(x);
      }
      if (engine() % 2 != 0) {
        const auto factor =
            std::ldexp(static_cast<T>(engine() % 2 != 0 ? -1 : 1), static_cast<int>(engine() % 16));
        v[0] = v[n / 2] * static_cast<T>(n) * factor;
      }
      ASSERT_TRUE(this->Agree(v, w)) << "kind " << static_cast<int>(kind);
    });
  };
  for (std::size_t n = 1; n <= 300; ++n) check(n);
  for (std::size_t n = 500; n < 660; n += 3) check(n);
  for (const std::size_t n : {2'047U, 2'048U, 2'175U, 2'500U, 5'000U, 10'000U, 20'001U}) check(n);
}

// Half units in the last place of a sum of either sign, now and then with something that makes the
// sum odd, or next to a tie.
TYPED_TEST(OrderedSums, RoundTiesToEven) {
  using T = TypeParam;
  Engine engine(1902);
  constexpr int kSumExponent = 20;
  const T half_unit = std::ldexp(T{1}, kSumExponent - 64);
  for (int i = 0; i < 100; ++i) {
    const auto odd = [&engine] { return static_cast<T>(2 * static_cast<int>(engine() % 8) - 7); };
    auto v = TQorVector<T>::WithLength(2'400);
    for (T& x : v) {
      const auto choice = engine() % 32;
      x = choice == 0   ? 2 * half_unit * odd()
          : choice == 1 ? half_unit / 4 * odd()
                        : half_unit * odd();
    }
    const T sign = i % 2 != 0 ? T{-1} : T{1};
    // Also near a power of two, which the sum crosses in half units.
    for (const T start : {std::ldexp(T{1.5}, kSumExponent),
                          std::ldexp(T{1}, kSumExponent) + static_cast<T>(i - 50) * half_unit}) {
      v[0] = sign * start;
      ASSERT_TRUE(this->Agree(v, v));
    }

    // Products that are ties.
    auto w = TQorVector<T>::WithLength(v.size());
    std::ranges::generate(w, [&] { return std::ldexp(odd(), kSumExponent / 2 - 32); });
    w[0] = v[0];
    for (std::size_t j = 1; j < v.size(); ++j) v[j] = std::ldexp(odd(), kSumExponent / 2 - 32);
    v[0] = T{1};
    ASSERT_TRUE(this->Agree(w, v));
  }
}

// Sums that reach a power of two or zero exactly, from below and from above, within a block.
TYPED_TEST(OrderedSums, CrossPowersOfTwoAndZero) {
  using T = TypeParam;
  for (std::size_t steps = 500; steps < 700; steps += 7) {
    for (const T limit : {T{0}, T{1}, T{1024}}) {
      for (const T step : {T{1} / 1024, T{-1} / 1024}) {
        for (const T sign : {T{1}, T{-1}}) {
          auto v = TQorVector<T>::WithLength(1200);
          std::ranges::fill(v, sign * step);
          v[0] = sign * (limit - static_cast<T>(steps) * step);
          ASSERT_TRUE(this->Agree(v, v)) << steps << ' ' << limit << ' ' << step;
          v[steps / 2] += std::ldexp(step, -54);
          ASSERT_TRUE(this->Agree(v, v)) << steps << ' ' << limit << ' ' << step;
        }
      }
    }
  }
}

TYPED_TEST(OrderedSums, KeepNegativeZero) {
  for (const std::size_t n : {1U, 2U, 300U, 600U, 3'000U}) {
    auto v = TQorVector<TypeParam>::WithLength(n);
    std::ranges::fill(v, -TypeParam{0});
    EXPECT_TRUE(SameBits(SumVector(v), -0.0L));
    EXPECT_TRUE(SameBits(SumSqVector(v), 0.0L));
  }
}

// Special values at every place of a block.
TYPED_TEST(OrderedSums, PropagateInfinitiesAndNaN) {
  using T = TypeParam;
  Engine engine(1903);
  for (std::size_t i = 0; i < 200; ++i) {
    auto v = testing::HardVector<T>(engine, 2'600, Hard::kPositive);
    const auto w = v;
    constexpr T kSpecial[] = {std::numeric_limits<T>::infinity(),
                              std::numeric_limits<T>::quiet_NaN(), std::numeric_limits<T>::max(),
                              -std::numeric_limits<T>::max()};
    v = CopyVector(v);
    v[2'300 + i] = kSpecial[i % 4];
    ASSERT_TRUE(this->Agree(v, w));
    ASSERT_TRUE(this->Agree(w, v));
  }
}

}  // namespace qorvex
