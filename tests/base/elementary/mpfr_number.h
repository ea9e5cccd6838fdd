#pragma once

#include <mpfr.h>

#include "qorvex/base/elementary/detail/wide.h"

namespace qorvex::testing {

/// A number of MPFR that frees itself.
class MpfrNumber {
 public:
  explicit MpfrNumber(mpfr_prec_t precision) { mpfr_init2(number_, precision); }
  ~MpfrNumber() { mpfr_clear(number_); }
  MpfrNumber(const MpfrNumber&) = delete;
  MpfrNumber& operator=(const MpfrNumber&) = delete;

  operator mpfr_ptr() { return number_; }  // NOLINT: to pass it to MPFR

  /// The number exactly, ten times as fast as mpfr_set_ld. The precision is at least 64 bits, and
  /// 128 for a Wide.
  void Set(Extended x) {
    const elementary::Binary80 bits = elementary::BitsOf(x);
    const int sign = bits.IsNegative() ? -1 : 1;
    if (elementary::IsNaN(bits)) {
      mpfr_set_nan(number_);
    } else if (elementary::IsInfinity(bits)) {
      mpfr_set_inf(number_, sign);
    } else if (elementary::IsZero(bits)) {
      mpfr_set_zero(number_, sign);
    } else {
      const elementary::Normalised parts = elementary::Normalise(bits);
      mpfr_set_ui_2exp(number_, parts.significand, parts.exponent - 63, MPFR_RNDN);
      if (sign < 0) mpfr_neg(number_, number_, MPFR_RNDN);
    }
  }
  void Set(const elementary::Wide& x) {
    mpfr_set_ui_2exp(number_, elementary::High(x.mantissa), 64, MPFR_RNDN);
    mpfr_add_ui(number_, number_, elementary::Low(x.mantissa), MPFR_RNDN);
    mpfr_mul_2si(number_, number_, x.exponent - 127, MPFR_RNDN);
    if (x.negative) mpfr_neg(number_, number_, MPFR_RNDN);
  }

 private:
  mpfr_t number_;
};

}  // namespace qorvex::testing
