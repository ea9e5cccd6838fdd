// Lines, parabolas and correlations of pairs, compared with GSL in double and plain loops.

#include <cmath>
#include <gsl/gsl_fit.h>
#include <gsl/gsl_statistics_double.h>
#include <map>
#include <vector>

#include "qorvex/stats/QorvexPairStats.h"
#include "support/compare.h"

namespace qorvex::benchmarks {
namespace {

// The elements as doubles, converted once for each buffer.
const double* Doubles(const TQorFloatVector& vector) {
  static std::map<const Extended*, std::vector<double>> converted;
  std::vector<double>& doubles = converted[vector.data()];
  if (doubles.size() != vector.size()) doubles.assign(vector.begin(), vector.end());
  return doubles.data();
}

[[maybe_unused]] const bool registered = [] {
  Compare<Extended>("GetRegressionLine", "ours",
                    [](const TQorFloatVector& x, const TQorFloatVector& y) {
                      Extended a = 0;
                      Extended b = 0;
                      GetRegressionLine(x, y, a, b);
                      return a + b;
                    });
  Compare<Extended>("GetRegressionLine", "loop",
                    [](const TQorFloatVector& x, const TQorFloatVector& y) {
                      Extended sx = 0, sy = 0, sxx = 0, sxy = 0;
                      const auto n = static_cast<Extended>(x.size());
                      for (std::size_t i = 0; i < x.size(); ++i) {
                        sx += x[i];
                        sy += y[i];
                        sxx += x[i] * x[i];
                        sxy += x[i] * y[i];
                      }
                      const Extended b = (sxy - sx * sy / n) / (sxx - sx * sx / n);
                      return (sy - b * sx) / n + b;
                    });
  Compare<Extended>("GetRegressionLine", "GSL double",
                    [](const TQorFloatVector& x, const TQorFloatVector& y) {
                      double a, b, cov00, cov01, cov11, sse;
                      gsl_fit_linear(Doubles(x), 1, Doubles(y), 1, x.size(), &a, &b, &cov00, &cov01,
                                     &cov11, &sse);
                      return a + b;
                    });

  Compare<Extended>("GetQuadraticCurve", "ours",
                    [](const TQorFloatVector& x, const TQorFloatVector& y) {
                      Extended a0 = 0, a1 = 0, a2 = 0;
                      GetQuadraticCurve(x, y, a0, a1, a2);
                      return a0 + a1 + a2;
                    });
  Compare<Extended>(
      "CoeffCorrelation", "ours",
      [](const TQorFloatVector& x, const TQorFloatVector& y) { return CoeffCorrelation(x, y); });
  Compare<Extended>("CoeffCorrelation", "GSL double",
                    [](const TQorFloatVector& x, const TQorFloatVector& y) {
                      return gsl_stats_correlation(Doubles(x), 1, Doubles(y), 1, x.size());
                    });
  return true;
}();

}  // namespace
}  // namespace qorvex::benchmarks
