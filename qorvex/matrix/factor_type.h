#pragma once

/// @file
/// The type of the constants that matrices are multiplied by.

#include <type_traits>

#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexMatrix {

/// @cond internal
// A class of its own for the reason that SumType is one.
template <class T>
struct FactorType {
  using Type = std::conditional_t<IntegerElement<T>, T, Extended>;
};
/// @endcond

/// Extended for floating elements and currencies, so that a factor keeps all its digits; an
/// integer's own type.
template <AdditiveElement T>
using FactorOf = typename FactorType<T>::Type;

}  // namespace qorvex::inline QorvexMatrix
