#pragma once

/// @file
/// The type of the constants in products and linear transformations of matrices.

#include <type_traits>

#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexMatrix {

/// @cond internal
// A separate class for the same reason as SumType.
template <class T>
struct FactorType {
  using Type = std::conditional_t<IntegerElement<T>, T, Extended>;
};
/// @endcond

/// The element type for integers; Extended for floating elements and currencies, so that factors
/// keep all their digits.
template <AdditiveElement T>
using FactorOf = typename FactorType<T>::Type;

}  // namespace qorvex::inline QorvexMatrix
