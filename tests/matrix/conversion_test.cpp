#include "qorvex/matrix/conversion.h"

#include <array>
#include <list>
#include <optional>
#include <span>

#include "qorvex/matrix/row_major.h"
#include "support/test.h"

namespace qorvex {

TEST(MatrixConversion, BetweenFlatAndNestedArraysSharesNothing) {
  const std::vector<double> elements{1, 2, 3, 4};
  const double arrays[2][2] = {{1, 2}, {3, 4}};
  const std::list<std::span<const double>> spans{arrays[0], arrays[1]};
  const TQorDoubleMatrix expected{{1, 2}, {3, 4}};
  for (const TQorDoubleMatrix& matrix :
       {MatrixFromRowMajor(elements, 2), MatrixFromRows(arrays), MatrixFromRows(spans),
        MatrixFromRows(expected), ConvertMatrix<double>(expected)}) {
    EXPECT_EQ(matrix, expected);
    EXPECT_FALSE(matrix[0].SharesBufferWith(expected[0]));
    EXPECT_TRUE(std::ranges::equal(MatrixToRowMajor(matrix), elements));
    const std::span<const double> row = matrix[1];
    EXPECT_EQ(VectorView<double>(matrix[1]).data(), row.data());
  }
  const TQorCurrencyMatrix amounts{{Currency(7)}, {Currency(8)}};
  EXPECT_EQ(MatrixFromRowMajor(MatrixToRowMajor(amounts), 1), amounts);
  EXPECT_TRUE(MatrixFromRowMajor<float>({}, 3).empty());
  EXPECT_TRUE(MatrixFromRowMajor<float>({}, 0).empty());
  EXPECT_TRUE(MatrixToRowMajor(TQorSingleMatrix{{}, {}}).empty());
}

TEST(MatrixConversion, KeepsTheLengthsOfRows) {
  const std::vector<std::vector<Extended>> rows{{1.5L}, {}, {-3, 2.5L}};
  EXPECT_EQ(MatrixFromRows(rows), (TQorFloatMatrix{{1.5L}, {}, {-3, 2.5L}}));
  EXPECT_EQ(NarrowMatrix<std::int8_t>(rows), (TQorSIntMatrix{{2}, {}, {-3, 2}}));
}

// The narrowed value, or nullopt if it is refused. The value is the second of two.
template <class To, class From>
std::optional<To> Narrowed(From value) {
  try {
    return NarrowVector<To>(std::array{From(1), value})[1];
  } catch (const EMathError& error) {
    EXPECT_EQ(error.message_id(), rsInvalidValue);
    return std::nullopt;
  }
}

TEST(Narrowing, RoundsToNearestAndRefusesWhatTheTargetCannotHold) {
  constexpr std::nullopt_t refused = std::nullopt;
  const struct {
    Extended value;
    std::optional<std::int8_t> as_int8;
    std::optional<std::uint32_t> as_uint32;
    std::optional<std::int64_t> as_int64;
  } cases[] = {
      {0.5L, 0, 0U, 0},
      {1.5L, 2, 2U, 2},
      {-0.50001L, -1, refused, -1},
      {127.5L, refused, 128U, 128},
      {-128.5L, -128, refused, -128},
      {4294967295.4999L, refused, 4294967295U, 4294967295},
      {4294967295.5L, refused, refused, 4294967296},
      {0x1p63L - 1, refused, refused, INT64_MAX},
      {0x1p63L - 0.5L, refused, refused, refused},
      {-0x1p63L, refused, refused, INT64_MIN},
      {-0x1p63L - 1, refused, refused, refused},
      {kNaN, refused, refused, refused},
  };
  for (const auto& [value, as_int8, as_uint32, as_int64] : cases) {
    EXPECT_EQ(Narrowed<std::int8_t>(value), as_int8) << value;
    EXPECT_EQ(Narrowed<std::uint32_t>(value), as_uint32) << value;
    EXPECT_EQ(Narrowed<std::int64_t>(value), as_int64) << value;
  }
  EXPECT_EQ(Narrowed<std::uint8_t>(std::int32_t{255}), std::uint8_t{255});
  EXPECT_EQ(Narrowed<std::uint8_t>(std::int32_t{256}), refused);
  EXPECT_EQ(Narrowed<std::uint32_t>(std::int8_t{-1}), refused);

  constexpr float largest = std::numeric_limits<float>::max();
  constexpr float infinity = std::numeric_limits<float>::infinity();
  EXPECT_EQ(Narrowed<float>(std::int32_t{16777217}), 16777216.0F);
  EXPECT_EQ(Narrowed<double>(std::int64_t{INT64_MAX}), 0x1p63);
  EXPECT_EQ(Narrowed<float>(0.1), 0.1F);
  EXPECT_EQ(Narrowed<float>(Extended(largest) + 0x1p102L), largest);
  EXPECT_EQ(Narrowed<float>(Extended(largest) + 0x1p103L), refused);
  EXPECT_EQ(Narrowed<float>(-1e300), refused);
  EXPECT_EQ(Narrowed<float>(kInfinity), infinity);
  EXPECT_TRUE(std::isnan(Narrowed<float>(kNaN).value()));
}

}  // namespace qorvex
