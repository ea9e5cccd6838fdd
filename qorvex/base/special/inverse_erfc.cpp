#include <cmath>

#include "qorvex/base/elementary/detail/wide.h"
#include "qorvex/base/errors.h"
#include "qorvex/base/special/detail/normal_wide.h"
#include "qorvex/base/special_functions.h"

namespace qorvex::inline QorvexGlobals {

using elementary::Wide;

// From the normal quantile z: erfc(z / sqrt(2)) / 2 is its upper tail.
Extended InverseErfc(Extended y) {
  if (std::isnan(y)) return y;
  if (y < 0 || y > 2) throw EInvalidOp();
  if (y == 0 || y == 2) return elementary::FromBits(elementary::SignedInfinity(y == 2));
  return Nearest(special::kRootOfHalf * special::NormalUpperQuantile(ScaledBy(Wide(y), -1)));
}

}  // namespace qorvex::inline QorvexGlobals
