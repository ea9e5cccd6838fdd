#pragma once

// Adds a multiple of a row of doubles or singles to another one. Each product and each sum is
// rounded to extended precision, and each sum then to the element type, as on the x87 processor,
// but eight elements at a time.

#include <concepts>
#include <cstddef>

#include "qorvex/base/export.h"
#include "qorvex/matrix/detail/row_kernels.h"

namespace qorvex::inline QorvexMatrix::detail {

// Shorter rows are left to AddElements, which is then faster.
inline constexpr std::size_t kLeastRoundedProducts = 16;

// target[i] = source[i] * factor + target[i] for at least kLeastRoundedProducts elements. The
// source may be the target, but must not overlap it otherwise.
QORVEX_EXPORT void AddRoundedProducts(double* target, const double* source, std::size_t count,
                                      double factor) noexcept;
QORVEX_EXPORT void AddRoundedProducts(float* target, const float* source, std::size_t count,
                                      float factor) noexcept;

// The same for rows of any length and type: AddElements, or what is faster.
template <class T>
void AddMultiple(T* target, const T* source, std::size_t count, FactorOf<T> factor) noexcept {
  if constexpr (std::same_as<T, double> || std::same_as<T, float>) {
    const auto rounded = static_cast<T>(factor);
    if (count >= kLeastRoundedProducts && static_cast<Extended>(rounded) == factor) {
      return AddRoundedProducts(target, source, count, rounded);
    }
  }
  AddElements(target, source, count, factor);
}

}  // namespace qorvex::inline QorvexMatrix::detail
