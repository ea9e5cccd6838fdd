#include <iostream>

#include "qorvex/base/text.h"
#include "qorvex/stats/QorvexStatistics.h"
#include "qorvex/stats/exact/weighted.h"
#include "qorvex/stats/exact/weighted_quantile.h"
#include "qorvex/vector/QorvexVector.h"

using namespace qorvex;

int main() {
  // Response times in milliseconds.
  const TQorFloatVector times{31, 18, 25, 19, 240, 22, 27, 20, 23, 35};
  const TQorFloatVector sorted = SortedVector(times);
  std::cout << "90 %: " << Float2EStr(GetQuantile(sorted, 0.9L), 2) << " by type 7, "
            << Float2EStr(GetQuantile(sorted, 0.9L, QuantileType::kMedianRank), 2)
            << " by type 8, observed "
            << Float2EStr(GetQuantile(sorted, 0.9L, QuantileType::kInverseDistribution), 0) << '\n';
  std::cout << "Median " << Float2EStr(GetMedian(sorted), 1) << ", spread "
            << Float2EStr(kNormalMedianDeviation * MedianAbsoluteDeviation(sorted), 2)
            << " without regard to the outlier, standard deviation "
            << Float2EStr(SampleStdDev(times), 2) << '\n';

  // Grades, and how many students have each.
  const TQorFloatVector grades{1, 2, 3, 4, 5};
  const TQorLWordVector students{4, 11, 9, 3, 1};
  std::cout << "Grades: mean " << Float2EStr(WeightedMean(grades, students), 3) << ", median "
            << Float2EStr(WeightedQuantile(grades, students, 0.5L, QuantileType::k7), 1)
            << ", variance "
            << Float2EStr(WeightedVariance(grades, students, WeightKind::kFrequency), 3) << '\n';

  // A quantity measured with instruments of different precision.
  const TQorFloatVector masses{10.02L, 9.98L, 10.3L};
  const TQorFloatVector reliabilities{25, 16, 1};
  std::cout << "Mass: mean " << Float2EStr(WeightedMean(masses, reliabilities), 4)
            << ", standard deviation "
            << Float2EStr(WeightedStdDev(masses, reliabilities, WeightKind::kReliability), 4)
            << '\n';
}
