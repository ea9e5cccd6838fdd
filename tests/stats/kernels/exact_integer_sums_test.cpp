// Exact sums of integers, of which several are added at a time, compared with adding each.

#include <cstdint>
#include <limits>

#include "qorvex/stats/exact/exact_sum.h"
#include "support/kernel_lengths.h"
#include "support/random_vectors.h"
#include "support/test.h"

namespace qorvex {
namespace {

template <class T>
class ExactIntegerSums : public ::testing::Test {};
using IntegerTypes = ::testing::Types<std::int64_t, std::uint32_t, std::int32_t, std::uint16_t,
                                      std::int16_t, std::uint8_t, std::int8_t>;
TYPED_TEST_SUITE(ExactIntegerSums, IntegerTypes);

TYPED_TEST(ExactIntegerSums, LeaveNothingWhenEachIsTakenBack) {
  using T = TypeParam;
  using Limits = std::numeric_limits<T>;
  testing::Engine engine(7);
  for (const std::size_t n : testing::KernelLengths()) {
    for (const T most : {T(0), Limits::min(), Limits::max()}) {
      auto vector = testing::RandomVector<T>(engine, n);
      for (T& x : vector) {
        if (most != 0 && engine() % 16 != 0) x = most;
      }
      ExactSum each;
      for (const T x : vector) each.Add(static_cast<Extended>(x));
      ExactSum rest;
      rest.Add(vector);
      rest.Remove(each);
      ASSERT_EQ(rest.Round(), 0) << "n = " << n;
    }
  }
}

}  // namespace
}  // namespace qorvex
