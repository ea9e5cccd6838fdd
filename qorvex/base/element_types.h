#pragma once

/// @file
/// The numeric element types of vectors and matrices, and the families that routines are
/// constrained to.

#include <cfloat>
#include <concepts>
#include <cstdint>
#include <type_traits>

namespace qorvex {

/// The working precision of every floating computation: the x87 extended format, 64 bits of
/// mantissa.
using Extended = long double;

static_assert(LDBL_MANT_DIG == 64 && LDBL_MAX_EXP == 16384,
              "Qorvex needs the 80-bit extended format as long double: x86-64 with GCC or Clang "
              "(not -mlong-double-64, not MSVC)");

/// T is one of the listed types.
template <class T, class... List>
inline constexpr bool kIsOneOf = (std::is_same_v<T, List> || ...);

/// T is one of the listed types. An atomic constraint, so that compilers print the list instead of
/// a note for each of its types.
template <class T, class... List>
concept OneOf = kIsOneOf<T, List...>;

/// Extended, double and float.
template <class T>
concept FloatElement = OneOf<T, Extended, double, float>;

/// The integer elements of 32 and 64 bits.
template <class T>
concept WideIntegerElement = OneOf<T, std::int64_t, std::uint32_t, std::int32_t>;

/// The integer elements of 8 and 16 bits.
template <class T>
concept NarrowIntegerElement = OneOf<T, std::uint16_t, std::int16_t, std::uint8_t, std::int8_t>;

// The families below list all their types instead of combining smaller families, so that an error
// message shows one list.

/// The seven integer elements.
template <class T>
concept IntegerElement = OneOf<T, std::int64_t, std::uint32_t, std::int32_t, std::uint16_t,
                               std::int16_t, std::uint8_t, std::int8_t>;

/// The six numeric elements of at least 32 bits: the floating ones, int64, uint32 and int32.
template <class T>
concept WideNumericElement =
    OneOf<T, Extended, double, float, std::int64_t, std::uint32_t, std::int32_t>;

/// The numeric elements with addition and subtraction: the floating ones, int64 and int32.
template <class T>
concept SignedArithmeticElement = OneOf<T, Extended, double, float, std::int64_t, std::int32_t>;

/// All ten numeric elements.
template <class T>
concept NumericElement =
    OneOf<T, Extended, double, float, std::int64_t, std::uint32_t, std::int32_t, std::uint16_t,
          std::int16_t, std::uint8_t, std::int8_t>;

/// An integer argument. Floating-point arguments, which would be truncated, do not compile. Objects
/// of classes that convert to an integer need a cast, because only one user-defined conversion is
/// implicit.
template <class T>
class WholeNumber {
 public:
  /// Implicit, for every argument that converts to T.
  constexpr WholeNumber(T value) noexcept : value_(value) {}
  WholeNumber(std::floating_point auto) = delete;
  /// The integer.
  constexpr operator T() const noexcept { return value_; }

 private:
  T value_;
};

/// @cond internal
// Separate classes, because GCC and Clang mangle concepts in a function's signature differently,
// and a program built with one could not be linked to a library built with the other.
template <class T>
struct SumType {
  using Type = std::conditional_t<FloatElement<T>, Extended,
                                  std::conditional_t<IntegerElement<T>, std::int64_t, T>>;
};
template <class T>
struct ScalarType {
  using Type = std::conditional_t<IntegerElement<T>, WholeNumber<T>, T>;
};
/// @endcond

/// The type of a scalar argument of element type T: T itself, or WholeNumber<T> for integers. It
/// does not take part in template argument deduction, so arguments convert to it.
template <class T>
using ScalarOf = typename ScalarType<T>::Type;

/// The type of sums over elements of T: Extended for floating elements, int64 for integers, T for
/// currencies.
template <class T>
using SumOf = typename SumType<T>::Type;

}  // namespace qorvex

/// @cond internal
// Lists for explicit instantiation: X is applied to each element type of the family.
#define QORVEX_FOR_FLOAT_ELEMENTS(X) X(qorvex::Extended) X(double) X(float)
#define QORVEX_FOR_WIDE_INTEGER_ELEMENTS(X) X(std::int64_t) X(std::uint32_t) X(std::int32_t)
#define QORVEX_FOR_NARROW_INTEGER_ELEMENTS(X) \
  X(std::uint16_t) X(std::int16_t) X(std::uint8_t) X(std::int8_t)
#define QORVEX_FOR_WIDE_NUMERIC_ELEMENTS(X) \
  QORVEX_FOR_FLOAT_ELEMENTS(X) QORVEX_FOR_WIDE_INTEGER_ELEMENTS(X)
#define QORVEX_FOR_SIGNED_ARITHMETIC_ELEMENTS(X) \
  QORVEX_FOR_FLOAT_ELEMENTS(X) X(std::int64_t) X(std::int32_t)
#define QORVEX_FOR_NUMERIC_ELEMENTS(X) \
  QORVEX_FOR_WIDE_NUMERIC_ELEMENTS(X) QORVEX_FOR_NARROW_INTEGER_ELEMENTS(X)
/// @endcond
