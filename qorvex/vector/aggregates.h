#pragma once

/// @file
/// Sums of elements, of their squares and of squared differences, and magnitudes.
///
/// Floating elements are summed in extended precision, in ascending order of their index: the order
/// is part of the result. NaN gives NaN, infinities what the processor makes of them. Integer
/// elements are summed in int64, which wraps around silently, and their squares are formed in the
/// narrow widths that SumSqVector lists. Nothing is written. O(n).

#include <concepts>
#include <cstdint>
#include <type_traits>

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexVector {

/// The sum of the elements: extended for floating elements, int64 for integers, and for currencies
/// an amount of their own type, whose stored integer wraps around. An empty vector raises
/// EMathError with rsVectorIsEmpty. For all elements.
template <AnyElement T>
[[nodiscard]] QORVEX_EXPORT SumOf<T> SumVector(const TQorVector<T>& vector);

/// The sum of the squares. An empty vector raises EMathError with rsVectorIsEmpty. For all numeric
/// elements.
///
/// Each integer square keeps only the low bits of its narrow width and is then added in
/// int64:
///
/// | element      | square                                                                     |
/// |--------------|----------------------------------------------------------------------------|
/// | int64        | of the low 32 bits; low 32 bits of the product, sign-extended               |
/// | int32        | low 32 bits, sign-extended                                                  |
/// | uint32       | low 32 bits, zero-extended                                                  |
/// | uint16       | low 16 bits, zero-extended                                                  |
/// | int16        | low 16 bits, sign-extended                                                  |
/// | uint8, int8  | low 16 bits, sign-extended (255 squared adds -511)                          |
///
/// For exact sums of large integers convert with Vector2FloatVector first.
template <NumericElement T>
[[nodiscard]] QORVEX_EXPORT SumOf<T> SumSqVector(const TQorVector<T>& vector);

/// The sum of (element - mean) squared, in extended precision, for a mean of the element type. An
/// empty vector raises EMathError with rsVectorIsEmpty.
template <FloatElement T>
[[nodiscard]] QORVEX_EXPORT Extended SumSqDiffVector(const TQorVector<T>& vector, ScalarOf<T> mean);

/// @cond internal
namespace detail {
template <WideIntegerElement T>
QORVEX_EXPORT std::int64_t SumSqDiffFromInteger(const TQorVector<T>& vector, T mean);
template <WideNumericElement T>
QORVEX_EXPORT Extended SumSqDiffFromExtended(const TQorVector<T>& vector, Extended mean);
}  // namespace detail
/// @endcond

/// The int64 sum of (element - mean) squared for an integral mean, which is converted to the
/// element type. The difference wraps in the element's width and is squared as SumSqVector squares
/// an element. An empty vector raises EMathError with rsVectorIsEmpty. For int64, uint32 and int32.
template <WideIntegerElement T, std::integral Mean>
[[nodiscard]] std::int64_t SumSqDiffVector(const TQorVector<T>& vector, Mean mean) {
  return detail::SumSqDiffFromInteger(vector, static_cast<T>(mean));
}

/// The extended sum of (element - mean) squared for a floating mean. An empty vector raises
/// EMathError with rsVectorIsEmpty. For int64, uint32 and int32.
template <WideIntegerElement T, std::floating_point Mean>
[[nodiscard]] Extended SumSqDiffVector(const TQorVector<T>& vector, Mean mean) {
  return detail::SumSqDiffFromExtended(vector, static_cast<Extended>(mean));
}

/// The squares of a[i] - b[i], summed: extended for floating elements; int64 for integers, whose
/// 64-bit difference is squared in its low 32 bits as a signed product, also for uint32.
/// EMathError: rsSameDimensions for different lengths, then rsVectorIsEmpty. For the six elements
/// of at least 32 bits.
template <WideNumericElement T>
[[nodiscard]] QORVEX_EXPORT SumOf<T> SumSqDiffVectors(const TQorVector<T>& a,
                                                      const TQorVector<T>& b);

/// The square root of the sum of the squares, all in extended precision; 0 for an empty vector. For
/// all numeric elements.
template <NumericElement T>
[[nodiscard]] QORVEX_EXPORT Extended VectorMagnitude(const TQorVector<T>& vector);

}  // namespace qorvex::inline QorvexVector
