#pragma once

/// @file
/// The type of the constants that matrices are multiplied by.

#include <type_traits>

#include "qorvex/base/element_types.h"

namespace qorvex::inline QorvexMatrix {

/// @cond internal
// A class of its own for the reason that SumType is one.
template <class T>
struct FactorType {
  using Type = std::conditional_t<FloatElement<T>, Extended, T>;
};
/// @endcond

/// Extended for floating elements, so that a factor keeps all its digits; an integer's own type.
template <SignedArithmeticElement T>
using FactorOf = typename FactorType<T>::Type;

}  // namespace qorvex::inline QorvexMatrix
