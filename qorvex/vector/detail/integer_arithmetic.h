#pragma once

// Integer sums, squares and products with the widths that the vector routines document. All
// arithmetic is unsigned, because signed overflow is undefined.

#include <concepts>
#include <cstdint>
#include <type_traits>

#include "qorvex/base/element_types.h"

namespace qorvex::inline QorvexVector::detail {

template <std::integral T>
constexpr T WrappingAdd(T x, T y) noexcept {
  using Unsigned = std::make_unsigned_t<T>;
  return static_cast<T>(static_cast<Unsigned>(static_cast<Unsigned>(x) + static_cast<Unsigned>(y)));
}

template <std::integral T>
constexpr T WrappingSubtract(T x, T y) noexcept {
  using Unsigned = std::make_unsigned_t<T>;
  return static_cast<T>(static_cast<Unsigned>(static_cast<Unsigned>(x) - static_cast<Unsigned>(y)));
}

// Only for elements of at least 32 bits: narrower unsigned operands are promoted to int, which
// might overflow.
template <WideIntegerElement T>
constexpr T WrappingMultiply(T x, T y) noexcept {
  using Unsigned = std::make_unsigned_t<T>;
  return static_cast<T>(static_cast<Unsigned>(x) * static_cast<Unsigned>(y));
}

// The type that a square is truncated to before it is extended to int64.
template <IntegerElement T>
struct SquareWidth {
  using Type = T;
};
template <>
struct SquareWidth<std::int64_t> {
  using Type = std::int32_t;
};
template <>
struct SquareWidth<std::uint8_t> {
  using Type = std::int16_t;
};
template <>
struct SquareWidth<std::int8_t> {
  using Type = std::int16_t;
};

// The square of x in its narrow width. Of an int64 only the low 32 bits are squared; the square of
// the byte 255 is -511.
template <IntegerElement T>
constexpr std::int64_t NarrowSquare(T x) noexcept {
  const auto low_bits = static_cast<std::uint32_t>(x);
  return static_cast<typename SquareWidth<T>::Type>(low_bits * low_bits);
}

// A sum in int64 that wraps around.
class Int64Sum {
 public:
  constexpr void Add(std::int64_t value) noexcept { bits_ += static_cast<std::uint64_t>(value); }
  [[nodiscard]] constexpr std::int64_t Value() const noexcept {
    return static_cast<std::int64_t>(bits_);
  }

 private:
  std::uint64_t bits_ = 0;
};

}  // namespace qorvex::inline QorvexVector::detail
