#include "qorvex/random/chi_square.h"

#include "qorvex/random/gamma.h"

namespace qorvex::inline QorvexRandom {

Extended Random_ChiSq(std::int32_t df, UniformSource source) {
  return 2 * Random_Gamma(0.5L * static_cast<Extended>(df), source);
}

}  // namespace qorvex::inline QorvexRandom
