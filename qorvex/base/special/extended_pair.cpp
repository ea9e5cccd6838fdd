#include "qorvex/base/special/extended_pair.h"

#include <cmath>

#include "qorvex/base/elementary/detail/first_stage.h"

namespace qorvex::special {

using elementary::Wide;

ExtendedPair Ln(ExtendedPair x) {
  return PairOf(elementary::LogWide(Wide(x)));
}

ExtendedPair Exp(ExtendedPair x) {
  constexpr Extended beyond = 20000;
  if (!(std::fabs(x.hi) < beyond)) return Exp(x.hi);
  return PairOf(elementary::ExpWide(Wide(x)));
}

}  // namespace qorvex::special
