#include "qorvex/stats/exact/exact_sum.h"

#include <span>

#include "qorvex/stats/exact/detail/block_sum.h"
#include "stats/exact/nearest.h"
#include "stats/exact/test_data.h"
#include "support/random_vectors.h"
#include "support/test.h"

namespace qorvex {

using testing::Kind;
using testing::Nearest;
using testing::Same;

template <class T>
class ExactSumOf : public ::testing::Test {};
TYPED_TEST_SUITE(ExactSumOf, AllTypes);

TYPED_TEST(ExactSumOf, IsTheNearestNumberInAnyOrderAndSplit) {
  testing::Engine engine(3);
  const auto check = [&](const TQorVector<TypeParam>& x, const TQorVector<TypeParam>& y) {
    constexpr int kScale = 3 * 16'600;
    const testing::Integer one = testing::Integer(1) << kScale;
    testing::Integer sum = 0;
    testing::Integer products = 0;
    ExactSum one_by_one;
    ExactSum parts;
    ExactSum products_of_parts;
    for (std::size_t i = 0; i < x.size(); ++i) {
      const testing::Binary value(static_cast<Extended>(x[i]));
      testing::Binary term(static_cast<Extended>(y[i]));
      (term *= value) *= value;
      sum += value.mantissa << (kScale + value.exponent);
      products += term.mantissa << (kScale + term.exponent);
      one_by_one.Add(static_cast<Extended>(x[x.size() - 1 - i]));
    }
    for (std::size_t begin = 0; begin < x.size();) {
      const std::size_t count = std::min(x.size() - begin, std::size_t{engine() % 900});
      const auto part = [&](const TQorVector<TypeParam>& v) {
        return VectorView<TypeParam>(std::span<const TypeParam>(v).subspan(begin, count));
      };
      ExactSum next;
      next.Add(part(x));
      parts.Merge(next);
      products_of_parts.AddProduct(part(y), part(x), part(x));
      begin += count;
    }
    ExactSum whole;
    whole.Add(x);
    EXPECT_EQ(whole.Round(), Nearest(sum, one));
    EXPECT_TRUE(whole == one_by_one && whole == parts);
    ExactSum product;
    product.AddProduct(x, y, x);
    EXPECT_EQ(product.Round(), Nearest(products, one));
    EXPECT_TRUE(product == products_of_parts);
    product.AddSquare(x);
    product.RemoveProduct(x, x);
    EXPECT_TRUE(product == products_of_parts);
    whole.Remove(x);
    EXPECT_TRUE(whole == ExactSum());
  };
  if constexpr (FloatElement<TypeParam>) {
    for (const Kind kind : testing::kKinds) {
      SCOPED_TRACE(static_cast<int>(kind));
      // Long enough for scattered values to be noticed and to come to an end.
      const std::size_t n = 12'000;
      auto x = testing::RandomValues<TypeParam>(engine, kind, n);
      for (std::size_t i = n / 2; i < n; ++i) {
        x[i] = testing::RandomValue<TypeParam>(engine, Kind::kMoney);
      }
      check(x, testing::RandomValues<TypeParam>(engine, kind, n));
    }
  } else {
    const auto x = testing::RandomVector<TypeParam>(engine, 3'000);
    check(x, testing::RandomVector<TypeParam>(engine, 3'000));
  }
}

template <class T>
class BlockSumOf : public ::testing::Test {};
TYPED_TEST_SUITE(BlockSumOf, FloatTypes);

// With every range of exponents, from one that a block can have to one that it cannot.
TYPED_TEST(BlockSumOf, AddsBlocksExactlyOrNotAtAll) {
  using exact::detail::BlockSum;
  testing::Engine engine(6);
  for (const Instructions instructions : {Instructions::kBaseline, Instructions::kAvx2}) {
    if (instructions > BestInstructions()) continue;
    exact::FixedPoint total;
    BlockSum<TypeParam> sum(total, instructions);
    ExactSum expected;
    int added = 0;
    for (int round = 0; round < 3'000; ++round) {
      const int spread = 1 + round % 50;
      const int top = round / 600 * 9;  // the range moves
      auto block = TQorVector<TypeParam>::WithLength(BlockSum<TypeParam>::kBlock);
      for (TypeParam& x : block) {
        const auto exponent = static_cast<int>(engine() % static_cast<unsigned>(spread));
        const auto mantissa =
            static_cast<TypeParam>(1 + static_cast<Extended>(engine()) * 0x1p-64L);
        x = std::ldexp(engine() % 2 != 0 ? mantissa : -mantissa, top - exponent);
        if (engine() % 9 == 0) x = 0;
      }
      if (round % 10 == 9) block[engine() % 256] = std::numeric_limits<TypeParam>::quiet_NaN();
      if (!sum.Add(std::span<const TypeParam>(block))) continue;
      ++added;
      expected.Add(block);
    }
    sum.Flush();
    EXPECT_TRUE(total.Value() == expected.Value());
    const bool has_kernel =
        sizeof(TypeParam) <= sizeof(double) || instructions == Instructions::kAvx2;
    EXPECT_EQ(added > 100, has_kernel);
    EXPECT_LT(added, 2'700);  // NaN is refused
    EXPECT_TRUE(expected.IsFinite());
  }
}

TEST(ExactSum, RoundsOnce) {
  constexpr Extended kMax = std::numeric_limits<Extended>::max();
  constexpr Extended kDenormal = std::numeric_limits<Extended>::denorm_min();
  struct Case {
    TQorFloatVector values;
    Extended sum;
  };
  const Case cases[] = {{{}, 0},
                        {{-0.0L, -0.0L}, -0.0L},
                        {{-0.0L, 0.0L}, 0},
                        {{1, -1}, 0},
                        {{kMax, kMax}, kInfinity},
                        {{kMax, kMax, -kMax}, kMax},
                        {{-kMax, -0x1p16319L}, -kInfinity},  // a tie
                        {{1e4000L, 1, -1e4000L}, 1},
                        {{1, 0x1p-64L}, 1},  // a tie
                        {{1, 0x1p-64L, kDenormal}, 1 + 0x1p-63L},
                        {{0x1p-16382L, -kDenormal}, 0x1p-16382L - kDenormal},
                        {{kInfinity, 1}, kInfinity},
                        {{kInfinity, kInfinity}, kInfinity},
                        {{1, kInfinity, -kInfinity}, kNaN},
                        {{-kInfinity, kNaN}, kNaN}};
  for (const Case& c : cases) {
    // A few values, and so many that they go through a table.
    for (const std::size_t zeros : {0U, 3'000U}) {
      TQorFloatVector values(c.values);
      const bool negative = Same(c.sum, -0.0L);
      for (std::size_t i = 0; i < zeros; ++i) values.Append(negative ? -0.0L : 0.0L);
      ExactSum sum;
      sum.Add(values);
      EXPECT_TRUE(Same(sum.Round(), c.sum)) << c.values << ' ' << sum.Round();
      const bool finite = std::ranges::all_of(values, [](Extended x) { return std::isfinite(x); });
      EXPECT_EQ(sum.IsFinite(), finite);
    }
  }
}

TEST(ExactSum, ProductsThatUnderflowAreNotZero) {
  constexpr Extended kTiny = 1e-4000L;
  constexpr Extended kHuge = 1e4000L;
  constexpr struct {
    Extended x, y, z, product;
  } cases[] = {{kTiny, kTiny, kInfinity, kInfinity}, {-kInfinity, kTiny, kTiny, -kInfinity},
               {kHuge, kHuge, -0.0L, -0.0L},         {-kTiny, kTiny, 0, -0.0L},
               {kInfinity, 0, kTiny, kNaN},          {kHuge, kNaN, 0, kNaN}};
  for (const auto& [x, y, z, product] : cases) {
    for (const std::size_t n : {1U, 500U}) {
      ExactSum sum;
      sum.AddProduct(TQorFloatVector(n, x), TQorFloatVector(n, y), TQorFloatVector(n, z));
      EXPECT_TRUE(Same(sum.Round(), product)) << x << ' ' << y << ' ' << z;
    }
  }
}

// With exponents beyond those that the words of a total can count.
TEST(FixedPoint, RefusesWhatIsTooLong) {
  exact::FixedPoint total;
  for (const int sign : {-1, 1}) {
    const std::int64_t limit = sign * (std::int64_t{1} << 30);
    EXPECT_ERROR(total.Add(1, limit + sign, false), EOverflow, rsOverflow);
    EXPECT_ERROR(total.Add(1, sign * (std::int64_t{1} << 40), false), EOverflow, rsOverflow);
    const auto position = static_cast<std::int32_t>(limit / 64 + sign);
    EXPECT_ERROR(exact::FixedPoint::FromWords({position, {}}), EOverflow, rsOverflow);
  }
  EXPECT_EQ(total.Sign(), 0);
  total.Add(3, -(std::int64_t{1} << 30), false);
  EXPECT_TRUE(total.Value() == exact::Dyadic(3).Shifted(-(std::int64_t{1} << 30)));
}

TEST(ExactSum, ForgetsWhatIsRemoved) {
  ExactSum sum;
  sum.Add<Extended>({1.5L, kInfinity, kNaN});
  sum.AddProduct(kInfinity, 0);
  sum.AddProduct(-2, kInfinity, 3);
  EXPECT_TRUE(std::isnan(sum.Round()));
  sum.Remove(TQorFloatVector{kNaN, kInfinity});
  sum.RemoveProduct(0.0L, kInfinity);
  EXPECT_EQ(sum.Round(), -kInfinity);
  sum.RemoveProduct(-2.0L, kInfinity, 3.0L);
  EXPECT_TRUE(sum.IsFinite());
  EXPECT_EQ(sum.Round(), 1.5L);
  for (const Extended x : {kInfinity, -kInfinity, kNaN})
    EXPECT_MATH_ERROR(sum.Remove(x), rsInvalidValue);
  sum.RemoveSquare(0.5L);
  EXPECT_EQ(sum.Round(), 1.25L);
  EXPECT_TRUE(sum.Value() == exact::Dyadic(1.25L));
  EXPECT_MATH_ERROR(sum.AddProduct(TQorFloatVector{1}, TQorFloatVector{1, 2}), rsSameDimensions);
  EXPECT_MATH_ERROR(sum.AddProduct(TQorFloatVector{1}, TQorFloatVector{1}, TQorFloatVector{}),
                    rsSameDimensions);
  EXPECT_EQ(sum.Round(), 1.25L);
}

}  // namespace qorvex
