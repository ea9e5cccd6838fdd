#include <boost/multiprecision/cpp_int.hpp>
#include <cmath>
#include <cstring>
#include <random>
#include <utility>

#include "qorvex/base/errors.h"
#include "qorvex/base/exact/rational.h"
#include "support/test.h"

namespace qorvex::exact {

namespace {

using boost::multiprecision::cpp_int;
using Engine = std::mt19937_64;

// Limbs of zeros, ones and random bits, which reach the rare branches of a division.
BigInteger RandomInteger(Engine& engine, std::size_t most_limbs) {
  std::vector<std::uint64_t> limbs(engine() % (most_limbs + 1));
  for (std::uint64_t& limb : limbs) {
    const std::uint64_t kind = engine() % 8;
    limb = kind == 0 ? 0 : kind == 1 ? ~std::uint64_t{0} : engine() >> engine() % 64;
  }
  return BigInteger::FromLimbs(limbs, engine() % 2 != 0);
}

cpp_int Judge(const BigInteger& value) {
  cpp_int result;
  const auto limbs = value.Magnitude();
  for (std::size_t i = limbs.size(); i-- > 0;) result = (result << 64) + limbs[i];
  return value.Sign() < 0 ? -result : result;
}

// A number with a random part of its mantissa and an exponent from -spread to spread.
Extended RandomNumber(Engine& engine, int spread) {
  const auto mantissa = static_cast<Extended>(engine() >> engine() % 64);
  const int exponent = static_cast<int>(engine() % static_cast<unsigned>(2 * spread + 1)) - spread;
  return std::ldexp(engine() % 2 != 0 ? mantissa : -mantissa, exponent - 64);
}

// value * 2^16500, an integer for every extended number.
cpp_int Scaled(Extended value) {
  if (value == 0) return 0;
  int exponent = 0;
  const Extended fraction = std::frexp(value, &exponent);
  const auto mantissa = static_cast<std::uint64_t>(std::ldexp(std::fabs(fraction), 64));
  const cpp_int scaled = exponent + 16436 >= 0 ? cpp_int(mantissa) << (exponent + 16436)
                                               : cpp_int(mantissa) >> (-exponent - 16436);
  return value < 0 ? -scaled : scaled;
}

// Whether the absolute value is nearer to `result` than to its neighbours, or as near and even:
// compare(x) gives the order of the exact value and x * 2^-16501.
template <class Compare>
void ExpectNearest(Extended result, Compare compare) {
  std::uint64_t mantissa = 0;
  std::memcpy(&mantissa, &result, sizeof mantissa);
  const bool even = mantissa % 2 == 0;
  const cpp_int below = Scaled(std::nextafter(result, -kInfinity)) + Scaled(result);
  const cpp_int above = Scaled(std::nextafter(result, kInfinity)) + Scaled(result);
  EXPECT_GE(compare(below), even ? 0 : 1) << result;
  EXPECT_LE(compare(above), even ? 0 : -1) << result;
}

}  // namespace

TEST(BigInteger, AgreesWithAnIndependentImplementation) {
  Engine engine(1);
  for (int i = 0; i < 20000; ++i) {
    const BigInteger a = RandomInteger(engine, i % 50 == 0 ? 40 : 6);
    const BigInteger b = RandomInteger(engine, i % 70 == 0 ? 40 : 4);
    const std::size_t count = engine() % 200;
    const cpp_int x = Judge(a);
    const cpp_int y = Judge(b);
    ASSERT_EQ(Judge(a + b), x + y);
    ASSERT_EQ(Judge(a - b), x - y);
    ASSERT_EQ(Judge(a * b), x * y);
    ASSERT_EQ(Judge(a << count), x << count);
    ASSERT_EQ(Judge(a >> count), x < 0 ? cpp_int(-(-x >> count)) : cpp_int(x >> count));
    ASSERT_EQ(a < b, x < y);
    ASSERT_EQ(a == b, x == y);
    if (b.Sign() != 0) {
      const Division division = Divide(a, b);
      ASSERT_EQ(Judge(division.quotient), x / y);
      ASSERT_EQ(Judge(division.remainder), x % y);
    }
    if (a.Sign() >= 0) {
      ASSERT_EQ(Judge(SquareRoot(a)), sqrt(x));
    }
    if (a.Sign() != 0) {
      ASSERT_EQ(a.BitLength(), msb(abs(x)) + 1);
      ASSERT_EQ(a.TrailingZeros(), lsb(abs(x)));
    }
  }
}

TEST(BigInteger, SurvivesAliasingAndMoves) {
  BigInteger value = BigInteger::PowerOfTen(200);
  const cpp_int judge = pow(cpp_int(10), 200);
  value += value;
  value *= value;
  ASSERT_EQ(Judge(value), 4 * judge * judge);
  BigInteger moved = std::move(value);
  value = moved;
  moved -= moved;
  ASSERT_EQ(moved.Sign(), 0);
  ASSERT_EQ(Judge(value), 4 * judge * judge);
  ASSERT_EQ(Judge(BigInteger(std::numeric_limits<std::int64_t>::min())),
            cpp_int(std::numeric_limits<std::int64_t>::min()));
  EXPECT_ERROR(Divide(value, 0), EZeroDivide, rsZeroDivide);
  EXPECT_ERROR(SquareRoot(-1), EInvalidOp, rsInvalidOp);
}

TEST(Dyadic, IsExactAndCanonical) {
  Engine engine(2);
  for (int i = 0; i < 5000; ++i) {
    const Extended a = RandomNumber(engine, i % 20 == 0 ? 16000 : 70);
    const Extended b = RandomNumber(engine, i % 30 == 0 ? 16000 : 70);
    ASSERT_EQ(Dyadic(a).Round(), a);
    ASSERT_EQ(Dyadic(a) <=> Dyadic(b), a < b   ? std::strong_ordering::less
                                       : a > b ? std::strong_ordering::greater
                                               : std::strong_ordering::equal);
    // One operation on two extended numbers is correctly rounded by the processor.
    ASSERT_EQ((Dyadic(a) + Dyadic(b)).Round(), a + b);
    ASSERT_EQ((Dyadic(a) - Dyadic(b)).Round(), a - b);
    ASSERT_EQ((Dyadic(a) * Dyadic(b)).Round(), a * b);
    Dyadic total = a;
    total += b;
    total *= b;
    total -= b;
    ASSERT_EQ(total, (Dyadic(a) + Dyadic(b)) * b - b);
    if (b == 0) continue;
    ASSERT_EQ(Rational(a, b).Round(), a / b);
    ASSERT_EQ(Rational(std::fabs(b)).RoundRoot(), std::sqrt(std::fabs(b)));
  }
  const Extended least = std::numeric_limits<Extended>::denorm_min();
  EXPECT_EQ(Dyadic(least).Exponent(), -16445);
  EXPECT_EQ(Dyadic(12), Dyadic(BigInteger(3), 2));
  EXPECT_EQ(Dyadic(12).Shifted(-3), Dyadic(1.5L));
  EXPECT_EQ(Dyadic(0b110111).Truncated(3), Dyadic(0b110000));
  EXPECT_EQ(Dyadic(1).Shifted(16384).Round(), kInfinity);
  EXPECT_EQ(Dyadic(-1).Shifted(16384).Round(), -kInfinity);
  EXPECT_EQ((Dyadic(1).Shifted(16384) - Dyadic(1).Shifted(16319)).Round(), kInfinity);
  EXPECT_EQ((Dyadic(1).Shifted(16384) - Dyadic(3).Shifted(16318)).Round(),
            std::numeric_limits<Extended>::max());
  EXPECT_EQ(Dyadic(least).Shifted(-1).Round(), 0);
  EXPECT_EQ((Dyadic(least) + Dyadic(least).Shifted(-1)).Round(), 2 * least);
  EXPECT_EQ(Dyadic(3).Shifted(-16447).Round(), least);
  EXPECT_ERROR(Dyadic{kInfinity}, EInvalidOp, rsInvalidOp);
  EXPECT_ERROR(Dyadic{kNaN}, EInvalidOp, rsInvalidOp);
}

// Sums of three products over sums of two: more bits than any built-in operation keeps.
TEST(Rational, RoundsQuotientsAndRootsOnce) {
  Engine engine(3);
  for (int i = 0; i < 3000; ++i) {
    const int spread = i % 10 == 0 ? 8100 : 60;
    const auto number = [&] { return RandomNumber(engine, spread); };
    const Extended x[] = {number(), number(), number(), number(), number(), number()};
    const Dyadic numerator = Dyadic(x[0]) * x[1] + Dyadic(x[2]) * x[3] + Dyadic(x[4]);
    const Dyadic denominator = Dyadic(x[5]) + x[3];
    if (numerator.Sign() == 0 || denominator.Sign() == 0) continue;
    const cpp_int n = Scaled(x[0]) * Scaled(x[1]) + Scaled(x[2]) * Scaled(x[3]) +
                      (Scaled(x[4]) << 16500);        // * 2^-33000
    const cpp_int d = (Scaled(x[5]) + Scaled(x[3]));  // * 2^-16500
    const Rational quotient(numerator, denominator);
    const Extended rounded = quotient.Round();
    if (std::isfinite(rounded) && std::fabs(rounded) < std::numeric_limits<Extended>::max()) {
      // n 2^-16500 / d against half 2^-16501
      ExpectNearest(rounded, [&](const cpp_int& half) {
        return (d < 0 ? -1 : 1) * cpp_int(2 * n).compare(half * d);
      });
    }
    const Rational square = quotient.Sign() < 0 ? -quotient : quotient;
    const Extended root = square.RoundRoot();
    // |n| 2^-16500 / |d| against half^2 2^-33002
    ExpectNearest(root, [&](const cpp_int& half) {
      return cpp_int(abs(n) << 16502).compare(half * half * abs(d));
    });
    ASSERT_EQ((quotient * Rational(x[1]) - quotient * Rational(x[1])).Sign(), 0);
  }
  const Rational third(1, 3);
  EXPECT_EQ(third + third + third, Rational(1));
  EXPECT_EQ((third - Rational(1, -6)) / Rational(1, 2), Rational(1));
  EXPECT_LT(Rational(-1, 3), Rational(-1, 4));
  EXPECT_EQ(Rational::PowerOfTen(-25) * Rational::PowerOfTen(25), Rational(1));
  EXPECT_EQ(Rational::PowerOfTen(-25).Round(), 1e-25L);
  EXPECT_ERROR((Rational(1, 0)), EZeroDivide, rsZeroDivide);
  EXPECT_ERROR(third / Rational(), EZeroDivide, rsZeroDivide);
  EXPECT_ERROR((-third).RoundRoot(), EInvalidOp, rsInvalidOp);
}

}  // namespace qorvex::exact
