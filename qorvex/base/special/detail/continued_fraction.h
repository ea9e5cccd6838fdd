#pragma once

// Continued fractions in extended precision.

#include <cmath>
#include <limits>

#include "qorvex/base/element_types.h"

namespace qorvex::special {

/// terms.First() + n(1) / (d(1) + n(2) / (d(2) + ...)), where terms.Next() sets terms.numerator and
/// terms.denominator to n(i) and d(i).
///
/// The convergents may first swing far about the value: these go into a product of ratios (Lentz
/// 1976, "Generating Bessel functions in Mie scattering calculations"), which does not cancel. The
/// others are added up (Steed's method; Barnett et al. 1974, "Coulomb wave functions for all real
/// eta and rho"), and what they add is collected beside the value, which is rounded once more.
template <class Terms>
[[nodiscard]] Extended ContinuedFraction(Terms terms) {
  constexpr Extended calm = 0.125L;
  constexpr Extended rounding = std::numeric_limits<Extended>::epsilon() / 4;
  Extended fraction = terms.First();
  Extended ratio = fraction;
  Extended inverse = 0;
  Extended difference = 0;
  do {
    terms.Next();
    inverse = 1 / (terms.denominator + terms.numerator * inverse);
    ratio = terms.denominator + terms.numerator / ratio;
    const Extended previous = fraction;
    fraction *= ratio * inverse;
    difference = fraction - previous;
  } while (std::fabs(difference) > std::fabs(fraction) * calm);
  Extended rest = 0;
  const Extended negligible = std::fabs(fraction) * rounding;
  while (std::fabs(difference) > negligible) {
    terms.Next();
    const Extended product = terms.numerator * inverse;
    inverse = 1 / (terms.denominator + product);
    difference *= -(product * inverse);
    rest += difference;
  }
  return fraction + rest;
}

}  // namespace qorvex::special
