#pragma once

#include <cstdint>

#include "qorvex/base/vector_types.h"

namespace qorvex::benchmarks {

/// @{
/// The plain loops over integers that our routines are compared with, in 64-bit arithmetic that
/// wraps around. Compiled with -O2, as programs usually are, whereas the benchmarks use -O3.
template <IntegerElement T>
std::uint64_t LoopSum(VectorView<T> vector);
template <IntegerElement T>
std::uint64_t LoopDotProduct(VectorView<T> a, VectorView<T> b);
/// @}

}  // namespace qorvex::benchmarks
