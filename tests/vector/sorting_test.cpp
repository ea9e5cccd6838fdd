#include "qorvex/vector/sorting.h"

#include "qorvex/vector/building.h"
#include "support/failing_allocation.h"
#include "support/random_vectors.h"
#include "support/test.h"

namespace qorvex {

using testing::Engine;
using testing::RandomVector;

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
