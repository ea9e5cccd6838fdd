#include "qorvex/base/elementary/detail/angle.h"

namespace qorvex::elementary {

Wide SmallAngleOf(Normalised x) {
  if (IsReduced(x)) return {Join(x.significand, 0), x.exponent};
  return QuadrantsOf<4>(x).Fraction<Wide>() * Wide(kHalfPi, 0);
}

Wide256 Angle256Of(Normalised x) {
  if (IsReduced(x)) return Wide(Join(x.significand, 0), x.exponent);
  return QuadrantsOf<6>(x).Fraction<Wide256>() * ScaledBy(kPi256, -1);
}

}  // namespace qorvex::elementary
