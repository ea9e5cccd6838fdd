#pragma once

// Elements as keys that are compared several at a time, to find the smallest and the largest.

#include <compare>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>

#include "qorvex/vector/detail/registers.h"

namespace qorvex::inline QorvexVector::detail {

// Keys of several elements in a register. Keys are equal if the elements are, and have the same
// order; keys of NaN are never taken. (Extended numbers must be encoded as arithmetic leaves them,
// without pseudo-denormals.)
template <NumericElement T, std::size_t kBytes>
struct Keys {
  using Key = T;
  using Limits = std::numeric_limits<T>;
  using Mask = Register<long long, kBytes>;
  static constexpr std::size_t kCount = kBytes / sizeof(T);
  static constexpr T kLeast = Limits::has_infinity ? -Limits::infinity() : Limits::lowest();
  static constexpr T kGreatest = Limits::has_infinity ? Limits::infinity() : Limits::max();

  Register<T, kBytes> x = {};

  Keys() = default;
  [[gnu::always_inline]] explicit Keys(T key) noexcept : x(Register<T, kBytes>{} + key) {}
  [[gnu::always_inline]] void Load(const T* elements) noexcept {
    std::memcpy(&x, elements, kBytes);
  }

  [[gnu::always_inline]] void TakeSmaller(const Keys& other) noexcept {
    x = other.x < x ? other.x : x;
  }
  [[gnu::always_inline]] void TakeLarger(const Keys& other) noexcept {
    x = other.x > x ? other.x : x;
  }
  [[gnu::always_inline]] void AddEqual(const Keys& other, Mask& mask) const noexcept {
    mask |= reinterpret_cast<Mask>(x == other.x);
  }
  [[gnu::always_inline]] T At(std::size_t k) const noexcept { return x[k]; }
  static T Value(T key) noexcept { return key; }
};

// Extended elements have two parts: sign, exponent and the upper 48 bits of the mantissa; and the
// whole mantissa, which decides if the upper parts are equal. Of negative elements all bits are
// flipped.
template <>
struct Keys<Extended, 32> {
  struct Key {
    std::int64_t upper;
    std::int64_t lower;
    friend bool operator==(const Key&, const Key&) = default;
    friend auto operator<=>(const Key&, const Key&) = default;
  };
  using Mask = Register<long long, 32>;
  static constexpr std::size_t kCount = 4;
  static constexpr std::int64_t kMagnitude = 0x7FFF'FFFF'FFFF'FFFF;
  static constexpr std::int64_t kInfiniteExponent = 0x7FFF'0000'0000'0000;
  static constexpr std::int64_t kUpperOne = std::numeric_limits<std::int64_t>::min();
  static constexpr Key kGreatest = {kMagnitude, 0};
  static constexpr Key kLeast = {~kMagnitude, 0};

  Mask upper = {};
  Mask lower = {};
  Mask nan = {};

  Keys() = default;
  [[gnu::always_inline]] explicit Keys(const Key& key) noexcept
      : upper(Mask{} + key.upper), lower(Mask{} + key.lower) {}

  // The eight bytes at an offset of each of four elements, in the order 0, 2, 1, 3.
  [[gnu::always_inline]] static void LoadPart(const Extended* elements, std::size_t offset,
                                              Mask& part) noexcept {
    const auto* const bytes = reinterpret_cast<const unsigned char*>(elements) + offset;
    Mask even;
    Mask odd;
    std::memcpy(&even, bytes, sizeof even);
    std::memcpy(&odd, bytes + 2 * sizeof(Extended) - sizeof(std::int64_t), sizeof odd);
    part = Mask{-1, 0, -1, 0} ? even : odd;
  }
  // The upper parts, except that -0 is below +0.
  [[gnu::always_inline]] static void LoadUpper(const Extended* elements, Mask& part) noexcept {
    LoadPart(elements, 2, part);
    part = (part & kMagnitude) ^ (part < 0);
  }

  [[gnu::always_inline]] void Load(const Extended* elements) noexcept {
    LoadPart(elements, 2, upper);
    LoadPart(elements, 0, lower);
    const Mask negative = (upper < 0) & (lower != 0);
    upper &= kMagnitude;
    nan = (upper >= kInfiniteExponent) & (lower != kUpperOne);
    upper ^= negative;
    lower ^= negative;
  }
  [[gnu::always_inline]] void TakeSmaller(const Keys& other) noexcept {
    Take(other, (other.upper < upper) | ((other.upper == upper) & (other.lower < lower)));
  }
  [[gnu::always_inline]] void TakeLarger(const Keys& other) noexcept {
    Take(other, (other.upper > upper) | ((other.upper == upper) & (other.lower > lower)));
  }
  [[gnu::always_inline]] void AddEqual(const Keys& other, Mask& mask) const noexcept {
    mask |= (upper == other.upper) & (lower == other.lower);
  }
  [[gnu::always_inline]] Key At(std::size_t k) const noexcept { return {upper[k], lower[k]}; }
  static Extended Value(const Key& key) noexcept {
    const std::int64_t negative = key.upper < 0 ? -1 : 0;
    const std::int64_t mantissa = key.lower ^ negative;
    const auto sign_and_exponent =
        static_cast<std::uint16_t>(((key.upper ^ negative) >> 48) | (negative & 0x8000));
    Extended value = 0;
    auto* const bytes = reinterpret_cast<unsigned char*>(&value);
    std::memcpy(bytes, &mantissa, sizeof mantissa);
    std::memcpy(bytes + sizeof mantissa, &sign_and_exponent, sizeof sign_and_exponent);
    return value;
  }

 private:
  [[gnu::always_inline]] void Take(const Keys& other, const Mask& better) noexcept {
    const Mask taken = better & ~other.nan;
    upper = taken ? other.upper : upper;
    lower = taken ? other.lower : lower;
  }
};

}  // namespace qorvex::inline QorvexVector::detail
