#pragma once

// Maps elements to unsigned keys with the same order, so that floating-point comparisons become
// integer comparisons and a radix sort can use the bits. kKeyMask has all bits that a key may use:
// a key xor kKeyMask sorts in the reverse order.

#include <concepts>
#include <cstdint>
#include <cstring>
#include <type_traits>

#include "qorvex/base/currency.h"
#include "qorvex/base/element_types.h"

namespace qorvex::inline QorvexVector::detail {

__extension__ typedef unsigned __int128 UInt128;

template <class T>
struct SortKey;

// Flipping the sign bit puts the negative integers first.
template <std::integral T>
struct SortKey<T> {
  using Key = std::make_unsigned_t<T>;
  static constexpr Key kKeyMask = static_cast<Key>(~Key{0});
  static constexpr Key kFlip =
      std::signed_integral<T> ? static_cast<Key>(Key{1} << (8 * sizeof(T) - 1)) : Key{0};

  static Key Read(const T* element) noexcept {
    return static_cast<Key>(static_cast<Key>(*element) ^ kFlip);
  }
  static T Value(Key key) noexcept { return static_cast<T>(static_cast<Key>(key ^ kFlip)); }
};

// Amounts sort by their stored integers.
template <CurrencyElement T>
struct SortKey<T> {
  using Stored = SortKey<typename T::StoredType>;
  using Key = typename Stored::Key;
  static constexpr Key kKeyMask = Stored::kKeyMask;

  static Key Read(const T* element) noexcept {
    const auto stored = element->stored();
    return Stored::Read(&stored);
  }
  static T Value(Key key) noexcept { return T(Stored::Value(key)); }
};

// IEEE formats are sign and magnitude: all bits of negative values are flipped, and the sign bit of
// others. -0 sorts before +0. There are no branches, because signs are hard to predict.
template <class T, class Bits>
struct IeeeSortKey {
  using Key = Bits;
  static constexpr Key kKeyMask = ~Key{0};
  static constexpr int kSignBit = 8 * sizeof(T) - 1;
  static constexpr Key kSign = Key{1} << kSignBit;

  static Key Read(const T* element) noexcept {
    Key bits;
    std::memcpy(&bits, element, sizeof bits);
    return bits ^ ((Key{0} - (bits >> kSignBit)) | kSign);
  }
  static T Value(Key key) noexcept {
    const Key bits = key ^ (((key >> kSignBit) - 1) | kSign);
    T value;
    std::memcpy(&value, &bits, sizeof value);
    return value;
  }
};
template <>
struct SortKey<float> : IeeeSortKey<float, std::uint32_t> {};
template <>
struct SortKey<double> : IeeeSortKey<double, std::uint64_t> {};

// The extended format has sign and exponent above an explicit 64-bit mantissa; six bytes of the
// object are padding.
template <>
struct SortKey<Extended> {
  using Key = UInt128;
  static constexpr Key kKeyMask = (Key{1} << 80) - 1;

  static Key Read(const Extended* element) noexcept {
    std::uint64_t mantissa;
    std::uint16_t sign_and_exponent;
    const auto* bytes = reinterpret_cast<const unsigned char*>(element);
    std::memcpy(&mantissa, bytes, sizeof mantissa);
    std::memcpy(&sign_and_exponent, bytes + sizeof mantissa, sizeof sign_and_exponent);
    const std::uint64_t flips = std::uint64_t{0} - (sign_and_exponent >> kSignBit);
    const auto high = static_cast<std::uint16_t>(sign_and_exponent ^ (flips | kSign));
    return static_cast<Key>(high) << 64 | (mantissa ^ flips);
  }
  static Extended Value(Key key) noexcept {
    const auto low = static_cast<std::uint64_t>(key);
    const auto high = static_cast<std::uint16_t>(key >> 64);
    const std::uint64_t flips = (std::uint64_t{high} >> kSignBit) - 1;
    const std::uint64_t mantissa = low ^ flips;
    const auto sign_and_exponent = static_cast<std::uint16_t>(high ^ (flips | kSign));
    unsigned char bytes[sizeof(Extended)] = {};
    std::memcpy(bytes, &mantissa, sizeof mantissa);
    std::memcpy(bytes + sizeof mantissa, &sign_and_exponent, sizeof sign_and_exponent);
    Extended value;
    std::memcpy(&value, bytes, sizeof value);
    return value;
  }

 private:
  static constexpr int kSignBit = 15;
  static constexpr std::uint16_t kSign = 1U << kSignBit;
};

// The strict total order of QSortVector, for elements that are not NaN.
template <class T>
[[nodiscard]] inline bool SortsBefore(const T& a, const T& b) noexcept {
  return SortKey<T>::Read(&a) < SortKey<T>::Read(&b);
}

}  // namespace qorvex::inline QorvexVector::detail
