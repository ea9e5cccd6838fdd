#include "qorvex/base/special/normal_tail.h"

#include <cmath>

#include "qorvex/base/special/detail/normal_wide.h"
#include "qorvex/base/special/detail/wide_scaled.h"

namespace qorvex::special {

Scaled NormalDensity(ExtendedPair z, Extended scale) {
  return MakeScaled(NormalDensityWide(Wide(z)) / Wide(scale));
}

Scaled NormalUpperTail(ExtendedPair z) {
  return NormalFarTail(Wide(z));
}

}  // namespace qorvex::special
