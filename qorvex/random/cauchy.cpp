#include "qorvex/random/cauchy.h"

#include <cmath>

#include "qorvex/random/detail/limits.h"

namespace qorvex::inline QorvexRandom {

Extended Random_Cauchy(UniformSource source) {
  for (;;) {
    const Extended w1 = 2 * (source() - 0.5L);
    const Extended w2 = 2 * (source() - 0.5L);
    if (std::fabs(w2) > detail::kVerySmall && w1 * w1 + w2 * w2 < 1) return w1 / w2;
  }
}

}  // namespace qorvex::inline QorvexRandom
