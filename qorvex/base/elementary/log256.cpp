#include "qorvex/base/elementary/detail/log256.h"

#include "qorvex/base/elementary/detail/first_stage.h"

namespace qorvex::elementary {

Wide256 Log(const Wide256& x) {
  // The difference is exact where it is small.
  const Wide256 difference = x - 1;
  if (difference.IsZero()) return {};
  if (difference.exponent < -9) {
    // 2 artanh s for s = (x - 1) / (x + 1), |s| < 2^-9.9: what follows s^25 is below 2^-260 of s.
    constexpr std::uint64_t last = 25;
    const Wide256 s = difference / (x + 1);
    const Wide256 square = s * s;
    Wide256 sum = 0;
    for (std::uint64_t n = last; n > 1; n -= 2) sum = square * (sum + DividedBy(1, n));
    return ScaledBy(s * (sum + 1), 1);
  }
  // A step of Newton's method: x = e^y (1 + t), where |t| < 2^-82. e^-y has an error of 2^-230, and
  // the result is beyond 2^-10.
  const Wide256 y = LogWide(x.Leading());
  const Wide256 t = x * Exp(-y) - 1;
  return y + (t - ScaledBy(t * t, -1) + DividedBy(t * t * t, 3));
}

}  // namespace qorvex::elementary
