#include "qorvex/stats/incomplete_gamma.h"

#include "qorvex/base/QorvexGlobals.h"
#include "qorvex/stats/chi_square.h"
#include "qorvex/stats/normal.h"
#include "support/kept_tolerance.h"
#include "support/test.h"

namespace qorvex {

// The steps as they are written down, where they end.
Extended PlainIncompleteGamma(Extended A, Extended X) {
  if (A > 1000) return NormalLess(3 * std::sqrt(A) * (XtoY(X / A, 1 / 3.0L) + 1 / (9 * A) - 1));
  if (X > 1e8L) return 1;
  if (X <= 1 || X < A) {
    Extended term = 1;
    Extended sum = 1;
    Extended c = A;
    do {
      c = c + 1;
      term = term * X / c;
      sum = sum + term;
    } while (term > QorTolerance);
    const Extended arg = A * std::log(X) - X - LnGamma(A + 1) + std::log(sum);
    return arg >= -88 ? std::exp(arg) : 0;
  }
  Extended a = 1 - A;
  Extended b = a + X + 1;
  Extended term = 0;
  Extended pn1 = 1;
  Extended pn2 = X;
  Extended pn3 = X + 1;
  Extended pn4 = X * b;
  Extended gin = pn3 / pn4;
  for (bool converged = false; !converged;) {
    a = a + 1;
    b = b + 2;
    term = term + 1;
    const Extended an = a * term;
    const Extended pn5 = b * pn3 - an * pn1;
    const Extended pn6 = b * pn4 - an * pn2;
    if (std::fabs(pn6) > 0) {
      const Extended rn = pn5 / pn6;
      converged = std::fabs(gin - rn) <= std::min(QorTolerance, QorTolerance * rn);
      if (!converged) gin = rn;
    }
    pn1 = pn3;
    pn2 = pn4;
    pn3 = pn5;
    pn4 = pn6;
    if (std::fabs(pn5) >= 1.7e308L) {
      pn1 /= 1.7e308L;
      pn2 /= 1.7e308L;
      pn3 /= 1.7e308L;
      pn4 /= 1.7e308L;
    }
  }
  const Extended arg = A * std::log(X) - X - LnGamma(A) + std::log(gin);
  return arg >= -88 ? 1 - std::exp(arg) : 1;
}

TEST(IncompleteGamma, HasTheBitsOfThePlainSteps) {
  const testing::KeptTolerance kept;
  for (const Extended tolerance : {1e-15L, 1e-6L, 1e-18L}) {
    QorTolerance = tolerance;
    for (const Extended a : {1e-4940L, 1e-9L, 0.3L, 1.0L, 1.7L, 12.0L, 333.3L, 999.9L, 1000.0L}) {
      for (const Extended x : {1e-4L, 0.0032L, 0.5L, 1.0L, 1.0001L, 0.1L * a, 0.99L * a, a,
                               1.2L * a, 2.5L * a + 3, 1e6L, 1e8L, 2e8L, kInfinity}) {
        if (x <= tolerance) continue;
        EXPECT_EQ(IncompleteGamma(a, x), PlainIncompleteGamma(a, x)) << a << ' ' << x;
      }
    }
    for (const Extended above : {1.0L, 1.01L, 1.2L, 3.0L})
      EXPECT_EQ(IncompleteGamma(2000, 2000 * above), PlainIncompleteGamma(2000, 2000 * above));
    EXPECT_EQ(IncompleteGamma(2, tolerance), 0);
  }
}

TEST(IncompleteGamma, EndsForEveryToleranceAndArgument) {
  const testing::KeptTolerance kept;
  constexpr Extended four_eps = 4 * std::numeric_limits<Extended>::epsilon();
  for (const Extended tolerance : {0.0L, -1.0L, kNaN, -kInfinity, 1e-30L, 1e-4940L, kInfinity}) {
    for (const Extended a : {1e-9L, 0.5L, 3.0L, 999.5L, 1000.0L}) {
      for (const Extended x : {1e-3L, 1.0L, 1.5L, 0.999L * a, 1.001L * a, 50 * a}) {
        QorTolerance = tolerance;
        const Extended p = IncompleteGamma(a, x);
        QorTolerance = four_eps;
        const Extended expected = PlainIncompleteGamma(a, x);
        if (tolerance > 0) {
          // An infinite tolerance takes the first term for the last.
          EXPECT_LE(std::fabs(p - expected), tolerance > 1 ? 2 : 2e-16L) << a << ' ' << x;
        } else {
          EXPECT_EQ(p, expected) << a << ' ' << x << ' ' << tolerance;
        }
      }
    }
  }
  QorTolerance = 1e-15L;
  EXPECT_TRUE(std::isnan(IncompleteGamma(kNaN, 1)) && std::isnan(IncompleteGamma(1, kNaN)));
  EXPECT_TRUE(std::isnan(IncompleteGamma(kInfinity, kInfinity)));
  EXPECT_TRUE(std::isnan(IncompleteGamma2(kNaN, 1)) && std::isnan(IncompleteGamma2(2, kNaN)));
  EXPECT_EQ(IncompleteGamma(2000, kInfinity), 0.5L);
}

TEST(IncompleteGamma, ChecksThePointFirst) {
  EXPECT_MATH_ERROR(IncompleteGamma(0, -1), rsValueGEZero);
  EXPECT_MATH_ERROR(IncompleteGamma(0, 0), rsValueGZero);
  EXPECT_MATH_ERROR(IncompleteGamma(-1, kNaN), rsValueGZero);
  EXPECT_MATH_ERROR(IncompleteGamma(2000, 1900), rsValueGZero);
  EXPECT_MATH_ERROR(IncompleteGamma(kInfinity, 1), rsValueGZero);
  EXPECT_MATH_ERROR(IncompleteGamma2(0, -1), rsValueGEZero);
  EXPECT_MATH_ERROR(IncompleteGamma2(0, 1), rsValueGZero);
  EXPECT_MATH_ERROR(IncompleteGamma2(0.25L, 1), rsDF);
  EXPECT_MATH_ERROR(IncompleteGamma2(1001, 900), rsValueGZero);
  EXPECT_ERROR(IncompleteGamma2(1756, 1), EOverflow, rsOverflow);
  EXPECT_ERROR(IncompleteGamma2(kInfinity, 1), EInvalidOp, rsInvalidOp);
}

TEST(IncompleteGamma2, RoundsTheDegreesOfFreedom) {
  for (const auto& [a, df] : {std::pair(1.3L, 3U), {1.25L, 2U}, {1.75L, 4U}, {2.5L, 5U}})
    EXPECT_EQ(IncompleteGamma2(a, 2), Gamma(a) * ChiSquareGreater(4, df)) << a;
  // The integral of t exp(-t) from 3 on.
  EXPECT_LE(std::fabs(IncompleteGamma2(2, 3) - 4 * std::exp(-3.0L)), 1e-15L);
}

}  // namespace qorvex
