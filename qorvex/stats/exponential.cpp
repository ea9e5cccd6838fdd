#include "qorvex/stats/exponential.h"

#include <cmath>

#include "qorvex/base/checked_math.h"
#include "qorvex/base/elementary/functions.h"
#include "qorvex/base/errors.h"
#include "qorvex/stats/detail/between.h"
#include "qorvex/stats/detail/density_table.h"

namespace qorvex::inline QorvexStatistics {

namespace {

void RequireValid(Extended mean, Extended x) {
  if (!(mean > 0 && x >= 0)) RaiseMathError(rsExpDistInvalid);
}

Extended Density(Extended rate, Extended x) {
  return rate * Exp(-rate * x);
}

}  // namespace

Extended ExponentialPDF(Extended x, Extended mean) {
  RequireValid(mean, x);
  return Density(CheckedDivide(1, mean), x);
}

void ExponentialPDFValues(Extended mean, Extended x_low, Extended x_high, std::int32_t n,
                          TQorFloatVector& x_values, TQorFloatVector& y_values) {
  detail::FillDensityTable({x_low, x_high, n, x_values, y_values}, [=] {
    if (mean <= 0) RaiseMathError(rsExpDistInvalid);
    return [rate = CheckedDivide(1, mean)](Extended x) { return x < 0 ? 0 : Density(rate, x); };
  });
}

Extended ExponentialLess(Extended mean, Extended x) {
  RequireValid(mean, x);
  const Extended rate = CheckedDivide(1, mean);
  return 1 - Exp(-rate * x);
}

Extended ExponentialGreater(Extended mean, Extended x) {
  return 1 - ExponentialLess(mean, x);
}

Extended ExponentialBetween(Extended mean, Extended x1, Extended x2) {
  return detail::ProbabilityBetween(x1, x2, [=](Extended x) { return ExponentialLess(mean, x); });
}

}  // namespace qorvex::inline QorvexStatistics
