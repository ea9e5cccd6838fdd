#pragma once

// The functions as numbers of 128 bits, before they are rounded to 64: as quick as the rounded
// functions, and with some 35 bits more. Densities and tails are computed in these numbers and
// rounded once.

#include "qorvex/base/elementary/detail/wide.h"
#include "qorvex/base/export.h"

namespace qorvex::elementary {

/// ln x for x > 0; relative error below 2^-96.
[[nodiscard]] QORVEX_EXPORT Wide LogWide(Extended x);
[[nodiscard]] QORVEX_EXPORT Wide LogWide(const Wide& x);
/// ln(1 + x) for finite x > -1; relative error below 2^-96.
[[nodiscard]] QORVEX_EXPORT Wide Log1pWide(Extended x);
[[nodiscard]] QORVEX_EXPORT Wide Log1pWide(const Wide& x);

/// e^x and e^x - 1 for |x| < 2^40; relative error below 2^-96 max(1, |x| 2^-14). Nothing overflows
/// or underflows. Beyond, there are no digits left, and from 2^63 on the behaviour is undefined.
[[nodiscard]] QORVEX_EXPORT Wide ExpWide(const Wide& x);
[[nodiscard]] QORVEX_EXPORT Wide Expm1Wide(const Wide& x);

/// sin x and cos x for finite x; relative error below 2^-96.
struct SineAndCosine {
  Wide sine;
  Wide cosine;
};
[[nodiscard]] QORVEX_EXPORT SineAndCosine SinCosWide(Extended x);

/// The angle with tangent y / x for y > 0, x >= 0; relative error below 2^-96.
[[nodiscard]] QORVEX_EXPORT Wide ArcTanWide(const Wide& y, const Wide& x);

}  // namespace qorvex::elementary
