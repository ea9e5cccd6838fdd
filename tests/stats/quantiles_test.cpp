#include "qorvex/stats/quantiles.h"

#include <cstdint>
#include <numeric>

#include "qorvex/stats/order_statistics.h"
#include "qorvex/vector/building.h"
#include "qorvex/vector/sorting.h"
#include "support/random_vectors.h"
#include "support/table.h"
#include "support/test.h"

namespace qorvex {

namespace {

constexpr QuantileType Type(int number) {
  return static_cast<QuantileType>(number);
}

TQorFloatVector FirstNumbers(std::size_t n) {
  auto numbers = TQorFloatVector::WithLength(n);
  std::iota(numbers.begin(), numbers.end(), 1);
  return numbers;
}

TEST(Quantiles, AgreeWithR) {
  const testing::Table table("tables/r_quantiles.csv");
  for (std::size_t row = 0; row < table.size(); ++row) {
    const TQorFloatVector x(table.Values(row, "x"));
    const auto expect = [&](const std::string& column, Extended figure) {
      const Extended expected = table.Value(row, column);
      EXPECT_LE(std::fabs(figure - expected), 1e-14L * std::fabs(expected))
          << column << ", row " << row + 1;
    };
    for (int type = 1; type <= 9; ++type)
      expect("t" + std::to_string(type), GetQuantile(x, table.Value(row, "p"), Type(type)));
    expect("mad", MedianAbsoluteDeviation(x));
  }
}

// Of the numbers from 1 to n, every quantile is its own position. Thousandths are inexact, so whole
// positions are missed without a tolerance.
TEST(Quantiles, HitWholePositions) {
  struct Definition {
    int factor, shift, offset, divisor;  // position = ((factor n + shift) p + offset) / divisor
  };
  constexpr Definition definitions[] = {{1, 0, 0, 1},  {1, 0, 0, 1}, {1, 0, 0, 1},
                                        {1, 0, 0, 1},  {2, 0, 1, 2}, {1, 1, 0, 1},
                                        {1, -1, 1, 1}, {3, 1, 1, 3}, {8, 2, 3, 8}};
  for (const int n : {1, 2, 3, 8, 10, 25, 70, 200, 999, 1000, 1001}) {
    const TQorFloatVector sorted = FirstNumbers(static_cast<std::size_t>(n));
    for (int k = 0; k <= 1000; ++k) {
      for (int type = 1; type <= 9; ++type) {
        const Definition& d = definitions[type - 1];
        const int unit = 1000 * d.divisor;
        const int scaled = (d.factor * n + d.shift) * k + 1000 * d.offset;
        int whole = scaled / unit;
        const int rest = scaled % unit;
        Extended expected = static_cast<Extended>(scaled) / static_cast<Extended>(unit);
        if (type == 1 || (type == 2 && rest != 0)) expected = whole + (rest > 0);
        if (type == 2 && rest == 0) expected = whole == 0 || whole == n ? whole : whole + 0.5L;
        if (type == 3) expected = whole + (2 * rest > unit || (2 * rest == unit && whole % 2 == 1));
        expected = std::clamp<Extended>(expected, 1, n);
        const Extended found = GetQuantile(sorted, k / 1000.0L, Type(type));
        const Extended tolerance = rest == 0 || type <= 3 ? 0 : 1e-18L * expected;
        ASSERT_LE(std::fabs(found - expected), tolerance)
            << "n " << n << ", p " << k << ", type " << type;
      }
    }
  }
}

TEST(Quantiles, OfSpecialValues) {
  constexpr Extended huge = std::numeric_limits<Extended>::max();
  constexpr Extended next = 1 + std::numeric_limits<Extended>::epsilon();
  struct {
    TQorFloatVector sorted;
    Extended p;
    Extended expected;
  } const cases[] = {
      {{-huge, huge}, 0.5L, 0},
      {{-huge, huge}, 0.75L, huge / 2},
      {{huge, huge}, 0.3L, huge},
      {{1, next}, 0.4L, 1},
      {{1, next}, 0.6L, next},
      {{1, kInfinity}, 0.5L, kInfinity},
      {{1, kInfinity}, 0, 1},
      {{-kInfinity, -1, 2}, 0.25L, -kInfinity},
      {{-kInfinity, kInfinity}, 0.5L, kNaN},
      {{kInfinity, kInfinity}, 0.5L, kInfinity},
      {{1, 2, 3, kNaN}, 0.5L, 2.5L},
      {{1, 2, 3, kNaN}, 0.9L, kNaN},
      {{0x1p-16445L, 0x1p-16444L}, 0.5L, 0x1p-16444L},
  };
  for (const auto& c : cases) {
    const Extended found = GetQuantile(c.sorted, c.p);
    EXPECT_TRUE(found == c.expected || (std::isnan(found) && std::isnan(c.expected)))
        << c.sorted << ", " << c.p << ": " << found;
  }
  const TQorFloatVector wide{-huge, -1, 1, huge};
  EXPECT_EQ(GetQuantile(wide, 0.25L, QuantileType::k2), -huge / 2 - 0.5L);
  Extended q1, q3;
  const TQorFloatVector sorted{1, 4, 4, 9, 16.5L, 20, 31};
  GetQuartiles(sorted, q1, q3);
  EXPECT_EQ(GetQuantile(sorted, 0.25L, QuantileType::kClassic), q1);

  EXPECT_MATH_ERROR(GetQuantile(TQorFloatVector(), 2), rsVectorIsEmpty);
  for (const Extended p : {-0.001L, 1.001L, kNaN})
    EXPECT_MATH_ERROR(GetQuantile(sorted, p), rsValue01Inc);
  EXPECT_MATH_ERROR(GetQuantile(sorted, 0.5L, Type(0)), rsInvalidValue);
}

template <class T>
class OrderStatistics : public ::testing::Test {};
TYPED_TEST_SUITE(OrderStatistics, AllTypes);

TYPED_TEST(OrderStatistics, OfEveryElementType) {
  using Limits = std::numeric_limits<TypeParam>;
  const TQorVector<TypeParam> ends{Limits::lowest(), Limits::max()};
  EXPECT_EQ(GetQuantile(ends, 1), static_cast<Extended>(Limits::max()));
  EXPECT_EQ(GetQuantile(ends, 0.5L),
            (static_cast<Extended>(Limits::lowest()) + static_cast<Extended>(Limits::max())) / 2);
  const TQorVector<TypeParam> values{1, 1, 2, 2, 4, 6, 9};
  EXPECT_EQ(MedianAbsoluteDeviation(values), 1);
}

TEST(MedianAbsoluteDeviation, IsTheMedianOfTheDistances) {
  testing::Engine engine(18);
  for (std::size_t n = 1; n <= 60; ++n) {
    auto values = TQorFloatVector::WithLength(n);
    for (Extended& x : values) x = static_cast<Extended>(engine() % 41) / 4 - 5;
    QSortVector(values, true);
    const Extended median = GetMedian(values);
    TQorFloatVector distances = CopyVector(values);
    for (Extended& x : distances) x = std::fabs(x - median);
    EXPECT_EQ(MedianAbsoluteDeviation(values), GetMedian(SortedVector(distances))) << values;
  }
  EXPECT_EQ(MedianAbsoluteDeviation(TQorFloatVector{-kInfinity, 1, 2, 4, kInfinity}), 2);
  EXPECT_EQ(MedianAbsoluteDeviation(TQorFloatVector{-kInfinity, 1, kInfinity}), kInfinity);
  EXPECT_TRUE(std::isnan(MedianAbsoluteDeviation(TQorFloatVector{1, kInfinity, kInfinity})));
  EXPECT_TRUE(std::isnan(MedianAbsoluteDeviation(TQorFloatVector{1, 1, 1, kNaN})));
  EXPECT_MATH_ERROR(MedianAbsoluteDeviation(TQorFloatVector()), rsVectorIsEmpty);
}

}  // namespace

}  // namespace qorvex
