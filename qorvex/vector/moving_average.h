#pragma once

/// @file
/// The moving average of a vector.

#include <cstdint>

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexVector {

/// A new vector of the same length with the mean of each window of `period` elements, written at
/// index `offset` of the window: 0 is its first element; anything beyond the last counts as the
/// last. Positions that no window reaches are 0, and all are when the period exceeds the length.
///
/// Every window is summed afresh in extended precision, in ascending order, so no rounding error
/// travels from one window to the next and NaN or an infinity spoils only the windows that hold it.
/// EMathError: rsVectorIsEmpty for an empty vector, then rsValueNotZero for a period of 0. For
/// floating elements. O(n period).
template <FloatElement T>
[[nodiscard]] QORVEX_EXPORT TQorVector<T> MovingAverage(const TQorVector<T>& vector,
                                                        std::uint32_t period, std::uint32_t offset);

}  // namespace qorvex::inline QorvexVector
