#include "qorvex/stats/distributions/distributions.h"

#include <cmath>
#include <iostream>

#include "qorvex/base/text.h"
#include "qorvex/stats/QorvexStatistics.h"

using namespace qorvex;

int main() {
  // Nine bottles filled to 502.1 ml on average, with a standard deviation of 2.4 ml: is it 500?
  const Extended t = (502.1L - 500) / (2.4L / 3);
  std::cout << "t = " << Float2EStr(t, 3)
            << ", one-sided p = " << Float2EStr(StudentTGreater(t, 8), 4) << ", 95 % within +-"
            << Float2EStr(InvStudentTLess(8, 0.975L), 3) << '\n';

  // How far may the standard deviation itself be off?
  const Extended sum_of_squares = 8 * 2.4L * 2.4L;
  std::cout << "Standard deviation from "
            << Float2EStr(std::sqrt(sum_of_squares / InvChiSquareLess(8, 0.975L)), 2) << " to "
            << Float2EStr(std::sqrt(sum_of_squares / InvChiSquareLess(8, 0.025L)), 2) << " ml\n";

  // Two of forty bottles leak. How likely are more, if one in a hundred does?
  std::cout << "More than one leak: " << Float2EStr(BinomialGreater(0.01L, 40, 1), 5) << '\n';

  // Nine standard deviations out the classic upper tail has no digits left.
  std::cout << "Beyond 9: " << Float2Str(NormalDistGreater(0, 1, 9)) << ", in full precision "
            << Float2Str(Upper(NormalDistribution(), 9)) << '\n';

  TQorFloatVector points;
  TQorFloatVector densities;
  ExponentialPDFValues(2, 0, 4, 2, points, densities);  // three points from 0 to 4, mean 2
  for (std::size_t i = 0; i < points.size(); ++i)
    std::cout << Float2EStr(points[i], 0) << ": " << Float2EStr(densities[i], 4) << '\n';
}
