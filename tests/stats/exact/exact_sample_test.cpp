#include "qorvex/stats/exact/exact_sample.h"

#include <algorithm>
#include <random>
#include <span>

#include "stats/exact/nearest.h"
#include "stats/exact/test_data.h"
#include "support/environment.h"
#include "support/failing_allocation.h"
#include "support/random_vectors.h"
#include "support/table.h"
#include "support/test.h"

namespace qorvex {

using testing::Engine;
using testing::Integer;
using testing::Kind;
using testing::Nearest;
using testing::Same;

using Bytes = std::vector<std::byte>;

// Decimal and binary numbers in a unit that makes integers of all: 10^-8 2^exponent.
struct Integers {
  explicit Integers(int lowest_exponent) : exponent(lowest_exponent) {}

  void Add(Extended x) {
    const testing::Binary parts(x);
    values.push_back(kDecimals * parts.mantissa << (parts.exponent - exponent));
  }
  void AddScaled(std::int64_t x, int decimals) {
    values.push_back((kDecimals * x / pow(Integer(10), static_cast<unsigned>(decimals)))
                     << -exponent);
  }
  [[nodiscard]] Extended Rounded(const Integer& top, const Integer& bottom, int power,
                                 bool root = false) const {
    const Integer unit = pow(kDecimals, static_cast<unsigned>(power)) << (-exponent * power);
    return Nearest(top, bottom * unit, root);
  }

  inline static const Integer kDecimals = 100'000'000;
  int exponent;
  std::vector<Integer> values;
};

// Every figure from its definition, with deviations from n times the mean.
void ExpectNearestFigures(const ExactSample<>& sample, const Integers& x) {
  const Integer n = x.values.size();
  Integer sum = 0;
  Integer squares = 0;
  for (const Integer& value : x.values) {
    sum += value;
    squares += value * value;
  }
  Integer second = 0;
  Integer third = 0;
  Integer fourth = 0;
  for (const Integer& value : x.values) {
    const Integer deviation = n * value - sum;
    const Integer square = deviation * deviation;
    second += square;
    third += square * deviation;
    fourth += square * square;
  }
  ASSERT_EQ(sample.Sum(), x.Rounded(sum, 1, 1));
  ASSERT_EQ(sample.SumOfSquares(), x.Rounded(squares, 1, 2));
  ASSERT_EQ(sample.Mean(), x.Rounded(sum, n, 1));
  ASSERT_EQ(sample.PopulationVariance(), x.Rounded(second, n * n * n, 2));
  ASSERT_EQ(sample.PopulationStdDev(), x.Rounded(second, n * n * n, 2, true));
  ASSERT_EQ(*sample.Minimum(), x.Rounded(*std::ranges::min_element(x.values), 1, 1));
  ASSERT_EQ(*sample.Maximum(), x.Rounded(*std::ranges::max_element(x.values), 1, 1));
  if (n < 2) return;
  const Integer divisor = n * n * (n - 1);
  ASSERT_EQ(sample.SampleVariance(), x.Rounded(second, divisor, 2));
  ASSERT_EQ(sample.SampleStdDev(), x.Rounded(second, divisor, 2, true));
  if (n < 3 || second == 0) return;
  // n D / ((n - 1) (n - 2) s^3) and D / (n s^3).
  const auto skewness = [&](const Integer& top, const Integer& bottom, const Integer& v) {
    const Integer root = top * third;
    const Extended nearest = Nearest(root * root * v * v * v,
                                     bottom * bottom * pow(n, 6) * second * second * second, true);
    return third < 0 ? -nearest : nearest;
  };
  ASSERT_EQ(sample.SampleSkewness(), skewness(n, (n - 1) * (n - 2), divisor));
  ASSERT_EQ(sample.PopulationSkewness(), skewness(1, n, n * n * n));
  if (n < 4) return;
  // n (n + 1) Q / (s^4 (n - 1) (n - 2) (n - 3)) - 3 (n - 1)^2 / ((n - 2) (n - 3)) and
  // Q / (n s^4) - 3.
  const Integer square = second * second;
  const Integer three = 3 * (n - 1) * (n - 1);
  const Integer pairs = (n - 2) * (n - 3);
  ASSERT_EQ(sample.SampleKurtosis(),
            Nearest((n + 1) * n * (n - 1) * fourth - three * square, pairs * square));
  ASSERT_EQ(sample.PopulationKurtosis(), Nearest(n * fourth - 3 * square, square));
}

TEST(ExactSample, GivesTheNearestNumbers) {
  const int cases = testing::FromEnvironment("QORVEX_EXACT_CASES", 20'000);
  Engine engine(18);
  for (int i = 0; i < cases; ++i) {
    // Few over all exponents, where long integers are slow.
    constexpr Kind kUsual[] = {Kind::kClose, Kind::kMoney, Kind::kMixed};
    const Kind kind = i < 10 ? Kind::kScattered : i < 20 ? Kind::kTiny : kUsual[i % 3];
    ExactSample<> sample;
    Integers values(i < 20 ? -16'600 : -200);
    const std::size_t n = 1 + engine() % 7;
    for (std::size_t k = 0; k < n; ++k) {
      if (engine() % 4 == 0) {
        const auto decimals = static_cast<int>(engine() % 9);
        const auto integer = static_cast<std::int64_t>(engine() >> (8 * (engine() % 7)));
        sample.AddScaled({integer}, decimals);
        values.AddScaled(integer, decimals);
      } else {
        Extended x = testing::RandomValue<Extended>(engine, kind);
        if (i % 7 == 0) x = std::rint(std::fmod(x, 50.0L));  // with ties and equal values
        sample.Add(x);
        values.Add(x);
      }
    }
    SCOPED_TRACE(i);
    ExpectNearestFigures(sample, values);
    if (HasFatalFailure()) return;
    ASSERT_TRUE(ExactSample<>::FromBytes(sample.ToBytes()) == sample);
  }
}

template <class T>
class ExactSampleOf : public ::testing::Test {};
TYPED_TEST_SUITE(ExactSampleOf, AllTypes);

TYPED_TEST(ExactSampleOf, HasTheSameBitsInAnyOrderAndSplit) {
  Engine engine(4);
  const auto check = [&](TQorVector<TypeParam> values) {
    ExactSample<> whole;
    whole.Add(values);
    ExactSample<> one_by_one;
    for (const TypeParam x : values) one_by_one.Add(x);
    ASSERT_EQ(whole.ToBytes(), one_by_one.ToBytes());

    std::shuffle(values.begin(), values.end(), engine);
    ExactSample<> merged;
    const std::span<const TypeParam> all(values);
    for (std::size_t begin = 0; begin < all.size();) {
      ExactSample<> part;
      const std::size_t count = std::min(all.size() - begin, std::size_t{engine() % 5'000});
      part.Add(all.subspan(begin, count));
      begin += count;
      merged.Merge(part);
    }
    ASSERT_EQ(whole.ToBytes(), merged.ToBytes());

    // Two power sums are the first two of four.
    ExactSample<2> two;
    two.Add(values);
    ASSERT_EQ(two.Count(), whole.Count());
    ASSERT_TRUE(Same(two.SampleStdDev(), whole.SampleStdDev()));
    ASSERT_TRUE(Same(two.Mean(), whole.Mean()));

    // What remains is what was not removed, except for the extremes.
    ExactSample<> first;
    first.Add(all.first(1'000));
    ExactSample<> rest = whole;
    rest.Remove(all.subspan(1'000));
    ASSERT_EQ(first.Count(), rest.Count());
    ASSERT_TRUE(Same(first.SampleKurtosis(), rest.SampleKurtosis()));
    ASSERT_TRUE(Same(first.Mean(), rest.Mean()));
    ASSERT_TRUE(!rest.Minimum() || Same(*first.Minimum(), *rest.Minimum()));
  };
  if constexpr (FloatElement<TypeParam>) {
    for (const Kind kind : testing::kKinds) {
      SCOPED_TRACE(static_cast<int>(kind));
      auto values = testing::RandomValues<TypeParam>(engine, kind, 20'000);
      for (std::size_t i = 0; i < 5'000; ++i) {
        values[i] = testing::RandomValue<TypeParam>(engine, Kind::kMoney);
      }
      check(values);
      values[12'345] = std::numeric_limits<TypeParam>::infinity();
      values[345] = -values[12'345];
      values[5] = std::numeric_limits<TypeParam>::quiet_NaN();
      check(values);
    }
  } else {
    check(testing::RandomVector<TypeParam>(engine, 20'000));
  }
}

TEST(ExactSample, HasTheNearestNumbersOfLongSamples) {
  Engine engine(5);
  for (const Kind kind : {Kind::kMoney, Kind::kMixed, Kind::kZeros}) {
    const auto values = testing::RandomValues<Extended>(engine, kind, 3'000);
    ExactSample<> sample;
    sample.Add(values);
    Integers integers(-200);
    for (const Extended x : values) integers.Add(x);
    ExpectNearestFigures(sample, integers);
  }
}

TEST(ExactSample, IsNearestForTheSetsOfNist) {
  const testing::Table sets("nist/univariate.csv");
  ASSERT_EQ(sets.size(), 9U);
  for (std::size_t row = 0; row < sets.size(); ++row) {
    ExactSample<2> sample;
    sample.Add(testing::ReadNumbers("nist/" + sets.Text(row, "file")));
    EXPECT_EQ(sample.Mean(), sets.Value(row, "mean")) << sets.Text(row, "name");
    EXPECT_EQ(sample.SampleStdDev(), sets.Value(row, "std_dev")) << sets.Text(row, "name");
  }
  // The decimal data have the round figures that NIST certifies; 80 bits hold other numbers.
  ExactSample<2> decimal;
  for (const Extended x : testing::ReadNumbers("nist/NumAcc4.txt")) {
    decimal.AddScaled({std::llrint(10 * x)}, 1);
  }
  EXPECT_EQ(decimal.Mean(), 10'000'000.2L);
  EXPECT_EQ(decimal.SampleStdDev(), 0.1L);
}

TEST(ExactSample, CountsDecimalNumbersAsSuch) {
  ExactSample<> tenths;
  tenths.AddScaled(std::vector<std::int64_t>(1'000'000, 1), 1);
  EXPECT_EQ(tenths.Mean(), 0.1L);
  EXPECT_EQ(tenths.Sum(), 100'000);
  EXPECT_EQ(tenths.PopulationVariance(), 0);
  EXPECT_EQ(*tenths.Minimum(), 0.1L);

  // One amount in every unit.
  ExactSample<> amounts;
  amounts.Add(TQorCurrencyVector{Currency(125'000)});
  amounts.Add(TQorCurrVector{QorCurrency(1'250)});
  amounts.Add(TQorLongCurrVector{QorLongCurrency(12'500'000)});
  amounts.AddScaled({1'250'000'000}, 8);
  amounts.Add(12.5L);
  ExactSample<> plain;
  plain.Add(std::vector<double>(5, 12.5));
  EXPECT_TRUE(amounts == plain);
  EXPECT_EQ(amounts.ToBytes(), plain.ToBytes());
  EXPECT_TRUE(amounts.PowerSum(3) == exact::Rational(78125, 8));

  ExactSample<> column;
  column.Add(TQorCurrencyVector{Currency(125'000), Currency(-7), Currency(31), Currency(31)});
  ExactSample<> scaled;
  scaled.AddScaled({125'000, -7, 31, 31}, Currency::kDecimals);
  EXPECT_TRUE(column == scaled);

  const TQorInt64Vector limits = {std::numeric_limits<std::int64_t>::min(),
                                  std::numeric_limits<std::int64_t>::max(), 0};
  ExactSample<> wide;
  wide.AddScaled(limits, kMaxDecimals);
  EXPECT_EQ(wide.Sum(), 0);
  EXPECT_TRUE(wide.PowerSum(1) == exact::Rational(-1) * exact::Rational::PowerOfTen(-5000));
  wide.RemoveScaled(limits, kMaxDecimals);
  EXPECT_TRUE(wide == ExactSample<>());
  for (const int decimals : {-1, kMaxDecimals + 1}) {
    EXPECT_MATH_ERROR(wide.AddScaled(limits, decimals), rsInvalidValue);
  }
}

TEST(ExactSample, HasFiniteFiguresWhereSumsOverflow) {
  constexpr Extended kMax = std::numeric_limits<Extended>::max();
  ExactSample<> sample;
  sample.Add(TQorFloatVector{kMax, kMax, kMax, kMax / 2});
  EXPECT_EQ(sample.Sum(), kInfinity);
  EXPECT_EQ(sample.SampleVariance(), kInfinity);
  EXPECT_EQ(sample.Mean(), kMax / 8 * 7);
  EXPECT_EQ(sample.SampleStdDev(), kMax / 4);
  EXPECT_EQ(sample.SampleSkewness(), -2);
  EXPECT_EQ(sample.SampleKurtosis(), 4);
  ExactSample<> tiny;
  tiny.Add(TQorFloatVector{0x1p-16445L, 0, 0x1p-16444L, 0});
  EXPECT_EQ(tiny.SampleVariance(), 0);
  EXPECT_EQ(tiny.SampleStdDev(), 0x1p-16445L);
}

TEST(ExactSample, FollowsIeeeForInfinitiesAndNan) {
  struct Case {
    TQorFloatVector values;
    Extended mean, sum_of_squares, minimum, maximum;
  };
  const Case cases[] = {
      {{1, kInfinity, 2, 3}, kInfinity, kInfinity, 1, kInfinity},
      {{1, -kInfinity, 2, 3}, -kInfinity, kInfinity, -kInfinity, 3},
      {{-kInfinity, kInfinity, 1, 1}, kNaN, kInfinity, -kInfinity, kInfinity},
      {{kInfinity, kInfinity, kInfinity, kInfinity}, kInfinity, kInfinity, kInfinity, kInfinity},
      {{1, kNaN, kInfinity, 2}, kNaN, kNaN, kNaN, kNaN}};
  for (const Case& c : cases) {
    ExactSample<> sample;
    sample.Add(c.values);
    EXPECT_TRUE(Same(sample.Mean(), c.mean) && Same(sample.Sum(), c.mean)) << c.values;
    EXPECT_TRUE(Same(sample.SumOfSquares(), c.sum_of_squares)) << c.values;
    EXPECT_TRUE(Same(*sample.Minimum(), c.minimum) && Same(*sample.Maximum(), c.maximum));
    for (const Extended figure :
         {sample.SampleVariance(), sample.PopulationStdDev(), sample.SampleSkewness(),
          sample.PopulationSkewness(), sample.SampleKurtosis(), sample.PopulationKurtosis()}) {
      EXPECT_TRUE(std::isnan(figure)) << c.values;
    }
    EXPECT_ERROR(sample.ExactMean(), EInvalidOp, rsInvalidOp);
    EXPECT_TRUE(ExactSample<>::FromBytes(sample.ToBytes()) == sample);
  }
}

TEST(ExactSample, RefusesFiguresOfTooFewOrEqualValues) {
  ExactSample<> sample;
  EXPECT_EQ(sample.Sum(), 0);
  EXPECT_FALSE(sample.Minimum() || sample.Maximum());
  EXPECT_MATH_ERROR(sample.Mean(), rsVectorIsEmpty);
  EXPECT_MATH_ERROR(sample.PopulationVariance(), rsVectorIsEmpty);
  EXPECT_MATH_ERROR(sample.SampleStdDev(), rsVectorIsEmpty);
  EXPECT_MATH_ERROR(sample.SampleKurtosis(), rsVectorIsEmpty);
  sample.Add(0.1L);
  EXPECT_EQ(sample.PopulationVariance(), 0);
  EXPECT_MATH_ERROR(sample.SampleVariance(), rsVectorG1);
  sample.Add(0.1L);
  EXPECT_EQ(sample.SampleVariance(), 0);
  EXPECT_MATH_ERROR(sample.PopulationSkewness(), rsVectorG2);
  sample.Add(0.1L);
  EXPECT_MATH_ERROR(sample.SampleSkewness(), rsStdDev);
  EXPECT_MATH_ERROR(sample.PopulationKurtosis(), rsVectorG3);
  sample.Add(std::nextafter(0.1L, 1.0L));
  EXPECT_EQ(sample.SampleSkewness(), 2);
  EXPECT_EQ(sample.SampleKurtosis(), 4);
  EXPECT_MATH_ERROR(sample.PowerSum(0), rsInvalidValue);
  EXPECT_MATH_ERROR(sample.PowerSum(5), rsInvalidValue);
}

TEST(ExactSample, KnowsExtremesUntilTheyAreRemoved) {
  ExactSample<> sample;
  sample.Add(TQorLIntVector{3, 1, 4, 1, 5});
  const auto unchanged = sample.ToBytes();
  ExactSample<> larger;
  larger.Add(std::vector<double>(6, 3.0));
  EXPECT_MATH_ERROR(sample.Remove(larger), rsInvalidValue);
  EXPECT_MATH_ERROR(sample.Remove(kNaN), rsInvalidValue);
  EXPECT_EQ(sample.ToBytes(), unchanged);
  sample.Remove(4);
  EXPECT_EQ(*sample.Maximum(), 5);
  sample.Remove(5);
  EXPECT_FALSE(sample.Maximum());
  EXPECT_EQ(*sample.Minimum(), 1);
  sample.Add(9);
  EXPECT_EQ(sample.Maximum(), std::nullopt);
  EXPECT_TRUE(ExactSample<>::FromBytes(sample.ToBytes()) == sample);
  sample.Remove(TQorFloatVector{3, 1, 1, 9});
  EXPECT_TRUE(sample == ExactSample<>());
  sample.Add(7);
  EXPECT_EQ(*sample.Maximum(), 7);
}

TYPED_TEST(ExactSampleOf, KnowsExtremesAtEveryPlace) {
  std::vector<TypeParam> values(70, 50);
  for (std::size_t i = 0; i < values.size(); ++i) {
    values[i] = 3;
    values[values.size() - 1 - i] = 99;
    ExactSample<2> sample;
    sample.Add(values);
    EXPECT_EQ(sample.Minimum(), 3) << i;
    EXPECT_EQ(sample.Maximum(), 99) << i;
    values[i] = values[values.size() - 1 - i] = 50;
  }
}

TEST(ExactSample, IsWhatItWasIfMemoryRunsOut) {
  ExactSample<> sample, decimal;
  sample.Add(TQorFloatVector{1e300L, 1, kInfinity});
  decimal.AddScaled({7, 12}, 3);
  decimal.Add(TQorFloatVector{kInfinity, 1e300L});
  using Change = void (ExactSample<>::*)(const ExactSample<>&);
  for (const Change change : {Change{&ExactSample<>::Merge}, Change{&ExactSample<>::Remove}}) {
    const ExactSample<> before = sample;
    testing::ExpectFailuresChangeNothing([&] { (sample.*change)(decimal); },
                                         [&] { return sample == before; });
  }
  EXPECT_EQ(sample.Count(), 3U);
}

TEST(ExactSample, ReadsOnlyItsOwnBytes) {
  ExactSample<> sample;
  sample.AddScaled({0, 7, 12}, 2);
  sample.Add(kInfinity);
  const Bytes bytes = sample.ToBytes();
  EXPECT_TRUE(ExactSample<>::FromBytes(bytes) == sample);
  EXPECT_MATH_ERROR(ExactSample<2>::FromBytes(bytes), rsInvalidValue);
  for (std::size_t size = 0; size < bytes.size(); ++size) {
    EXPECT_MATH_ERROR(ExactSample<>::FromBytes(std::span(bytes).first(size)), rsInvalidValue);
  }
  Bytes longer = bytes;
  longer.push_back(std::byte{0});
  EXPECT_MATH_ERROR(ExactSample<>::FromBytes(longer), rsInvalidValue);
  // Whatever single bit is wrong: either it is refused, or it is another sample.
  for (std::size_t bit = 0; bit < 8 * bytes.size(); ++bit) {
    Bytes changed = bytes;
    changed[bit / 8] ^= std::byte{1} << bit % 8;
    try {
      const auto other = ExactSample<>::FromBytes(changed);
      EXPECT_FALSE(other == sample) << bit;
      EXPECT_EQ(other.ToBytes(), changed) << bit;
    } catch (const EMathError& error) {
      EXPECT_EQ(error.message_id(), rsInvalidValue);
    }
  }
  // {1, 2} with the sum of squares 4 would have a negative variance.
  const auto bytes_of = [](TQorFloatVector values) {
    ExactSample<2> small;
    small.Add(values);
    return small.ToBytes();
  };
  Bytes impossible = bytes_of({1, 2});
  EXPECT_EQ(impossible[impossible.size() - 8], std::byte{5});
  impossible[impossible.size() - 8] = std::byte{4};
  EXPECT_MATH_ERROR(ExactSample<2>::FromBytes(impossible), rsInvalidValue);
  // The mean or the variance excludes these extremes.
  struct {
    TQorFloatVector values;
    Extended minimum, maximum;
  } const cases[] = {{{1, 2}, 5, 6}, {{1, 2}, 0, 1}, {{3, 3}, 2, 3}, {{3, 3}, 3, 4}};
  for (const auto& [values, minimum, maximum] : cases) {
    constexpr std::size_t kAt = 4 + 1 + 1 + 2 + 4 * 8 + 1;
    impossible = bytes_of(values);
    std::copy_n(bytes_of({minimum, maximum}).begin() + kAt, 20, impossible.begin() + kAt);
    EXPECT_MATH_ERROR(ExactSample<2>::FromBytes(impossible), rsInvalidValue);
  }
}

}  // namespace qorvex
