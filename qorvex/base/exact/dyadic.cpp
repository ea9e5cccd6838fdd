#include "qorvex/base/exact/dyadic.h"

#include <cmath>
#include <cstring>

#include "qorvex/base/errors.h"
#include "qorvex/base/exact/detail/round_bits.h"

namespace qorvex::exact {

Dyadic::Dyadic(Extended value) {
  if (!std::isfinite(value)) throw EInvalidOp();
  std::uint64_t bits = 0;
  std::uint16_t sign_and_exponent = 0;
  std::memcpy(&bits, &value, sizeof bits);
  std::memcpy(&sign_and_exponent, reinterpret_cast<const char*>(&value) + sizeof bits,
              sizeof sign_and_exponent);
  const int biased = sign_and_exponent & 0x7FFF;
  mantissa_ = BigInteger::FromLimbs({&bits, 1}, sign_and_exponent > 0x7FFF);
  // Subnormal numbers have the exponent of the smallest normal ones.
  exponent_ = (biased == 0 ? 1 : biased) - (16383 + 63);
  Normalise();
}

void Dyadic::Normalise() {
  if (mantissa_.Sign() == 0) {
    *this = Dyadic();
    return;
  }
  const std::size_t zeros = mantissa_.TrailingZeros();
  mantissa_ >>= zeros;
  exponent_ += static_cast<std::int64_t>(zeros);
}

Dyadic Dyadic::operator-() const {
  Dyadic result = *this;
  result.mantissa_ = -mantissa_;
  return result;
}

Dyadic operator+(const Dyadic& a, const Dyadic& b) {
  if (a.Sign() == 0) return b;
  if (b.Sign() == 0) return a;
  if (a.exponent_ < b.exponent_) return b + a;
  const auto distance = static_cast<std::size_t>(a.exponent_ - b.exponent_);
  return Dyadic((a.mantissa_ << distance) += b.mantissa_, b.exponent_);
}

Dyadic operator-(const Dyadic& a, const Dyadic& b) {
  return a + -b;
}

Dyadic operator*(const Dyadic& a, const Dyadic& b) {
  return Dyadic(a.mantissa_ * b.mantissa_, a.exponent_ + b.exponent_);
}

Dyadic Dyadic::Shifted(std::int64_t count) const {
  Dyadic result = *this;
  if (Sign() != 0) result.exponent_ += count;
  return result;
}

Dyadic Dyadic::Truncated(std::size_t bits) const {
  const std::size_t length = mantissa_.BitLength();
  if (length <= bits) return *this;
  return Dyadic(mantissa_ >> (length - bits), exponent_ + static_cast<std::int64_t>(length - bits));
}

Extended Dyadic::Round() const {
  return detail::RoundBits(mantissa_, exponent_, false);
}

std::strong_ordering operator<=>(const Dyadic& a, const Dyadic& b) {
  if (a.Sign() != b.Sign() || a.Sign() == 0) return a.Sign() <=> b.Sign();
  const std::strong_ordering magnitudes = a.MagnitudeExponent() <=> b.MagnitudeExponent();
  if (magnitudes != 0) return a.Sign() > 0 ? magnitudes : 0 <=> magnitudes;
  return (a - b).Sign() <=> 0;
}

}  // namespace qorvex::exact
