#include <array>
#include <iomanip>
#include <iostream>

#include "qorvex/base/text.h"
#include "qorvex/random/QorvexRandom.h"
#include "qorvex/stats/QorvexPairStats.h"
#include "qorvex/stats/QorvexStatistics.h"
#include "qorvex/stats/exact/exact_pairs.h"
#include "qorvex/vector/QorvexVector.h"

using namespace qorvex;

int main() {
  // Years, and the height of a tree in metres. The digits that all years share cost nothing.
  const TQorFloatVector years{2019, 2020, 2021, 2022, 2023, 2024, 2025};
  const TQorFloatVector heights{1.52L, 1.78L, 1.97L, 2.31L, 2.49L, 2.86L, 2.95L};
  ExactPairs tree;
  tree.Add(years, heights);
  std::cout << "Correlation " << Float2EStr(tree.Correlation(), 6) << ", height "
            << Float2EStr(tree.Intercept(), 3) << " + " << Float2EStr(tree.Slope(), 6)
            << " year, squared errors " << Float2EStr(tree.SumOfSquaredErrors(), 6) << '\n';

  // Two judges.
  const TQorLIntVector first{1, 2, 3, 4, 5, 6};
  const TQorLIntVector second{2, 1, 3, 3, 6, 5};
  std::cout << "Judges: Kendall " << Float2EStr(KendallTau(first, second), 4) << ", Spearman "
            << Float2EStr(SpearmanRho(first, second), 4) << '\n';

  // Classes of 10 cm, from 1.5 m on.
  const TQorFloatVector metres{1.61L, 1.72L, 1.58L, 1.79L, 1.76L, 1.69L, 1.83L, 1.7L, 1.74L, 1.97L};
  const TQorLWordVector classes = ClassFrequencies(metres, 1.5L, 0.1L, 5);
  std::cout << "Heights: " << classes << ", mean "
            << Float2EStr(GroupedMean(classes, 1.5L, 0.1L), 2) << ", skewness "
            << Float2EStr(WeightedGroupedSkew(classes), 4) << '\n';

  // Three variables of which one is the sum of the others: their covariance matrix is singular.
  const TQorFloatVector rent{500, 620, 480, 710};
  const TQorFloatVector heating{80, 95, 110, 90};
  const TQorFloatVector both = AddVectors(rent, heating);
  const TQorFloatMatrix covariance = CovarianceMatrix(std::array{rent, heating, both});
  const MultivariateNormal costs({570, 90, 660}, PackedUpperTriangle(covariance));
  std::cout << std::fixed << std::setprecision(2) << covariance << "\nRank " << costs.Rank()
            << ", a household: " << costs.Draw(RandomStream(18)) << '\n';
}
