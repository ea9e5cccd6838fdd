#include "qorvex/random/uniform_source.h"

#include "qorvex/base/random.h"

namespace qorvex::inline QorvexRandom {

Extended ClassicRandom() noexcept {
  return Random();
}

}  // namespace qorvex::inline QorvexRandom
