#include "qorvex/vector/polynomial.h"

#include <cstddef>

namespace qorvex::inline QorvexVector {

Extended QorPolynomial(VectorView<Extended> coefficients, Extended x) noexcept {
  if (coefficients.empty()) return 0;
  Extended value = coefficients[0];
  Extended power = 1;
  for (std::size_t i = 1; i < coefficients.size(); ++i) {
    power *= x;
    value += coefficients[i] * power;
  }
  return value;
}

}  // namespace qorvex::inline QorvexVector
