// Moving averages, compared with the sum of each window.

#include "qorvex/vector/moving_average.h"

#include "support/hard_vectors.h"
#include "support/test.h"

namespace qorvex {
namespace {

template <class T>
class MovingAverageKernels : public ::testing::Test {};
TYPED_TEST_SUITE(MovingAverageKernels, FloatTypes);

TYPED_TEST(MovingAverageKernels, SumEveryWindowByItself) {
  using T = TypeParam;
  testing::Engine engine(6);
  const auto check = [&](std::size_t n, std::uint32_t period, testing::Hard kind) {
    const auto vector = testing::HardVector<T>(engine, n, kind);
    auto expected = TQorVector<T>::WithLength(n);
    for (std::size_t start = 0; start + period <= n; ++start) {
      Extended sum = 0;
      for (std::size_t i = 0; i < period; ++i) sum += static_cast<Extended>(vector[start + i]);
      expected[start] = static_cast<T>(sum / static_cast<Extended>(period));
    }
    EXPECT_TRUE(testing::SameBits(MovingAverage(vector, period, 0), expected))
        << "n = " << n << ", period " << period << ", kind " << static_cast<int>(kind);
  };
  testing::ForEachHardKind([&](testing::Hard kind) {
    for (const std::uint32_t period : {1U, 2U, 3U, 4U, 5U, 8U, 23U, 24U, 25U, 64U}) {
      for (std::size_t n = period; n < period + 14; ++n) check(n, period, kind);
    }
  });
  for (std::size_t n = 1; n <= 300; ++n) {
    for (const std::uint32_t period : {3U, 7U, 30U}) check(n, period, testing::Hard::kMixed);
  }
  check(10'000, 64, testing::Hard::kWithInfinity);
}

}  // namespace
}  // namespace qorvex
