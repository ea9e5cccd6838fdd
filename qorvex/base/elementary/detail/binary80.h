#pragma once

// The bits of the 80-bit format.

#include <bit>
#include <cstdint>
#include <cstring>

#include "qorvex/base/element_types.h"

namespace qorvex::elementary {

/// The parts of an extended number as they are stored.
struct Binary80 {
  /// The significand. Its top bit, which is explicit, is set in every number but 0 and subnormals.
  std::uint64_t significand = 0;
  /// The sign in bit 15, and the exponent plus 16383 below.
  std::uint16_t sign_exponent = 0;

  /// The biased exponent: 0 for zeros and subnormal numbers, 0x7fff for infinities and NaN.
  [[nodiscard]] constexpr int Exponent() const { return sign_exponent & 0x7fff; }
  /// The sign bit.
  [[nodiscard]] constexpr bool IsNegative() const { return sign_exponent >> 15 != 0; }
};

inline constexpr int kExponentBias = 16383;
inline constexpr int kExponentOfInfinity = 0x7fff;
inline constexpr std::uint64_t kTopBit = std::uint64_t{1} << 63;

/// Reads 8 and 2 bytes: a load of 16 bytes has to wait for the 10-byte store of the processor to
/// reach the cache. The compiler, unless it is kept from seeing what the address is that of, loads
/// a parameter as two words of 8 bytes.
inline Binary80 BitsOf(const Extended& x) noexcept {
  Binary80 bits;
  const Extended* address = &x;
  asm("" : "+r"(address));
  std::memcpy(&bits.significand, address, sizeof bits.significand);
  std::memcpy(&bits.sign_exponent, reinterpret_cast<const char*>(address) + sizeof bits.significand,
              sizeof bits.sign_exponent);
  return bits;
}

/// The number with the given bits.
inline Extended FromBits(std::uint64_t significand, std::uint16_t sign_exponent) noexcept {
  Extended x;
  std::memcpy(&x, &significand, sizeof significand);
  std::memcpy(reinterpret_cast<char*>(&x) + sizeof significand, &sign_exponent,
              sizeof sign_exponent);
  return x;
}

inline Extended FromBits(Binary80 bits) noexcept {
  return FromBits(bits.significand, bits.sign_exponent);
}

/// Writes the number with the given bits, without a detour through the x87 unit.
inline void Store(Binary80 bits, Extended& x) noexcept {
  std::memcpy(&x, &bits.significand, sizeof bits.significand);
  std::memcpy(reinterpret_cast<char*>(&x) + sizeof bits.significand, &bits.sign_exponent,
              sizeof bits.sign_exponent);
}

/// The bits of a zero or an infinity with a sign, of 1, and of NaN.
constexpr Binary80 SignedZero(bool negative) noexcept {
  return {0, static_cast<std::uint16_t>(negative ? 0x8000 : 0)};
}
constexpr Binary80 SignedInfinity(bool negative) noexcept {
  return {kTopBit, static_cast<std::uint16_t>(negative ? 0xffff : 0x7fff)};
}
constexpr Binary80 SignedOne(bool negative) noexcept {
  return {kTopBit, static_cast<std::uint16_t>(negative ? 0x8000 | kExponentBias : kExponentBias)};
}
constexpr Binary80 QuietNaN() noexcept {
  return {kTopBit | kTopBit >> 1, 0x7fff};
}

/// Finite and not 0, with the top bit where it belongs: what a kernel takes without a second look.
inline bool IsNormal(Binary80 bits) noexcept {
  return (bits.significand & kTopBit) != 0 && bits.Exponent() != 0 &&
         bits.Exponent() != kExponentOfInfinity;
}

/// Patterns that no arithmetic produces: a significand without its top bit above exponent 0. The
/// processor takes them for invalid operands.
inline bool IsInvalidPattern(Binary80 bits) noexcept {
  return (bits.significand & kTopBit) == 0 && bits.Exponent() != 0;
}

inline bool IsNaN(Binary80 bits) noexcept {
  return IsInvalidPattern(bits) ||
         (bits.Exponent() == kExponentOfInfinity && bits.significand != kTopBit);
}
inline bool IsInfinity(Binary80 bits) noexcept {
  return bits.Exponent() == kExponentOfInfinity && bits.significand == kTopBit;
}
inline bool IsZero(Binary80 bits) noexcept {
  return bits.significand == 0 && bits.Exponent() == 0;
}

/// A finite number in its usual form, which numbers with the top bit set at exponent 0 have not.
inline Binary80 Canonical(Binary80 bits) noexcept {
  if (bits.significand >= kTopBit && bits.Exponent() == 0) bits.sign_exponent |= 1;
  return bits;
}

/// A finite number but 0 as significand * 2^(exponent - 63) with the top bit of the significand
/// set, for subnormal numbers, too.
struct Normalised {
  std::uint64_t significand;
  int exponent;
};
inline Normalised Normalise(Binary80 bits) noexcept {
  const int zeros = std::countl_zero(bits.significand);
  const int biased = bits.Exponent() == 0 ? 1 : bits.Exponent();
  return {bits.significand << zeros, biased - kExponentBias - zeros};
}

}  // namespace qorvex::elementary
