#include "qorvex/base/special/normal_tail.h"

#include <cmath>

#include "qorvex/base/special/detail/normal_wide.h"
#include "qorvex/base/special/detail/wide_constants.h"

namespace qorvex::special {

Scaled NormalDensity(ExtendedPair z, Extended scale) {
  return NormalDensity(Wide(z), kOne / Wide(scale));
}

Scaled NormalUpperTail(ExtendedPair z) {
  return NormalUpperTail(Wide(z));
}

}  // namespace qorvex::special
