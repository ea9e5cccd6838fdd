#include "qorvex/base/elementary/detail/trigonometric256.h"

#include "qorvex/base/elementary/detail/first_stage.h"

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

// A step of Newton's method from a root with an error below 2^-123.
Wide256 SquareRoot(const Wide256& x) {
  if (x.IsZero()) return {};
  const Wide256 root = SquareRoot(x.Leading());
  return ScaledBy(root + x / root, -1);
}

// For an arc a near the right one and t = y / x, (t - tan a) / (1 + t tan a) is the tangent of the
// difference, which is below 2^-96 of the arc: it is its own arc to 2^-288. In t cos a - sin a,
// 2^-250 of the arc are lost.
Wide256 ArcTan256(const Wide256& y, const Wide256& x) {
  const bool is_small = !(x - y).negative;
  const Wide256 t = is_small ? y / x : x / y;
  if (t.IsZero()) return is_small ? Wide256() : ScaledBy(kPi256, -1);
  const Wide256 arc = ArcTanWide(t.Leading(), kOne);
  const auto [sine, cosine] = SineAndCosineOf(arc);
  const Wide256 result = arc + (t * cosine - sine) / (cosine + t * sine);
  return is_small ? result : ScaledBy(kPi256, -1) - result;
}

}  // namespace qorvex::elementary
