#pragma once

// The standard normal distribution in numbers of 128 bits.

#include "qorvex/base/elementary/detail/wide.h"
#include "qorvex/base/export.h"
#include "qorvex/base/special/scaled.h"

namespace qorvex::special {

/// sqrt(1/2).
inline constexpr elementary::Wide kRootOfHalf{
    elementary::Join(0xb504f333f9de6484, 0x597d89b3754abe9f), -1};

/// e^(-z^2 / 2) / sqrt(2 pi), relative error below 2^-90; 0 for |z| >= 2^20.
[[nodiscard]] QORVEX_EXPORT elementary::Wide NormalDensityWide(const elementary::Wide& z);
/// The same for any z.
[[nodiscard]] QORVEX_EXPORT Scaled NormalDensity(const elementary::Wide& z);

/// The probability above |z|; relative error below 2^-90.
[[nodiscard]] QORVEX_EXPORT Scaled NormalFarTail(const elementary::Wide& z);

/// The point above which the probability is p, e^-16384 < p < 1; relative error below 2^-82.
[[nodiscard]] QORVEX_EXPORT elementary::Wide NormalUpperQuantile(const elementary::Wide& p);

}  // namespace qorvex::special
