#include "qorvex/base/dyn_array.h"

#include <array>
#include <iterator>
#include <list>
#include <new>
#include <ranges>
#include <sstream>
#include <stdexcept>
#include <thread>

#include "support/failing_allocation.h"
#include "support/test.h"

namespace qorvex {

// What the standard requires of a reversible container with contiguous elements.
template <class C>
concept StandardContainer = std::ranges::contiguous_range<C> &&
    std::ranges::contiguous_range<const C> && std::regular<C> && std::swappable<C> &&
    requires(C c, const C constant, typename C::iterator i, typename C::const_iterator ci,
             typename C::reverse_iterator r, typename C::const_reverse_iterator cr) {
  i = c.begin(), i = c.end(), ci = c.cbegin(), ci = c.cend(), ci = constant.begin();
  r = c.rbegin(), r = c.rend(), cr = c.crbegin(), cr = c.crend(), cr = constant.rbegin();
  std::back_inserter(c) = constant.front(), c.front() = constant.back(), c.max_size();
};
static_assert(StandardContainer<TQorFloatVector> && StandardContainer<TQorByteVector> &&
              StandardContainer<TQorLongCurrVector> && StandardContainer<TQorFloatMatrix>);

template <class Vector, class Value>
concept Appendable = requires(Vector vector, Value value) {
  vector.push_back(value);
};
static_assert(Appendable<TQorFloatVector, int> && Appendable<TQorSIntVector, int>);
static_assert(!Appendable<TQorLIntVector, double> && !Appendable<TQorByteVector, Extended>);
static_assert(!std::constructible_from<TQorLIntVector, int, double>);
static_assert(!std::constructible_from<TQorFloatVector, double>, "a length is an integer");

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
  EXPECT_THROW(static_cast<void>(std::as_const(v).at(2)), std::out_of_range);
  EXPECT_THROW(v.SetLength(static_cast<std::size_t>(-1) / sizeof(Extended)), std::bad_alloc);
  EXPECT_EQ(v, (TQorFloatVector{1, 2}));
}

TEST(DynArray, ConstructsFromCountsAndIterators) {
  EXPECT_EQ(TQorFloatVector(3), (TQorFloatVector{0, 0, 0}));
  EXPECT_EQ(TQorFloatVector(3, 1), (TQorFloatVector{1, 1, 1}));
  EXPECT_EQ((TQorFloatVector{3, 1}).size(), 2U);
  const std::list<float> list{1, 2, 3};
  EXPECT_EQ(TQorDoubleVector(list.begin(), list.end()), (TQorDoubleVector{1, 2, 3}));
  std::istringstream input("4 5 6");
  std::istream_iterator<std::int32_t> numbers(input);
  const TQorLIntVector read(numbers, std::default_sentinel);
  EXPECT_EQ(read, (TQorLIntVector{4, 5, 6}));
  EXPECT_EQ(TQorLIntVector(read.rbegin(), read.crend() - 1), (TQorLIntVector{6, 5}));
  EXPECT_THROW(TQorFloatVector(-1), std::bad_alloc);
  TQorFloatMatrix zeros(2, TQorFloatVector(3));
  zeros[0][1] = 7;
  EXPECT_EQ(zeros, (TQorFloatMatrix{{0, 7, 0}, {0, 0, 0}})) << "rows of their own";
}

TEST(DynArray, AppendsAndRemovesLikeAStandardContainer) {
  TQorLIntVector v{2, 3};
  std::ranges::copy(std::array{5, 7}, std::back_inserter(v));
  v.push_back(v.front());
  v.resize(7, v.back());
  EXPECT_EQ(v, (TQorLIntVector{2, 3, 5, 7, 2, 2, 2}));
  v.resize(8);
  v.pop_back();
  v.resize(5, 9);
  std::ranges::sort(v);
  EXPECT_EQ(v, (TQorLIntVector{2, 2, 3, 5, 7}));
  v.assign(v.begin() + 2, v.end());
  EXPECT_EQ(v, (TQorLIntVector{3, 5, 7}));
  v.assign(2, v[1]);
  TQorLIntVector other{1};
  swap(v, other);
  EXPECT_TRUE((v == TQorLIntVector{1} && other == TQorLIntVector{5, 5}));

  TQorFloatMatrix m;
  m.emplace_back(2, 0.5L)[1] = 1;
  m.push_back({2});
  m.push_back(m[1]);
  EXPECT_EQ(m, (TQorFloatMatrix{{0.5L, 1}, {2}, {2}}));
  m.resize(1);
  EXPECT_EQ(m.back(), (TQorFloatVector{0.5L, 1}));
}

TEST(DynArray, LargeBuffersKeepTheirElements) {
  TQorDoubleVector v(kLeastLargeBuffer / sizeof(double) - 1, 1.5);  // the smallest large buffer
  const TQorDoubleVector shared = v;
  v.SetLength(2 * v.size());
  EXPECT_TRUE(std::equal(shared.begin(), shared.end(), v.begin()));
  EXPECT_EQ(std::count(v.begin(), v.end(), 0), shared.end() - shared.begin());
}

TEST(DynArray, CapacityIsKeptByAPrivateBufferAndMakesAppendingAmortised) {
  TQorByteVector v;
  v.reserve(100);
  const std::uint8_t* const reserved = v.data();
  for (std::uint8_t i = 0; i < 100; ++i) v.push_back(i);
  v.clear();
  EXPECT_TRUE(v.empty() && v.begin() == v.end());
  v.resize(100, 1);
  EXPECT_EQ(v.data(), reserved);
  v.resize(0);
  EXPECT_EQ(v.capacity(), 100U);
  v.ShrinkToFit();
  EXPECT_EQ(v.data(), nullptr);

  std::size_t moves = 0;
  for (int i = 0; i < 100'000; ++i) {
    const std::uint8_t* const buffer = v.data();
    v.Append(static_cast<std::uint8_t>(i));
    if (v.data() != buffer) ++moves;
  }
  EXPECT_LT(moves, 40U);
}

TEST(DynArray, EveryChangeOfLengthAndReservingLeaveOtherHandlesAlone) {
  using M = TQorFloatMatrix;
  const M original{{1, 2}, {3}, {}};
  for (void (*const change)(M&) : std::initializer_list<void (*)(M&)>{
           [](M& m) { m.push_back(m[0]); }, [](M& m) { m.emplace_back(); },
           [](M& m) { m.pop_back(); }, [](M& m) { m.resize(4, m[1]); },
           [](M& m) { m.resize(3, m[1]); }, [](M& m) { m.assign(3, m[2]); },
           [](M& m) { m.SetLength(3); }, [](M& m) { m.reserve(1); }, [](M& m) { m.clear(); }}) {
    M kept(original.begin(), original.end());
    M handle = kept;
    change(handle);
    EXPECT_FALSE(kept.IsShared() || handle.IsShared());
    EXPECT_EQ(kept, original);
    // Whatever fails to allocate, both handles keep their elements.
    if (handle.empty()) continue;
    handle = kept;
    testing::ExpectFailuresChangeNothing([&] { change(handle); },
                                         [&] { return handle == original && kept == original; });
  }
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
