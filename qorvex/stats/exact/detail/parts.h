#pragma once

// Numbers taken apart into integers.

#include <array>
#include <bit>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>

#include "qorvex/base/element_types.h"
#include "qorvex/stats/exact/detail/words.h"

namespace qorvex::exact::detail {

// The weight of the lowest bit of an extended value with the biased exponent e is
// 2^(e - kExponentBias). The exponent 0 weighs like 1.
inline constexpr int kExponentBias = 16'383 + 63;

// (-1)^sign * mantissa * 2^(exponent - kFactors * kExponentBias), a product of kFactors numbers.
template <std::size_t kFactors>
struct Parts {
  Words<kFactors> mantissa;
  std::uint32_t key;  // twice the sum of the exponents, plus the sign

  [[nodiscard]] std::uint32_t Exponent() const noexcept { return key / 2; }
  [[nodiscard]] std::uint32_t Sign() const noexcept { return key % 2; }
  [[nodiscard]] bool IsZero() const noexcept {
    Word any = 0;
    for (const Word word : mantissa) any |= word;
    return any == 0;
  }
};

template <std::size_t kFactors>
inline Parts<kFactors + 1> Multiply(const Parts<kFactors>& x, const Parts<1>& y) noexcept {
  return {Multiply(x.mantissa, y.mantissa[0]), ((x.key & ~1U) + y.key) ^ (x.key & 1U)};
}

// How an element type is taken apart.
//
// - Of gives the parts of every finite value.
// - OfNormal gives those of normal numbers faster. They have exponents from kLeast to kGreatest;
//   other numbers have other exponents, and zeros a mantissa of 0.
template <class T>
struct Elements;

template <>
struct Elements<Extended> {
  static constexpr std::uint32_t kLeast = 1;
  static constexpr std::uint32_t kGreatest = 0x7FFE;

  static Parts<1> OfNormal(const Extended& value) noexcept {
    std::uint64_t mantissa = 0;
    std::uint16_t high = 0;
    std::memcpy(&mantissa, &value, sizeof mantissa);
    std::memcpy(&high, reinterpret_cast<const char*>(&value) + sizeof mantissa, sizeof high);
    return {{mantissa}, std::rotl(high, 1)};
  }
  static Parts<1> Of(const Extended& value) noexcept {
    Parts<1> parts = OfNormal(value);
    if (parts.Exponent() == 0) parts.key += 2;
    return parts;
  }
  static bool IsFinite(const Extended& value) noexcept {
    return OfNormal(value).Exponent() <= kGreatest;
  }
};

template <>
struct Elements<double> {
  // The weight of the lowest bit of a double with the biased exponent e is 2^(e - 1075).
  static constexpr std::uint32_t kShift = kExponentBias - 1'075;
  static constexpr std::uint32_t kLeast = kShift + 1;
  static constexpr std::uint32_t kGreatest = kShift + 0x7FE;

  static Parts<1> OfNormal(double value) noexcept {
    const auto bits = std::bit_cast<Word>(value);
    const Word mantissa = (bits & (kHiddenBit - 1)) | kHiddenBit;
    return {{bits << 1 == 0 ? 0 : mantissa}, 2 * (Exponent(bits) + kShift) + Sign(bits)};
  }
  static Parts<1> Of(double value) noexcept {
    const auto bits = std::bit_cast<Word>(value);
    const std::uint32_t exponent = Exponent(bits);
    const bool normal = exponent != 0;
    return {{(bits & (kHiddenBit - 1)) | (normal ? kHiddenBit : 0)},
            2 * (exponent + (normal ? 0 : 1) + kShift) + Sign(bits)};
  }
  static bool IsFinite(double value) noexcept {
    return Exponent(std::bit_cast<Word>(value)) + kShift <= kGreatest;
  }

 private:
  static constexpr Word kHiddenBit = Word{1} << 52;
  static std::uint32_t Exponent(Word bits) noexcept {
    return static_cast<std::uint32_t>(bits >> 52) & 0x7FFU;
  }
  static std::uint32_t Sign(Word bits) noexcept { return static_cast<std::uint32_t>(bits >> 63); }
};

template <>
struct Elements<float> : Elements<double> {};

template <IntegerElement T>
struct Elements<T> {
  static constexpr std::uint32_t kLeast = kExponentBias;
  static constexpr std::uint32_t kGreatest = kExponentBias;

  static Parts<1> Of(T value) noexcept {
    const auto bits = static_cast<Word>(value);
    return {{value < 0 ? 0 - bits : bits}, 2 * kExponentBias + (value < 0 ? 1U : 0U)};
  }
  static Parts<1> OfNormal(T value) noexcept { return Of(value); }
  static bool IsFinite(T) noexcept { return true; }
};

// The products of elements with the same index of kFactors arrays.
template <class T, std::size_t kFactors>
class Products {
 public:
  // The exponents of products of normal numbers.
  static constexpr std::uint32_t kLeast = kFactors * Elements<T>::kLeast;
  static constexpr std::uint32_t kGreatest = kFactors * Elements<T>::kGreatest;

  explicit Products(const std::array<const T*, kFactors>& factors) : factors_(factors) {}

  // The parts of product i, which is finite.
  [[nodiscard]] Parts<kFactors> operator()(std::size_t i) const noexcept {
    return First<kFactors>(i, [](const T& x) { return Elements<T>::Of(x); });
  }
  // The same if every factor is normal. `normal` becomes false if one of several is not; the
  // exponent tells it of a single one.
  [[nodiscard]] Parts<kFactors> Normal(std::size_t i, bool& normal) const noexcept {
    return First<kFactors>(i, [&](const T& x) {
      const Parts<1> parts = Elements<T>::OfNormal(x);
      if constexpr (kFactors > 1) normal &= IsNormal(parts);
      return parts;
    });
  }
  [[nodiscard]] bool IsFinite(std::size_t i) const noexcept {
    for (const T* const factor : factors_) {
      if (!Elements<T>::IsFinite(factor[i])) return false;
    }
    return true;
  }
  // 1, 0, an infinity or NaN, as product i is, with its sign. Factors are replaced before they are
  // multiplied, because a rounded product may overflow or underflow.
  [[nodiscard]] Extended Kind(std::size_t i) const noexcept {
    Extended product = 1;
    for (const T* const factor : factors_) {
      const auto x = static_cast<Extended>(factor[i]);
      product *= std::isfinite(x) && x != 0 ? std::copysign(1.0L, x) : x;
    }
    return product;
  }

 private:
  static bool IsNormal(const Parts<1>& x) noexcept {
    constexpr std::uint32_t kCount = Elements<T>::kGreatest + 1 - Elements<T>::kLeast;
    return x.key - 2 * Elements<T>::kLeast < 2 * kCount;
  }

  template <std::size_t kCount, class TakeApart>
  [[nodiscard]] Parts<kCount> First(std::size_t i, TakeApart take_apart) const noexcept {
    if constexpr (kCount == 1) {
      return take_apart(factors_[0][i]);
    } else {
      return Multiply(First<kCount - 1>(i, take_apart), take_apart(factors_[kCount - 1][i]));
    }
  }

  std::array<const T*, kFactors> factors_;
};

}  // namespace qorvex::exact::detail
