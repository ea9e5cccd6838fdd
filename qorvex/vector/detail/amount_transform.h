#pragma once

#include <cstdint>
#include <span>

#include "qorvex/base/currency.h"

namespace qorvex::inline QorvexVector::detail {

// Replaces each amount by LinearTransform of it.
template <CurrencyElement T>
void TransformAmounts(std::span<T> amounts, Extended slope, Extended intercept) noexcept;

}  // namespace qorvex::inline QorvexVector::detail
