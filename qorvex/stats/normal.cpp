#include "qorvex/stats/normal.h"

#include <array>
#include <cmath>

#include "qorvex/base/elementary/functions.h"
#include "qorvex/stats/detail/between.h"
#include "qorvex/stats/detail/checks.h"
#include "qorvex/stats/detail/density_table.h"
#include "qorvex/stats/detail/normal_parts.h"

namespace qorvex::inline QorvexStatistics {

namespace {

class NormalDensity {
 public:
  NormalDensity(Extended mean, Extended std_dev)
      : mean_(mean),
        twice_variance_(detail::TwiceVariance(std_dev)),
        area_(detail::kRootTwoPi * std_dev) {
    detail::RequireStdDev(std_dev);
  }
  Extended operator()(Extended x) const { return detail::Bell(x, mean_, twice_variance_) / area_; }

 private:
  Extended mean_;
  Extended twice_variance_;
  Extended area_;
};

// The coefficients of a polynomial of degree 7, lowest degree first.
using Polynomial = std::array<Extended, 8>;

Extended Evaluate(const Polynomial& c, Extended r) {
  return ((((((c[7] * r + c[6]) * r + c[5]) * r + c[4]) * r + c[3]) * r + c[2]) * r + c[1]) * r +
         c[0];
}

// Numerator and denominator of each of the three rational functions of AS 241: near the median, in
// the tails, and in the far tails.
constexpr Polynomial kCentralNumerator = {3.3871328727963666080e0L,  1.3314166789178437745e+2L,
                                          1.9715909503065514427e+3L, 1.3731693765509461125e+4L,
                                          4.5921953931549871457e+4L, 6.7265770927008700853e+4L,
                                          3.3430575583588128105e+4L, 2.5090809287301226727e+3L};
constexpr Polynomial kCentralDenominator = {1,
                                            4.2313330701600911252e+1L,
                                            6.8718700749205790830e+2L,
                                            5.3941960214247511077e+3L,
                                            2.1213794301586595867e+4L,
                                            3.9307895800092710610e+4L,
                                            2.8729085735721942674e+4L,
                                            5.2264952788528545610e+3L};
constexpr Polynomial kTailNumerator = {1.42343711074968357734e0L,  4.63033784615654529590e0L,
                                       5.76949722146069140550e0L,  3.64784832476320460504e0L,
                                       1.27045825245236838258e0L,  2.41780725177450611770e-1L,
                                       2.27238449892691845833e-2L, 7.74545014278341407640e-4L};
constexpr Polynomial kTailDenominator = {1,
                                         2.05319162663775882187e0L,
                                         1.67638483018380384940e0L,
                                         6.89767334985100004550e-1L,
                                         1.48103976427480074590e-1L,
                                         1.51986665636164571966e-2L,
                                         5.47593808499534494600e-4L,
                                         1.05075007164441684324e-9L};
constexpr Polynomial kFarTailNumerator = {6.65790464350110377720e0L,  5.46378491116411436990e0L,
                                          1.78482653991729133580e0L,  2.96560571828504891230e-1L,
                                          2.65321895265761230930e-2L, 1.24266094738807843860e-3L,
                                          2.71155556874348757815e-5L, 2.01033439929228813265e-7L};
constexpr Polynomial kFarTailDenominator = {1,
                                            5.99832206555887937690e-1L,
                                            1.36929880922735805310e-1L,
                                            1.48753612908506148525e-2L,
                                            7.86869131145613259100e-4L,
                                            1.84631831751005468180e-5L,
                                            1.42151175831644588870e-7L,
                                            2.04426310338993978564e-15L};

void RequireInverseArguments(Extended std_dev, Extended p) {
  if (p <= 0 || p >= 1) RaiseMathError(rsValue01);
  if (FloatIsZero(std_dev) || std_dev < 0) RaiseMathError(rsStdDev);
}

}  // namespace

Extended NormalZ(Extended x) {
  return Exp(-x * x / 2) / detail::kRootTwoPi;
}

Extended NormalPDF(Extended x, Extended mean, Extended std_dev) {
  return NormalDensity(mean, std_dev)(x);
}

void NormalPDFValues(Extended mean, Extended std_dev, Extended x_low, Extended x_high,
                     std::int32_t n, TQorFloatVector& x_values, TQorFloatVector& y_values) {
  detail::FillDensityTable({x_low, x_high, n, x_values, y_values},
                           [=] { return NormalDensity(mean, std_dev); });
}

Extended NormalLess(Extended z) {
  if (z < 0) RaiseMathError(rsValueGZero);
  const Extended density = NormalZ(z);
  // The sum has no effect then, and could overflow.
  if (density == 0) return 0.5L;
  const Extended square = z * z;
  Extended numerator = z;
  Extended denominator = 1;
  Extended sum = z;
  Extended previous = 0;
  Extended result = 0;
  for (Extended factor = 3; factor <= 201; factor += 2) {
    numerator *= square;
    denominator *= factor;
    sum += numerator / denominator;
    result = density * sum + 0.5L;
    if (std::fabs(result - previous) <= 1e-18L) break;
    previous = result;
  }
  return result;
}

Extended NormalGreater(Extended z) {
  return 1 - NormalLess(z);
}

Extended NormalDistLess(Extended mean, Extended std_dev, Extended x) {
  detail::RequireStdDev(std_dev);
  const Extended z = (x - mean) / std_dev;
  return z < 0 ? 1 - NormalLess((mean - x) / std_dev) : NormalLess(z);
}

Extended NormalDistGreater(Extended mean, Extended std_dev, Extended x) {
  return 1 - NormalDistLess(mean, std_dev, x);
}

Extended NormalDistBetween(Extended mean, Extended std_dev, Extended x1, Extended x2) {
  return detail::ProbabilityBetween(x1, x2,
                                    [=](Extended x) { return NormalDistLess(mean, std_dev, x); });
}

Extended InvNormalLess(Extended p) {
  detail::RequireProbability(p);
  const Extended q = p - 0.5L;
  if (std::fabs(q) <= 0.425L) {
    const Extended r = 0.180625L - q * q;
    return q * Evaluate(kCentralNumerator, r) / Evaluate(kCentralDenominator, r);
  }
  Extended r = std::sqrt(-Log(q < 0 ? p : 1 - p));
  Extended result = 0;
  if (r <= 5) {
    r -= 1.6L;
    result = Evaluate(kTailNumerator, r) / Evaluate(kTailDenominator, r);
  } else {
    r -= 5;
    result = Evaluate(kFarTailNumerator, r) / Evaluate(kFarTailDenominator, r);
  }
  return q < 0 ? -result : result;
}

Extended InvNormalGreater(Extended p) {
  return InvNormalLess(1 - p);
}

Extended InvNormalDistLess(Extended mean, Extended std_dev, Extended p) {
  RequireInverseArguments(std_dev, p);
  return InvNormalLess(p) * std_dev + mean;
}

Extended InvNormalDistGreater(Extended mean, Extended std_dev, Extended p) {
  RequireInverseArguments(std_dev, p);
  return InvNormalGreater(p) * std_dev + mean;
}

Extended ZAlpha(Extended alpha) {
  return InvNormalDistGreater(0, 1, alpha);
}

}  // namespace qorvex::inline QorvexStatistics
