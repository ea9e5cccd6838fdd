#include <iostream>
#include <vector>

#include "qorvex/base/text.h"
#include "qorvex/base/vector_text.h"
#include "qorvex/matrix/QorvexMatrix.h"
#include "qorvex/stats/QorvexPairStats.h"
#include "qorvex/stats/QorvexStatistics.h"
#include "qorvex/stats/distributions/distributions.h"
#include "qorvex/vector/QorvexVector.h"

using namespace qorvex;

int main() {
  const std::vector<double> x = {1, 2, 3, 4, 5};
  const std::vector<double> y = {2.1, 3.9, 6.2, 7.8, 10.1};

  // 1. Mean and standard deviation.
  std::cout << "Mean " << Float2EStr(QorMean(y), 2) << ", standard deviation "
            << Float2EStr(SampleStdDev(y), 5) << '\n';

  // 2. Median.
  std::cout << "Median " << Float2EStr(GetMedian(SortedVector(y)), 1) << '\n';

  // 3. Linear equations: 2u + v = 3, u + 3v = 5.
  const TQorDoubleMatrix a = {{2, 1}, {1, 3}};
  if (const auto solution = Solve(a, std::vector<double>{3, 5}))
    std::cout << "Solution " << *solution << '\n';

  // 4. A quantile: 97.5 % of Student's t with 4 degrees of freedom.
  std::cout << "Quantile " << Float2EStr(Quantile(StudentTDistribution(4), 0.975L), 5) << '\n';

  // 5. A line through points. Pairs are extended values, to which doubles convert exactly.
  Extended intercept = 0;
  Extended slope = 0;
  GetRegressionLine(Array2FloatVector(x), Array2FloatVector(y), intercept, slope);
  std::cout << "Line " << Float2EStr(intercept, 2) << " + " << Float2EStr(slope, 2) << " x\n";
}
