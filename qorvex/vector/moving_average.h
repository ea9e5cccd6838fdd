#pragma once

/// @file
/// The moving average of a vector.

#include <cstdint>

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexVector {

/// @{
/// A new vector of the same length with the mean of each window of `period` elements.
///
/// - The mean is stored at position `offset` within the window: 0 is the first element. An offset
///   of period or more counts as period - 1, the last element.
/// - Elements without a window are 0; all are if the period exceeds the length.
/// - Every window is summed separately in extended precision, in ascending order. So rounding
///   errors do not accumulate over windows, and NaN and infinities affect only the windows that
///   contain them.
/// - EMathError, in this order: rsVectorIsEmpty for n = 0, rsValueNotZero for a period of 0.
/// - O(n * period). For floating elements.
template <FloatElement T>
[[nodiscard]] QORVEX_EXPORT TQorVector<T> MovingAverage(VectorView<T> vector, std::uint32_t period,
                                                        std::uint32_t offset);
template <ContiguousRange Range>
requires FloatElement<ElementOf<Range>>
[[nodiscard]] TQorVector<ElementOf<Range>> MovingAverage(const Range& vector, std::uint32_t period,
                                                         std::uint32_t offset) {
  return MovingAverage<ElementOf<Range>>(vector, period, offset);
}
/// @}

}  // namespace qorvex::inline QorvexVector
