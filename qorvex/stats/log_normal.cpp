#include "qorvex/stats/log_normal.h"

#include <cmath>

#include "qorvex/base/checked_math.h"
#include "qorvex/base/elementary/functions.h"
#include "qorvex/stats/detail/between.h"
#include "qorvex/stats/detail/checks.h"
#include "qorvex/stats/detail/density_table.h"
#include "qorvex/stats/detail/normal_parts.h"
#include "qorvex/stats/normal.h"

namespace qorvex::inline QorvexStatistics {

namespace {

void RequirePositive(Extended x) {
  if (!FloatIsPositive(x)) RaiseMathError(rsValueGZero);
}

class LogNormalDensity {
 public:
  LogNormalDensity(Extended mean, Extended std_dev)
      : mean_(mean), std_dev_(std_dev), twice_variance_(detail::TwiceVariance(std_dev)) {
    detail::RequireStdDev(std_dev);
  }
  Extended operator()(Extended x) const {
    RequirePositive(x);
    return detail::Bell(Log(x), mean_, twice_variance_) / (detail::kRootTwoPi * x * std_dev_);
  }

 private:
  Extended mean_;
  Extended std_dev_;
  Extended twice_variance_;
};

}  // namespace

Extended LogNormalPDF(Extended x, Extended mean, Extended std_dev) {
  return LogNormalDensity(mean, std_dev)(x);
}

void LogNormalPDFValues(Extended mean, Extended std_dev, Extended x_low, Extended x_high,
                        std::int32_t n, TQorFloatVector& x_values, TQorFloatVector& y_values) {
  detail::FillDensityTable({x_low, x_high, n, x_values, y_values}, [=] {
    const LogNormalDensity density(mean, std_dev);
    // Checked even if n is negative and there are no points.
    RequirePositive(x_low);
    return density;
  });
}

Extended LogNormalLess(Extended mean, Extended std_dev, Extended x) {
  detail::RequireStdDev(std_dev);
  return NormalDistLess(mean, std_dev, CheckedLn(x));
}

Extended LogNormalGreater(Extended mean, Extended std_dev, Extended x) {
  return 1 - LogNormalLess(mean, std_dev, x);
}

Extended LogNormalBetween(Extended mean, Extended std_dev, Extended x1, Extended x2) {
  return detail::ProbabilityBetween(x1, x2,
                                    [=](Extended x) { return LogNormalLess(mean, std_dev, x); });
}

Extended InvLogNormalLess(Extended mean, Extended std_dev, Extended p) {
  return CheckedExp(InvNormalDistLess(mean, std_dev, p));
}

Extended InvLogNormalGreater(Extended mean, Extended std_dev, Extended p) {
  return CheckedExp(InvNormalDistGreater(mean, std_dev, p));
}

}  // namespace qorvex::inline QorvexStatistics
