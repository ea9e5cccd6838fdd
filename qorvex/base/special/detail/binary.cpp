#include "qorvex/base/special/detail/binary.h"

#include <limits>

namespace qorvex::special {

Binary MakeBinary(ExtendedPair x, Extended exponent) {
  int shift = 0;
  std::frexp(x.hi, &shift);
  return {TimesPowerOf2(x, -shift), exponent + static_cast<Extended>(shift)};
}

Scaled ToScaled(const Binary& x) {
  using Limits = std::numeric_limits<Extended>;
  if (x.exponent >= Limits::min_exponent && x.exponent <= Limits::max_exponent)
    return {std::ldexp(x.mantissa.hi, static_cast<int>(x.exponent)), ExtendedPair()};
  return {x.mantissa.hi, Ln(2) * x.exponent};
}

Binary WholePower(ExtendedPair x, std::uint64_t n) {
  Binary power = MakeBinary(1);
  for (Binary square = MakeBinary(x); n > 0; n /= 2) {
    if (n % 2 == 1) power = power * square;
    if (n > 1) square = square * square;
  }
  return power;
}

}  // namespace qorvex::special
