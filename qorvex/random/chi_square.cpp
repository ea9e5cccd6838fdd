#include "qorvex/random/chi_square.h"

namespace qorvex::inline QorvexRandom {

ChiSquareSampler::ChiSquareSampler(std::int32_t df) : half_(0.5L * static_cast<Extended>(df)) {}

Extended ChiSquareSampler::operator()(UniformSource source) const {
  return 2 * half_(source);
}

Extended Random_ChiSq(std::int32_t df, UniformSource source) {
  return ChiSquareSampler(df)(source);
}

}  // namespace qorvex::inline QorvexRandom
