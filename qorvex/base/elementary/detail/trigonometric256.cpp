#include "qorvex/base/elementary/detail/trigonometric256.h"

namespace qorvex::elementary {

namespace {

// 1 - s / (k (k + 1)) (1 - s / ((k + 2) (k + 3)) (1 - ...)) for s = r^2 < 1, up to 62!.
Wide256 TaylorSeries(const Wide256& square, int k) {
  Wide256 sum = 1;
  for (int n = k + 58; n >= k; n -= 2)
    sum = Wide256(1) - DividedBy(square * sum, static_cast<std::uint64_t>(n * (n + 1)));
  return sum;
}

}  // namespace

// The terms of the series fall from 1 to 2^-284, alternating, and the sums stay above 1/2: each
// step's 2^-251 counts with a factor of at most 1/2, all of them 2^-249.
SineAndCosine256 SineAndCosineOf(const Wide256& r) {
  const Wide256 square = r * r;
  return {r * TaylorSeries(square, 2), TaylorSeries(square, 1)};
}

}  // namespace qorvex::elementary
