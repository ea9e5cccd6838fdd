#include "qorvex/random/gamma.h"

#include "qorvex/random/detail/gamma_samplers.h"

namespace qorvex::inline QorvexRandom {

Extended Random_Gamma(Extended shape, UniformSource source) {
  return detail::WithGammaSampler(shape, [source](const auto& sampler) { return sampler(source); });
}

}  // namespace qorvex::inline QorvexRandom
