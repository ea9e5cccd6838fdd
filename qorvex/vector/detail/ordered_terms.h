#pragma once

#include <concepts>
#include <cstddef>

#include "qorvex/base/detail/instructions.h"
#include "qorvex/base/element_types.h"
#include "qorvex/vector/detail/lattice_sum.h"

namespace qorvex::inline QorvexVector::detail {

// The terms of sums, computed in extended precision.

/// Terms that are not rounded themselves: values, and products of singles.
template <class Terms>
inline constexpr bool kExactTerms = false;

/// x
template <class T>
struct Values {
  const T* x;
  Extended operator[](std::size_t i) const noexcept { return static_cast<Extended>(x[i]); }
};

template <class T>
inline constexpr bool kExactTerms<Values<T>> = true;

/// x^2
template <class T>
struct Squares {
  const T* x;
  Extended operator[](std::size_t i) const noexcept {
    const auto value = static_cast<Extended>(x[i]);
    return value * value;
  }
};

template <>
inline constexpr bool kExactTerms<Squares<float>> = true;

/// x y
template <class T>
struct Products {
  const T* x;
  const T* y;
  Extended operator[](std::size_t i) const noexcept {
    return static_cast<Extended>(x[i]) * static_cast<Extended>(y[i]);
  }
};

template <>
inline constexpr bool kExactTerms<Products<float>> = true;

/// (x - y)^2
template <class T>
struct SquaredDifferences {
  const T* x;
  const T* y;
  Extended operator[](std::size_t i) const noexcept {
    const Extended difference = static_cast<Extended>(x[i]) - static_cast<Extended>(y[i]);
    return difference * difference;
  }
};

/// (x - mean)^2
template <class T>
struct SquaredDeviations {
  const T* x;
  Extended mean;
  // Their sum is the mean, unless it is infinite, NaN, huge or tiny.
  double mean_high = static_cast<double>(mean);
  double mean_low = static_cast<double>(mean - static_cast<Extended>(mean_high));
  Extended operator[](std::size_t i) const noexcept {
    const Extended difference = static_cast<Extended>(x[i]) - mean;
    return difference * difference;
  }
};

/// Whether there are kernels for such terms.
template <class Terms>
inline constexpr bool kHasKernel = true;
template <template <class> class Terms>
inline constexpr bool kHasKernel<Terms<Extended>> = std::same_as<Terms<Extended>, Values<Extended>>;

/// The terms before the first block, because the sum has to be large. If terms are rounded
/// themselves, it has to be larger.
template <class Terms>
inline constexpr std::size_t kFirstTerms = kExactTerms<Terms> ? 256 : 1024;

/// Adds blocks of LatticeSum::kBlock terms from `first` on, until one does not fit. Returns how
/// many were added.
template <class Terms>
QORVEX_AVX2 std::size_t AddBlocksAvx2(LatticeSum& sum, const Terms& terms, std::size_t first,
                                      std::size_t blocks) noexcept;
template <class Terms>
QORVEX_AVX512 std::size_t AddBlocksAvx512(LatticeSum& sum, const Terms& terms, std::size_t first,
                                          std::size_t blocks) noexcept;

// The terms that they exist for.
#define QORVEX_FOR_LATTICE_TERMS(Macro)                                                     \
  Macro(Values<Extended>) Macro(Values<double>) Macro(Values<float>) Macro(Squares<double>) \
      Macro(Squares<float>) Macro(Products<double>) Macro(Products<float>)                  \
          Macro(SquaredDifferences<double>) Macro(SquaredDifferences<float>)                \
              Macro(SquaredDeviations<double>) Macro(SquaredDeviations<float>)

}  // namespace qorvex::inline QorvexVector::detail
