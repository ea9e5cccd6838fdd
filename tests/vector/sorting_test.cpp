#include "qorvex/vector/sorting.h"

#include "qorvex/vector/building.h"
#include "support/failing_allocation.h"
#include "support/random_vectors.h"
#include "support/test.h"

namespace qorvex {

using testing::Engine;
using testing::RandomVector;

template <class T>
class Sorting : public ::testing::Test {};
TYPED_TEST_SUITE(Sorting, AllTypes);

template <class T>
void ExpectSortsLikeTheLibrary(TQorVector<T> vector) {
  std::vector<T> expected(vector.begin(), vector.end());
  std::sort(expected.begin(), expected.end());
  QSortVector(vector, true);
  ASSERT_TRUE(std::ranges::equal(vector, expected));
  QSortVector(vector, false);
  ASSERT_TRUE(std::equal(vector.begin(), vector.end(), expected.rbegin()));
}

TYPED_TEST(Sorting, SortsRandomVectorsOfEveryLengthInBothOrders) {
  Engine engine(42);
  for (std::size_t n = 0; n < 60; ++n)
    ExpectSortsLikeTheLibrary(RandomVector<TypeParam>(engine, n));
  for (const std::size_t n : {399U, 400U, 2000U, 70'000U})
    ExpectSortsLikeTheLibrary(RandomVector<TypeParam>(engine, n));
}

// Inputs that are hard for a radix sort or for a naive pivot: keys that only differ in their lowest
// bits, few distinct keys, sorted runs, and outliers that hide the low bits.
TYPED_TEST(Sorting, SortsAdversarialVectors) {
  constexpr std::size_t n = 5000;
  Engine engine(43);
  auto low_bits = TQorVector<TypeParam>::WithLength(n);
  auto few_keys = TQorVector<TypeParam>::WithLength(n);
  for (std::size_t i = 0; i < n; ++i) {
    const auto small = static_cast<TypeParam>(engine() % 100);
    few_keys[i] = static_cast<TypeParam>(engine() % 3);
    low_bits[i] =
        FloatElement<TypeParam> ? 1 + small * std::numeric_limits<TypeParam>::epsilon() : small;
  }
  ExpectSortsLikeTheLibrary(low_bits);
  ExpectSortsLikeTheLibrary(few_keys);
  low_bits[n / 2] = std::numeric_limits<TypeParam>::lowest();
  low_bits[n / 3] = std::numeric_limits<TypeParam>::max();
  ExpectSortsLikeTheLibrary(low_bits);
}

// Because of the two outliers the radix sort does not reach the low bits. These form an organ pipe,
// for which the middle element is a bad pivot.
TEST(SortingFloats, SortsAnOrganPipeWithOutliers) {
  constexpr std::size_t n = 100'000;
  auto pipe = TQorFloatVector::WithLength(n);
  for (std::size_t i = 0; i < n; ++i)
    pipe[i] = 1 + static_cast<Extended>(std::min(i, n - i)) * 0x1p-63L;
  pipe[5] = std::numeric_limits<Extended>::lowest();
  pipe[7] = std::numeric_limits<Extended>::max();
  ExpectSortsLikeTheLibrary(pipe);
}

TEST(SortingFloats, RunningOutOfMemoryLeavesTheVectorUnchanged) {
  Engine engine(1);
  auto v = RandomVector<Extended>(engine, 1000);
  v[3] = kNaN;
  const TQorFloatVector before = CopyVector(v);
  testing::ExpectFailuresChangeNothing(
      [&] { QSortVector(v, true); },
      [&] { return std::memcmp(v.data(), before.data(), v.size() * sizeof(Extended)) == 0; });
}

TEST(SortingFloats, NaNIsLastInBothOrdersAndZerosKeepTheirSign) {
  constexpr Extended subnormal = std::numeric_limits<Extended>::denorm_min();
  TQorFloatVector v{kNaN, 1, -kNaN, kInfinity, 0.0L, -kInfinity, -0.0L, subnormal, -subnormal};
  const TQorFloatVector shared = v;
  TQorFloatVector expected{-kInfinity, -subnormal, -0.0L, 0.0L, subnormal, 1, kInfinity};
  for (const bool ascending : {true, false}) {
    QSortVector(v, ascending);
    for (std::size_t i = 0; i < expected.size(); ++i) {
      EXPECT_EQ(shared[i], expected[i]);
      EXPECT_EQ(std::signbit(shared[i]), std::signbit(expected[i])) << i;
    }
    EXPECT_TRUE(std::isnan(shared[7]) && std::isnan(shared[8]));
    expected = ReverseVector(expected);
  }
}

}  // namespace qorvex
