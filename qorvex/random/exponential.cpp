#include "qorvex/random/exponential.h"

#include "qorvex/base/elementary/functions.h"
#include "qorvex/random/detail/limits.h"

namespace qorvex::inline QorvexRandom {

Extended Random_Exponential(UniformSource source) {
  return -Log(detail::PositiveUniform(source));
}

}  // namespace qorvex::inline QorvexRandom
