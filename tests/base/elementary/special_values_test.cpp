#include <array>
#include <cfenv>
#include <cmath>
#include <gtest/gtest.h>
#include <string>
#include <utility>
#include <vector>

#include "base/elementary/hard_cases.h"
#include "qorvex/base/elementary/detail/binary80.h"
#include "qorvex/base/elementary/functions.h"
#include "support/test.h"

namespace qorvex::testing {

namespace {

constexpr Extended kInf = HUGE_VALL;
const Extended kNan = elementary::FromBits(0xc000000000000000, 0x7fff);
constexpr Extended kLargest = 0x1.fffffffffffffffep16383L;
constexpr Extended kSmallest = 0x1p-16445L;

// The precision and the rounding mode of the x87 unit, as long as the object lives.
class ControlWord {
 public:
  explicit ControlWord(std::uint16_t bits) {
    asm volatile("fnstcw %0" : "=m"(old_));
    const auto word = static_cast<std::uint16_t>((old_ & 0xf0ff) | bits);
    asm volatile("fldcw %0" : : "m"(word));
  }
  ~ControlWord() { asm volatile("fldcw %0" : : "m"(old_)); }
  ControlWord(const ControlWord&) = delete;
  ControlWord& operator=(const ControlWord&) = delete;

 private:
  std::uint16_t old_ = 0;
};

}  // namespace

TEST(ElementarySpecialValues, FollowTheStandard) {
  const Extended half_pi = 0x1.921fb54442d1846ap0L;
  struct Row {
    const char* name;
    // At -infinity, -0, +0, +infinity.
    std::array<Extended, 4> values;
  };
  const Row rows[] = {
      {"Exp", {0, 1, 1, kInf}},
      {"Expm1", {-1, -0.0L, 0, kInf}},
      {"Exp2", {0, 1, 1, kInf}},
      {"Log", {kNan, -kInf, -kInf, kInf}},
      {"Log1p", {kNan, -0.0L, 0, kInf}},
      {"Log2", {kNan, -kInf, -kInf, kInf}},
      {"Log10", {kNan, -kInf, -kInf, kInf}},
      {"Sin", {kNan, -0.0L, 0, kNan}},
      {"Cos", {kNan, 1, 1, kNan}},
      {"Tan", {kNan, -0.0L, 0, kNan}},
      {"ArcCos", {kNan, half_pi, half_pi, kNan}},
      {"ArcSin", {kNan, -0.0L, 0, kNan}},
      {"ArcTan", {-half_pi, -0.0L, 0, half_pi}},
      {"Cbrt", {-kInf, -0.0L, 0, kInf}},
      {"Erf", {-1, -0.0L, 0, 1}},
      {"Erfc", {2, 1, 1, 0}},
  };
  const Extended arguments[] = {-kInf, -0.0L, 0, kInf};
  for (const Row& row : rows) {
    for (std::size_t i = 0; i < 4; ++i) {
      const Extended result = FunctionNamed(row.name).ours({arguments[i]});
      EXPECT_TRUE(IsSameNumber(result, row.values[i]))
          << row.name << '(' << arguments[i] << ") is " << result;
    }
  }
}

TEST(ElementarySpecialValues, OfPowersFollowTheStandard) {
  const struct {
    Extended x, y, value;
  } rows[] = {
      {kNan, 0, 1},         {kInf, -0.0L, 1},
      {1, kNan, 1},         {1, -kInf, 1},
      {-1, kInf, 1},        {-1, -kInf, 1},
      {0.5L, -kInf, kInf},  {-2, -kInf, 0},
      {-0.5L, kInf, 0},     {2, kInf, kInf},
      {-kInf, -3, -0.0L},   {-kInf, -2, 0},
      {-kInf, 3, -kInf},    {-kInf, 2.5L, kInf},
      {kInf, -1, 0},        {kInf, 0.1L, kInf},
      {-0.0L, 3, -0.0L},    {-0.0L, 2, 0},
      {-0.0L, -3, -kInf},   {-0.0L, -2, kInf},
      {0, -0.5L, kInf},     {-0.0L, -0.5L, kInf},
      {-0.0L, -kInf, kInf}, {-8, 1 / 3.0L, kNan},
      {-2, 0.5L, kNan},     {kNan, 1, kNan},
      {2, kNan, kNan},      {-2, 0x1p63L + 1, -kInf},
      {-3, 3, -27},         {-2, -16445, -kSmallest},
      {-2, 16384, kInf},    {-2, 16383, -0x1p16383L},
  };
  for (const auto& [x, y, value] : rows) {
    EXPECT_TRUE(IsSameNumber(Pow(x, y), value)) << x << '^' << y << " is " << Pow(x, y);
  }
}

// Every special argument, and every pair of them for the power, against MPFR, which follows the
// standard, too.
TEST(ElementarySpecialValues, AgreeWithMpfr) {
  const Extended below_one = std::nextafter(1.0L, 0.0L);
  const Extended above_one = std::nextafter(1.0L, 2.0L);
  const Extended magnitudes[] = {0,
                                 kSmallest,
                                 2 * kSmallest,
                                 0x1.fffffffffffffffcp-16383L,
                                 0x1p-16382L,
                                 0x1p-64L,
                                 0.5L,
                                 below_one,
                                 1,
                                 above_one,
                                 2,
                                 3,
                                 4.5L,
                                 0x1p62L,
                                 0x1p63L + 1,
                                 0x1p64L - 1,
                                 0x1p64L,
                                 kLargest,
                                 kInf,
                                 kNan};
  std::vector<Extended> numbers;
  for (const Extended x : magnitudes) numbers.insert(numbers.end(), {x, -x});
  Reference reference;
  for (const ElementaryFunction& function : ElementaryFunctions()) {
    if (!function.is_nearest) continue;
    for (const Extended x : numbers) {
      for (const Extended y : numbers) {
        const Extended result = function.ours({x, y});
        ASSERT_TRUE(IsSameNumber(result, reference.Nearest(function, {x, y})))
            << function.name << '(' << Text({x, y}) << ") is " << result;
        if (&function != &FunctionNamed("Pow")) break;
      }
    }
  }
}

// Significands without their top bit are no numbers, except where the exponent is 0; there a top
// bit has the weight that it has in the next binade.
TEST(ElementarySpecialValues, OfPatternsThatArithmeticDoesNotProduce) {
  using elementary::FromBits;
  const Extended patterns[] = {FromBits(0, 0x7fff), FromBits(1, 0x7fff), FromBits(1, 0x3fff),
                               FromBits(0, 0xbfff)};
  const Extended pseudo_denormal = FromBits(elementary::kTopBit | 5, 0);
  const Extended same_number = FromBits(elementary::kTopBit | 5, 1);
  for (const ElementaryFunction& function : ElementaryFunctions()) {
    if (!function.is_nearest) continue;
    for (const Extended x : patterns)
      EXPECT_TRUE(std::isnan(function.ours({x, 2}))) << function.name;
    EXPECT_TRUE(IsSameNumber(function.ours({pseudo_denormal, 2}), function.ours({same_number, 2})))
        << function.name;
  }
}

// Random arguments, and the hard cases, which need the second stages.
TEST(ElementaryFunctions, DoNotDependOnTheControlWord) {
  std::vector<std::pair<const ElementaryFunction*, Arguments>> calls;
  Engine engine(7);
  for (const ElementaryFunction& function : ElementaryFunctions()) {
    if (!function.is_nearest) continue;
    for (const ArgumentRegion& region : function.regions)
      for (int i = 0; i < 20; ++i) calls.emplace_back(&function, region.draw(engine));
  }
  const Table table("elementary/hard_cases.csv");
  for (std::size_t row = 0; row < table.size(); ++row) {
    const HardCase hard(table, row);
    calls.emplace_back(&hard.function, hard.arguments);
  }
  for (const auto& [function, arguments] : calls) {
    const Extended expected = function->ours(arguments);
    // 24 bits to nearest and up, 53 to nearest and down, 64 up and to zero.
    for (const std::uint16_t bits :
         std::initializer_list<std::uint16_t>{0x0000, 0x0800, 0x0200, 0x0600, 0x0b00, 0x0f00}) {
      Extended result = 0;
      {
        const ControlWord control(bits);
        result = function->ours(arguments);
      }
      ASSERT_TRUE(IsSameNumber(result, expected))
          << function->name << ' ' << Text(arguments) << " with " << bits;
    }
  }
}

TEST(ElementaryFunctions, OverRangesEqualSingleCalls) {
  for (const ElementaryFunction& function : ElementaryFunctions()) {
    if (!function.is_nearest) continue;
    Engine engine(3);
    std::vector<Extended> x{0, -0.0L, 1, -1, kInf, -kInf, kNan, kSmallest, kLargest};
    for (const ArgumentRegion& region : function.regions)
      for (int i = 0; i < 100; ++i) x.push_back(region.draw(engine).x);
    for (const Extended y : {2.5L, -3.0L}) {
      std::vector<Extended> results = x;
      function.over(results, y, results);
      for (std::size_t i = 0; i < x.size(); ++i) {
        ASSERT_TRUE(IsSameNumber(results[i], function.ours({x[i], y})))
            << function.name << ' ' << Text({x[i], y});
      }
    }
    std::vector<Extended> shorter(x.size() - 1, 7);
    EXPECT_ERROR(function.over(x, 2, shorter), EMathError, rsSameDimensions);
    EXPECT_EQ(shorter, std::vector<Extended>(x.size() - 1, 7));
    function.over(VectorView<Extended>(), 2, {});
  }
}

}  // namespace qorvex::testing
