#include "qorvex/base/dyn_array.h"

#include <array>
#include <new>
#include <ranges>
#include <stdexcept>
#include <thread>

#include "support/test.h"

namespace qorvex {

TEST(DynArray, HandlesShareTheBufferUntilTheLengthIsSet) {
  TQorFloatVector a{1, 2, 3};
  TQorFloatVector b = a;
  TQorFloatVector same_length = a;
  b[0] = 10;
  EXPECT_TRUE(a.SharesBufferWith(b) && a[0] == 10);
  b.SetLength(5);
  same_length.SetLength(3);
  b[1] = 7;
  same_length[1] = 8;
  EXPECT_EQ(b, (TQorFloatVector{10, 7, 3, 0, 0}));
  EXPECT_EQ(a, (TQorFloatVector{10, 2, 3}));
  EXPECT_FALSE(a.IsShared());
}

TEST(DynArray, ShrinkingAndGrowingAgainGivesZeros) {
  TQorSingleVector v{1, 2, 3, 4};
  v.SetLength(1);
  v.SetLength(4);
  EXPECT_EQ(v, (TQorSingleVector{1, 0, 0, 0}));
  v.SetLength(0);
  EXPECT_TRUE(v.empty() && v.High() == -1 && v.begin() == v.end());
}

TEST(DynArray, MovedFromHandlesAreEmptyAndSelfAssignmentKeepsTheValue) {
  TQorFloatVector a{1, 2};
  TQorFloatVector b = std::move(a);
  EXPECT_TRUE(a.empty());  // NOLINT(bugprone-use-after-move): a moved-from handle is specified
  TQorFloatVector& same = b;
  b = same;
  b = std::move(same);
  EXPECT_EQ(b, (TQorFloatVector{1, 2}));
}

TEST(DynArray, RowsOfAMatrixAreHandles) {
  TQorFloatMatrix m{{1, 2}, {3}};
  TQorFloatVector row = m[0];
  row[1] = 20;
  EXPECT_EQ(m[0][1], 20);
  TQorFloatMatrix copy = m;
  copy.SetLength(3);
  EXPECT_TRUE(copy[0].SharesBufferWith(m[0])) << "a longer matrix copies row handles, not rows";
  EXPECT_TRUE(copy[2].empty());
}

TEST(DynArray, ConvertsFromAndToRanges) {
  const TQorFloatVector v(std::array{0.5, 1.5, 2.5});
  EXPECT_EQ(v, (TQorFloatVector{0.5L, 1.5L, 2.5L}));
  const std::span<const Extended> view = v;
  EXPECT_EQ(view.data(), v.data());
  EXPECT_EQ(TQorFloatVector(view.subspan(1)), (TQorFloatVector{1.5L, 2.5L}));
  static_assert(std::ranges::contiguous_range<TQorFloatVector>);
  static_assert(std::constructible_from<TQorDoubleVector, TQorFloatVector>);
  static_assert(!std::constructible_from<TQorLIntVector, TQorFloatVector>);
  static_assert(!std::constructible_from<TQorLIntVector, TQorLWordVector>);
  // Not a view: Clang 14 cannot compile those of GCC 12's standard library.
  struct ThrowsLate {
    Extended x;
    operator Extended() const { return x > 1 ? throw std::domain_error("late") : x; }
  };
  EXPECT_THROW(TQorFloatVector(std::array{ThrowsLate{1}, ThrowsLate{2}}), std::domain_error);
}

TEST(DynArray, CheckedAccessAndImpossibleLengthsThrowAndChangeNothing) {
  TQorFloatVector v{1, 2};
  EXPECT_THROW(static_cast<void>(v.at(2)), std::out_of_range);
  EXPECT_THROW(v.SetLength(static_cast<std::size_t>(-1) / sizeof(Extended)), std::bad_alloc);
  EXPECT_EQ(v, (TQorFloatVector{1, 2}));
}

TEST(DynArray, AppendingIsAmortised) {
  TQorByteVector v;
  std::size_t moves = 0;
  for (int i = 0; i < 100'000; ++i) {
    const std::uint8_t* const buffer = v.data();
    v.Append(static_cast<std::uint8_t>(i));
    if (v.data() != buffer) ++moves;
  }
  EXPECT_LT(moves, 40U);
}

TEST(DynArray, HandlesMayBeCopiedAndDestroyedOnAnyThread) {
  const TQorFloatMatrix shared{{1, 2}, {3, 4}};
  const auto copy_and_destroy = [&shared] {
    for (int i = 0; i < 5000; ++i) {
      TQorFloatMatrix mine = shared;
      TQorFloatVector row = mine[1];
      mine.SetLength(1);
      row.SetLength(3);
      ASSERT_EQ(row[1], 4);
    }
  };
  std::jthread other(copy_and_destroy);
  copy_and_destroy();
  other.join();
  EXPECT_FALSE(shared.IsShared() || shared[1].IsShared());
}

}  // namespace qorvex
