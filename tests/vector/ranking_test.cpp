#include "qorvex/vector/ranking.h"

#include "qorvex/base/comparisons.h"
#include "qorvex/vector/building.h"
#include "qorvex/vector/sorting.h"
#include "support/kept_tolerance.h"
#include "support/random_vectors.h"
#include "support/test.h"

namespace qorvex {

using testing::Engine;

// The definition: the first equal element in a sorted copy.
template <class T>
std::int32_t ScannedRank(const TQorVector<T>& vector, T value, bool ascending) {
  TQorVector<T> sorted = CopyVector(vector);
  QSortVector(sorted, ascending);
  const auto first = std::ranges::find_if(sorted, [=](T x) {
    if constexpr (FloatElement<T>) return SameFloat(x, value);
    return x == value;
  });
  return first == sorted.end() ? -1 : static_cast<std::int32_t>(first - sorted.begin());
}

template <class T>
void ExpectRanksLikeTheScan(const TQorVector<T>& vector) {
  for (const bool ascending : {true, false}) {
    const TQorLIntVector ranks = Vector2RankVector(vector, ascending);
    ASSERT_EQ(ranks.size(), vector.size());
    for (std::size_t i = 0; i < vector.size(); ++i) {
      const std::int32_t scanned = ScannedRank(vector, vector[i], ascending);
      ASSERT_EQ(ranks[i], std::max(scanned, 0)) << i;
      ASSERT_EQ(Vector2Rank(vector, static_cast<std::uint32_t>(i), ascending), scanned) << i;
    }
  }
}

TEST(Ranking, TiesShareTheLowestRankAndAbsentValuesHaveNone) {
  const TQorLIntVector v{30, 10, 20, 20};
  EXPECT_EQ(Vector2RankVector(v, true), (TQorLIntVector{3, 0, 1, 1}));
  EXPECT_EQ(Vector2Rank(v, 3, true), 1);
  EXPECT_EQ(Vector2Rank(v, 4, true), -1);
  EXPECT_EQ(Vector2RankValue(v, 30, false), 0);
  EXPECT_EQ(Vector2RankValue(TQorFloatVector{kNaN, kInfinity, 1}, kNaN, true), -1);
  EXPECT_EQ(Vector2RankValue(TQorFloatVector{kNaN, 3, 2}, 3 + 1e-15L, true), 1)
      << "within the tolerance";
}

// Chains of near-ties, in which neighbours are the same but the ends are not: the elements that are
// the same as a given one must still be contiguous.
template <class T>
TQorVector<T> Chain(Engine& engine, std::size_t n) {
  auto vector = TQorVector<T>::WithLength(n);
  const auto tolerance =
      std::max(static_cast<T>(QorTolerance), 4 * std::numeric_limits<T>::epsilon());
  const T scales[] = {0, 1, -1, T(0.999), 1000, -1000, T(1e-30L)};
  for (T& x : vector) {
    const T scale = scales[engine() % 7];
    const T step = tolerance * std::fabs(scale) / 4;
    x = scale + static_cast<T>(static_cast<int>(engine() % 25) - 12) * step;
  }
  if (n > 3) {
    vector[0] = std::numeric_limits<T>::infinity();
    vector[1] = std::numeric_limits<T>::quiet_NaN();
    vector[2] = -std::numeric_limits<T>::infinity();
  }
  return vector;
}

TEST(Ranking, AgreesWithALinearScan) {
  const testing::KeptTolerance kept;
  Engine engine(2026);
  for (const Extended tolerance : {0.0L, 1e-15L, 1e-6L, 0.1L, 0.499L, 0.5L, 0.9L, 3.0L}) {
    QorTolerance = tolerance;
    for (const std::size_t n : {1U, 2U, 5U, 40U, 150U}) {
      ExpectRanksLikeTheScan(Chain<Extended>(engine, n));
      ExpectRanksLikeTheScan(Chain<double>(engine, n));
      ExpectRanksLikeTheScan(Chain<float>(engine, n));
    }
  }
  QorTolerance = 1.5L;
  ExpectRanksLikeTheScan(TQorFloatVector{-1, 0, 1, 3});  // equal elements are not contiguous
  ExpectRanksLikeTheScan(testing::RandomVector<std::uint8_t>(engine, 300));
  ExpectRanksLikeTheScan(testing::RandomVector<std::int64_t>(engine, 60));
}

}  // namespace qorvex
