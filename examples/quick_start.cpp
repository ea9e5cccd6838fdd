#include <iostream>

#include "qorvex/base/text.h"
#include "qorvex/stats/QorvexStatistics.h"

int main() {
  // Three weighings of one load, in grams: seven digits come before the one that differs.
  const qorvex::TQorFloatVector weights = {10000000.2L, 10000000.1L, 10000000.3L};
  std::cout << "Spread: " << qorvex::Float2EStr(SampleStdDev(weights), 10) << " g\n";
}
