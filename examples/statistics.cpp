#include <iostream>

#include "qorvex/base/text.h"
#include "qorvex/stats/QorvexStatistics.h"
#include "qorvex/stats/descriptive_stats.h"
#include "qorvex/vector/QorvexVector.h"

using namespace qorvex;

int main() {
  const TQorFloatVector lifetimes{12, 7, 9, 7, 30, 11, 8, 7};
  std::cout << "Mean " << Float2EStr(QorMean(lifetimes), 3) << ", standard deviation "
            << Float2EStr(SampleStdDev(lifetimes), 3) << '\n';

  const TQorFloatVector sorted = SortedVector(lifetimes);  // for the order statistics
  Extended q1 = 0;
  Extended q3 = 0;
  GetQuartiles(sorted, q1, q3);
  std::cout << "Median " << Float2EStr(GetMedian(sorted), 1) << ", quartiles " << Float2EStr(q1, 1)
            << " and " << Float2EStr(q3, 1) << ", trimmed mean "
            << Float2EStr(TrimmedMean(sorted, 0.125L), 3) << '\n';

  DescriptiveStats stats;  // keeps all figures up to date
  stats.SetValues(lifetimes);
  stats.DeleteValue(4);  // the outlier
  std::cout << "Without the outlier: mode " << Float2EStr(stats.Results().mode, 0) << ", skewness "
            << Float2EStr(stats.Results().skew, 3) << '\n';
}
