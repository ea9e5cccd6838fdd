#include "qorvex/vector/building.h"

#include "qorvex/vector/conversion.h"
#include "support/test.h"

namespace qorvex {

TEST(Building, AppendAndInsertMakeTheBufferPrivate) {
  TQorFloatVector v{1, 2, 3};
  const TQorFloatVector before = v;
  AddValue2Vector(v, 9, 0);
  EXPECT_EQ(v, (TQorFloatVector{9, 1, 2, 3}));
  AddValue2Vector(v, 8, 3);
  EXPECT_EQ(v, (TQorFloatVector{9, 1, 2, 8, 3}));
  AppendValue2Vector(v, v[0]);
  EXPECT_EQ(v[5], 9);
  EXPECT_EQ(before, (TQorFloatVector{1, 2, 3}));
}

TEST(Building, PositionsOutOfRangeAppendOrDoNothing) {
  for (const std::int32_t position : {-1, 3}) {
    TQorLWordVector v{1, 2, 3};
    AddValue2Vector(v, 7, position);
    EXPECT_EQ(v, (TQorLWordVector{1, 2, 3, 7})) << position;
    TQorLWordVector w{1, 2, 3};
    DeleteValueFromVector(w, position);
    EXPECT_EQ(w.size(), 3U) << position;
  }
  TQorSingleVector empty;
  DeleteValueFromVector(empty, 0);
  AddValue2Vector(empty, 5, 0);
  EXPECT_EQ(empty, (TQorSingleVector{5}));
}

TEST(Building, DeleteMovesTheElementsBehind) {
  TQorInt64Vector v{1, 2, 3, 4};
  const TQorInt64Vector shared = v;
  DeleteValueFromVector(v, 1);
  EXPECT_EQ(v, (TQorInt64Vector{1, 3, 4}));
  EXPECT_EQ(shared, (TQorInt64Vector{1, 3, 4, 4}))
      << "the moved elements are seen, the new length is not";
  for (const std::int32_t position : {2, 0, 0}) DeleteValueFromVector(v, position);
  EXPECT_TRUE(v.empty());
}

TEST(Building, FillAndClearWriteThroughEveryHandle) {
  TQorSmallIntVector a{5, 6};
  const TQorSmallIntVector shared = a;
  const TQorSmallIntVector copy = CopyVector(a);
  const TQorSmallIntVector reversed = ReverseVector(a);
  FillVector(a, -3);
  EXPECT_EQ(shared, (TQorSmallIntVector{-3, -3}));
  ClearVector(a);
  EXPECT_EQ(shared, (TQorSmallIntVector{0, 0}));
  EXPECT_EQ(copy, (TQorSmallIntVector{5, 6}));
  EXPECT_EQ(reversed, (TQorSmallIntVector{6, 5}));
  TQorByteVector empty;
  ClearVector(empty);
  EXPECT_TRUE(CopyVector(empty).empty());
}

TEST(Conversion, WidensExactly) {
  EXPECT_EQ(Vector2FloatVector(TQorInt64Vector{INT64_MAX}), (TQorFloatVector{0x1p63L - 1}));
  EXPECT_EQ(Vector2Int64Vector(TQorLWordVector{4294967295}), (TQorInt64Vector{4294967295}));
  EXPECT_EQ(Vector2LIntVector(TQorWordVector{65535}), (TQorLIntVector{65535}));
  const TQorLIntVector source{1};
  EXPECT_FALSE(Vector2LIntVector(source).SharesBufferWith(source));

  const double array[] = {0.1, 0.2};
  EXPECT_EQ(Array2FloatVector(array), (TQorFloatVector{0.1, 0.2}));
  EXPECT_EQ(Array2Int64Vector(std::vector<std::int16_t>{-7}), (TQorInt64Vector{-7}));
  EXPECT_EQ(Array2LIntVector(std::vector<std::uint8_t>{7}), (TQorLIntVector{7}));
}

}  // namespace qorvex
