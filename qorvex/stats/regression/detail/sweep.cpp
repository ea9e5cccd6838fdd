#include "qorvex/stats/regression/detail/sweep.h"

#include <utility>

namespace qorvex::regression {

using exact::BigInteger;
using exact::Dyadic;

namespace {

// The mantissa of a divisor is odd, so it divides that of the dividend wherever an exact quotient
// is an integer times a power of two.
Dyadic ExactQuotient(const Dyadic& dividend, const Dyadic& divisor) {
  return Dyadic(dividend.Mantissa() / divisor.Mantissa(), dividend.Exponent() - divisor.Exponent());
}

Dyadic TruncatedQuotient(const Dyadic& dividend, const Dyadic& divisor, std::size_t bits) {
  const std::size_t wanted = bits + divisor.Mantissa().BitLength();
  const std::size_t present = dividend.Mantissa().BitLength();
  const std::size_t shift = wanted > present ? wanted - present : 0;
  const Dyadic quotient(
      (dividend.Mantissa() << shift) / divisor.Mantissa(),
      dividend.Exponent() - divisor.Exponent() - static_cast<std::int64_t>(shift));
  return quotient.Truncated(bits);
}

}  // namespace

SweptMatrix::SweptMatrix(std::size_t size, std::size_t bits)
    : size_(size), bits_(bits), elements_(size * (size + 1) / 2) {}

Dyadic& SweptMatrix::At(std::size_t i, std::size_t j) {
  return const_cast<Dyadic&>(std::as_const(*this).At(i, j));
}

const Dyadic& SweptMatrix::At(std::size_t i, std::size_t j) const {
  if (i > j) std::swap(i, j);
  return elements_[i * (2 * size_ - i + 1) / 2 + j - i];
}

void SweptMatrix::SweepNext() {
  const std::size_t k = swept_++;
  const Dyadic pivot = At(k, k);
  for (std::size_t i = 0; i < size_; ++i) {
    for (std::size_t j = i; j < size_; ++j) {
      if (i == k || j == k) continue;
      const Dyadic product = At(i, k) * At(j, k);
      const Dyadic scaled = pivot * At(i, j);
      const Dyadic sum = j < k ? scaled + product : scaled - product;
      At(i, j) = bits_ == 0 ? ExactQuotient(sum, determinant_)
                            : TruncatedQuotient(sum, determinant_, bits_);
    }
  }
  for (std::size_t i = 0; i < k; ++i) At(i, k) = -At(i, k);
  At(k, k) = std::exchange(determinant_, pivot);
}

}  // namespace qorvex::regression
