#include "qorvex/random/exponential.h"

#include <cmath>

#include "qorvex/base/elementary/functions.h"
#include "qorvex/random/detail/limits.h"

namespace qorvex::inline QorvexRandom {

Extended Random_Exponential(UniformSource source) {
  Extended u = source();
  while (!(u > detail::kVerySmall)) u = source();
  return -Log(u);
}

}  // namespace qorvex::inline QorvexRandom
