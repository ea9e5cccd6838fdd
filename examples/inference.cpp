#include "qorvex/stats/inference/inference.h"

#include <iostream>
#include <vector>

#include "qorvex/base/text.h"
#include "qorvex/stats/distributions/exponential.h"

using namespace qorvex;

int main() {
  const std::vector<double> old_line = {500.4, 499.1, 501.8, 500.9, 502.2, 498.7, 501.1, 503.0};
  const std::vector<double> new_line = {498.2, 499.9, 497.6, 500.3, 499.0, 498.8};

  // Does the old line fill 500 ml on average, and how sure is its mean?
  const TestResult t = OneSampleTTest(old_line, 500);
  const auto [least, greatest] = MeanInterval(old_line, 0.95L);
  std::cout << "t = " << Float2EStr(t.statistic, 3) << " with "
            << Float2EStr(t.degrees_of_freedom, 0)
            << " degrees of freedom, p = " << Float2EStr(t.p, 4) << "; mean from "
            << Float2EStr(least, 2) << " to " << Float2EStr(greatest, 2) << '\n';

  // Does the new one fill less, by means and by ranks?
  const TestResult welch = WelchTTest(new_line, old_line, 0, Alternative::kLess);
  const TestResult ranks = MannWhitneyTest(new_line, old_line, 0, Alternative::kLess);
  std::cout << "Less: p = " << Float2EStr(welch.p, 4) << ", by ranks " << Float2EStr(ranks.p, 4)
            << (ranks.form == TestForm::kExact ? " (exact)\n" : " (approximate)\n");

  // 19 of 400 leak where 2 % may.
  const auto leaks = ClopperPearsonInterval(19, 400, 0.9L);
  std::cout << "Leaks: p = " << Float2EStr(BinomialTest(19, 400, 0.02L).p, 5) << ", "
            << Float2EStr(100 * leaks.least, 1) << " to " << Float2EStr(100 * leaks.greatest, 1)
            << " %\n";

  // Are the gaps between stops, in hours, exponential with mean 10?
  const std::vector<double> gaps = {1.2, 14.5, 6.6, 0.4, 22.8, 9.1, 3.7, 31.0, 2.2, 11.9};
  const TestResult ks = KolmogorovSmirnovTest(gaps, ExponentialDistribution(10));
  std::cout << "D = " << Float2EStr(ks.statistic, 4) << ", p = " << Float2EStr(ks.p, 4) << '\n';

  // A p-value beyond the range of numbers has a logarithm.
  std::vector<double> steady(2000, 1000);
  for (std::size_t i = 0; i < steady.size(); i += 2) steady[i] = 1001;
  std::cout << "ln p = " << Float2EStr(OneSampleTTest(steady).log_p, 6) << '\n';
}
