#include "apps/common/pair_fit.h"

#include <algorithm>
#include <cmath>

#include "qorvex/base/errors.h"
#include "qorvex/stats/QorvexPairStats.h"
#include "qorvex/stats/dispersion.h"
#include "qorvex/stats/location.h"
#include "qorvex/vector/aggregates.h"

namespace qorvex::apps {

namespace {

// The number of different values, counted up to enough.
std::size_t DifferentValues(const TQorFloatVector& values, std::size_t enough) {
  std::vector<Extended> different;
  for (const Extended value : values) {
    if (different.size() == enough) break;
    if (std::ranges::find(different, value) == different.end()) different.push_back(value);
  }
  return different.size();
}

// With fewer different x, the figures would consist of rounding errors.
void RequireDifferentX(const TQorFloatVector& x, std::size_t degree) {
  const std::size_t needed = degree + 1;
  if (DifferentValues(x, needed) == needed) return;
  throw PairFitError(PairFitFault::kTooFewDifferentX, needed == 2
                                                          ? "a line needs two different x"
                                                          : "a parabola needs three different x");
}

[[noreturn]] void RefuseTooLarge() {
  throw PairFitError(
      PairFitFault::kTooLarge,
      "the values are too large; their sums are beyond the range of extended precision");
}

// A column scaled to a range of 1 to 2 about zero: values / 2^exponent - offset. The offset is
// whole, so this is exact unless the column mixes large numbers with far smaller ones.
struct ScaledColumn {
  TQorFloatVector values;
  int exponent;
  Extended offset;
};

ScaledColumn Scaled(const TQorFloatVector& column, Extended mean) {
  const auto [smallest, largest] = std::ranges::minmax(column);
  const Extended range = largest - smallest;
  if (!std::isfinite(range) || !std::isfinite(mean)) RefuseTooLarge();
  const int exponent = range > 0 ? std::ilogb(range) : 0;
  ScaledColumn scaled{
      .values = TQorFloatVector::ForOverwrite(column.size()),
      .exponent = exponent,
      .offset = range > 0 ? std::nearbyint(std::scalbn(mean, -exponent)) : smallest};
  for (std::size_t i = 0; i < column.size(); ++i)
    scaled.values[i] = std::scalbn(column[i], -exponent) - scaled.offset;
  return scaled;
}

std::vector<Extended> ScaledCoefficients(const ScaledColumn& x, const ScaledColumn& y,
                                         std::size_t degree) {
  std::vector<Extended> c(degree + 1);
  if (degree == 1) {
    GetRegressionLine(x.values, y.values, c[0], c[1]);
    return c;
  }
  try {
    GetQuadraticCurve(x.values, y.values, c[0], c[1], c[2]);
  } catch (const EMathError&) {
    throw PairFitError(PairFitFault::kNearlyTwoPlaces,
                       "the x lie too close to only two places for a parabola");
  }
  return c;
}

// The coefficients of the polynomial in the original units.
std::vector<Extended> Coefficients(std::vector<Extended> c, const ScaledColumn& x,
                                   const ScaledColumn& y) {
  for (std::size_t i = 0; i + 1 < c.size(); ++i) {
    for (std::size_t j = c.size() - 1; j-- > i;) c[j] -= x.offset * c[j + 1];
  }
  c[0] += y.offset;
  int exponent = y.exponent;
  for (Extended& coefficient : c) {
    coefficient = std::scalbn(coefficient, exponent);
    exponent -= x.exponent;
  }
  return c;
}

Extended SumOfSquaredErrors(const TQorFloatVector& x, const TQorFloatVector& y,
                            const std::vector<Extended>& c) {
  if (c.size() == 2) return GetSSE(x, y, c[0], c[1]);
  Extended sum = 0;
  for (std::size_t i = 0; i < x.size(); ++i) {
    const Extended residual = (c[2] * x[i] + c[1]) * x[i] + c[0] - y[i];
    sum += residual * residual;
  }
  return sum;
}

Extended Covariance(const TQorFloatVector& x, const TQorFloatVector& y) {
  const Extended mean_x = QorMean(x);
  const Extended mean_y = QorMean(y);
  Extended sum = 0;
  for (std::size_t i = 0; i < x.size(); ++i) sum += (x[i] - mean_x) * (y[i] - mean_y);
  return sum / static_cast<Extended>(x.size() - 1);
}

bool AllFinite(const PairFit& fit) {
  const auto finite = [](Extended figure) { return std::isfinite(figure); };
  return std::ranges::all_of(fit.coefficients, finite) && finite(fit.sse) &&
         finite(fit.covariance) && finite(fit.std_dev_x) && finite(fit.std_dev_y) &&
         finite(fit.correlation.value_or(0)) && finite(fit.determination.value_or(0));
}

}  // namespace

// Everything except the means is computed from the scaled columns, so that neither a large offset
// nor the magnitude of the values costs digits.
PairFit FitPairs(const TQorFloatVector& x_values, const TQorFloatVector& y_values,
                 std::size_t degree) {
  RequireDifferentX(x_values, degree);
  const Extended mean_x = QorMean(x_values);
  const Extended mean_y = QorMean(y_values);
  const ScaledColumn x = Scaled(x_values, mean_x);
  const ScaledColumn y = Scaled(y_values, mean_y);
  const std::vector<Extended> c = ScaledCoefficients(x, y, degree);
  const Extended sse = SumOfSquaredErrors(x.values, y.values, c);
  PairFit fit{.mean_x = mean_x,
              .mean_y = mean_y,
              .std_dev_x = std::scalbn(SampleStdDev(x.values), x.exponent),
              .std_dev_y = std::scalbn(SampleStdDev(y.values), y.exponent),
              .covariance = std::scalbn(Covariance(x.values, y.values), x.exponent + y.exponent),
              .coefficients = Coefficients(c, x, y),
              .sse = std::scalbn(sse, 2 * y.exponent),
              .correlation = {},
              .determination = {}};
  if (DifferentValues(y.values, 2) == 2) {
    // Rounding errors can push it slightly above 1.
    const Extended correlation = std::clamp<Extended>(CoeffCorrelation(x.values, y.values), -1, 1);
    fit.correlation = correlation;
    fit.determination = degree == 1 ? correlation * correlation
                                    : 1 - sse / SumSqDiffVector(y.values, QorMean(y.values));
  }
  if (!AllFinite(fit)) RefuseTooLarge();
  return fit;
}

}  // namespace qorvex::apps
