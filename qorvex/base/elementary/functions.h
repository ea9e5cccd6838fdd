#pragma once

/// @file
/// The elementary functions, correctly rounded.
///
/// - Every result is the extended number nearest to the exact value of the function at the
///   argument, ties to even, whatever the processor, the compiler and the control word of the x87
///   unit. Pow may miss this for some 2^14 of its 2^149 pairs of arguments, whose powers lie within
///   2^-200 of the middle of two numbers by chance; none is known.
/// - Zeros, infinities, NaN and signs follow IEEE 754-2019, clause 9. NaN gives NaN; outside the
///   domain the result is NaN; a pole gives an infinity. Nothing is raised, and no floating-point
///   flag is meant to be read.
/// - The forms with two ranges put the value at x[i] into results[i], as if called one by one, and
///   quicker. results may be x itself. EMathError: rsSameDimensions if the lengths differ.

#include <span>

#include "qorvex/base/element_types.h"
#include "qorvex/base/export.h"
#include "qorvex/base/vector_view.h"

namespace qorvex::inline QorvexGlobals {

/// @{
/// e^x, e^x - 1, and 2^x.
[[nodiscard]] QORVEX_EXPORT Extended Exp(Extended x) noexcept;
QORVEX_EXPORT void Exp(VectorView<Extended> x, std::span<Extended> results);
[[nodiscard]] QORVEX_EXPORT Extended Expm1(Extended x) noexcept;
QORVEX_EXPORT void Expm1(VectorView<Extended> x, std::span<Extended> results);
[[nodiscard]] QORVEX_EXPORT Extended Exp2(Extended x) noexcept;
QORVEX_EXPORT void Exp2(VectorView<Extended> x, std::span<Extended> results);
/// @}

/// @{
/// The natural logarithm of x and of 1 + x, and the logarithms to the bases 2 and 10. -infinity at
/// the pole; NaN below.
[[nodiscard]] QORVEX_EXPORT Extended Log(Extended x) noexcept;
QORVEX_EXPORT void Log(VectorView<Extended> x, std::span<Extended> results);
[[nodiscard]] QORVEX_EXPORT Extended Log1p(Extended x) noexcept;
QORVEX_EXPORT void Log1p(VectorView<Extended> x, std::span<Extended> results);
[[nodiscard]] QORVEX_EXPORT Extended Log2(Extended x) noexcept;
QORVEX_EXPORT void Log2(VectorView<Extended> x, std::span<Extended> results);
[[nodiscard]] QORVEX_EXPORT Extended Log10(Extended x) noexcept;
QORVEX_EXPORT void Log10(VectorView<Extended> x, std::span<Extended> results);
/// @}

/// @{
/// x to the power y.
///
/// - 1 for y = 0 and for x = 1, even if the other is NaN.
/// - NaN if x is finite and below 0 and y is finite and not an integer.
/// - One exponent for a whole range.
[[nodiscard]] QORVEX_EXPORT Extended Pow(Extended x, Extended y) noexcept;
QORVEX_EXPORT void Pow(VectorView<Extended> x, Extended y, std::span<Extended> results);
/// @}

/// @{
/// Functions of an angle in radians. The angle is reduced exactly, however large it is; NaN for an
/// infinite one.
[[nodiscard]] QORVEX_EXPORT Extended Sin(Extended x) noexcept;
QORVEX_EXPORT void Sin(VectorView<Extended> x, std::span<Extended> results);
[[nodiscard]] QORVEX_EXPORT Extended Cos(Extended x) noexcept;
QORVEX_EXPORT void Cos(VectorView<Extended> x, std::span<Extended> results);
[[nodiscard]] QORVEX_EXPORT Extended Tan(Extended x) noexcept;
QORVEX_EXPORT void Tan(VectorView<Extended> x, std::span<Extended> results);
/// @}

/// @{
/// The angle in [0, pi], [-pi/2, pi/2] and [-pi/2, pi/2] with the given cosine, sine and tangent.
/// NaN for a cosine or sine outside [-1, 1].
[[nodiscard]] QORVEX_EXPORT Extended ArcCos(Extended x) noexcept;
QORVEX_EXPORT void ArcCos(VectorView<Extended> x, std::span<Extended> results);
[[nodiscard]] QORVEX_EXPORT Extended ArcSin(Extended x) noexcept;
QORVEX_EXPORT void ArcSin(VectorView<Extended> x, std::span<Extended> results);
[[nodiscard]] QORVEX_EXPORT Extended ArcTan(Extended x) noexcept;
QORVEX_EXPORT void ArcTan(VectorView<Extended> x, std::span<Extended> results);
/// @}

/// @{
/// The cube root, with the sign of x.
[[nodiscard]] QORVEX_EXPORT Extended Cbrt(Extended x) noexcept;
QORVEX_EXPORT void Cbrt(VectorView<Extended> x, std::span<Extended> results);
/// @}

/// @{
/// The error function, 2 / sqrt(pi) times the integral of e^(-t^2) from 0 to x, and 1 minus it.
[[nodiscard]] QORVEX_EXPORT Extended Erf(Extended x) noexcept;
QORVEX_EXPORT void Erf(VectorView<Extended> x, std::span<Extended> results);
[[nodiscard]] QORVEX_EXPORT Extended Erfc(Extended x) noexcept;
QORVEX_EXPORT void Erfc(VectorView<Extended> x, std::span<Extended> results);
/// @}

}  // namespace qorvex::inline QorvexGlobals
