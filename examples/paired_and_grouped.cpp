#include <iostream>

#include "qorvex/base/text.h"
#include "qorvex/stats/QorvexPairStats.h"
#include "qorvex/stats/QorvexStatistics.h"

using namespace qorvex;

int main() {
  // A falling stone: seconds, and metres fallen.
  const TQorFloatVector seconds{0.5L, 1.0L, 1.5L, 2.0L, 2.5L};
  const TQorFloatVector metres{1.2L, 4.9L, 11.1L, 19.6L, 30.7L};
  Extended a = 0;
  Extended b = 0;
  GetRegressionLine(seconds, metres, a, b);
  std::cout << "Line: " << Float2EStr(a, 3) << " + " << Float2EStr(b, 3) << " t, squared errors "
            << Float2EStr(GetSSE(seconds, metres, a, b), 3) << ", determination "
            << Float2EStr(CoeffDetermination(seconds, metres), 4) << '\n';
  Extended a0 = 0;
  Extended a1 = 0;
  Extended a2 = 0;
  GetQuadraticCurve(seconds, metres, a0, a1, a2);
  std::cout << "Parabola: " << Float2EStr(a0, 3) << " + " << Float2EStr(a1, 3) << " t + "
            << Float2EStr(a2, 3) << " t^2\n";

  // Waiting times in minutes: the numbers of values from 0 to 5, from 5 to 10 and so on.
  const TQorLWordVector waiting{12, 31, 24, 9, 4};
  const Extended first = 0;
  const Extended width = 5;
  Extended mode = 0;
  if (GroupedMode(waiting, first, width, mode)) {
    std::cout << "Waiting: mode " << Float2EStr(mode, 2) << ", median "
              << Float2EStr(GroupedMedian(waiting, first, width), 2) << ", mean "
              << Float2EStr(GroupedMean(waiting, first, width), 2) << ", standard deviation "
              << Float2EStr(GroupedSampleStdDev(waiting, first, width), 2) << '\n';
  }
}
