#include <iostream>

#include "qorvex/base/text.h"
#include "qorvex/stats/QorvexStatistics.h"
#include "qorvex/stats/descriptive_stats.h"

int main() {
  // Three weighings of one load, in grams: seven digits come before the one that differs.
  const qorvex::TQorFloatVector weights = {10000000.2L, 10000000.1L, 10000000.3L};
  std::cout << "Spread: " << qorvex::Float2EStr(SampleStdDev(weights), 10) << " g\n";

  qorvex::DescriptiveStats sample;
  sample.SetValues(weights);
  for (const std::string& line : sample.Report(3)) std::cout << line << '\n';
}
