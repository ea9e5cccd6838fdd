#include <cmath>
#include <cstdio>

#include "base/elementary/elementary_functions.h"
#include "qorvex/base/elementary/detail/binary80.h"

namespace qorvex::testing {

namespace {

using elementary::Binary80;
using elementary::BitsOf;

// Exponents of MPFR, whose significands are in [1/2, 1).
constexpr mpfr_exp_t kEmin = kLeastExponent + 1;
constexpr mpfr_exp_t kEmax = kGreatestExponent + 1;
constexpr mpfr_exp_t kWideRange = 1 << 30;

void SetRange(mpfr_exp_t least, mpfr_exp_t greatest) {
  mpfr_set_emin(least);
  mpfr_set_emax(greatest);
}

}  // namespace

void Reference::SetArguments(const Arguments& arguments) {
  x_.Set(arguments.x);
  y_.Set(arguments.y);
}

Extended Reference::Nearest(const ElementaryFunction& function, const Arguments& arguments) {
  SetRange(kEmin, kEmax);
  SetArguments(arguments);
  const int ternary = function.exact(nearest_, x_, y_, MPFR_RNDN);
  mpfr_subnormalize(nearest_, ternary, MPFR_RNDN);
  return mpfr_get_ld(nearest_, MPFR_RNDN);
}

Extended Reference::ErrorOf(const ElementaryFunction& function, const Arguments& arguments,
                            Extended result) {
  SetRange(-kWideRange, kWideRange);
  SetArguments({arguments.x, function.is_nearest ? arguments.y : result});
  function.exact(exact_, x_, y_, MPFR_RNDN);
  if (!std::isfinite(result) || mpfr_regular_p(exact_) == 0) {
    const bool same =
        mpfr_nan_p(exact_) != 0 ? std::isnan(result) : mpfr_cmp_ld(exact_, result) == 0;
    return same ? 0 : HUGE_VALL;
  }
  const mpfr_exp_t last_place = std::max<mpfr_exp_t>(mpfr_get_exp(exact_) - 64, kLeastExponent);
  x_.Set(result);
  mpfr_sub(difference_, exact_, x_, MPFR_RNDA);
  mpfr_mul_2si(difference_, difference_, -last_place, MPFR_RNDN);
  return std::fabs(mpfr_get_ld(difference_, MPFR_RNDA));
}

Extended Reference::DistanceExponent(const ElementaryFunction& function, const Arguments& arguments,
                                     bool to_midpoint) {
  SetRange(-kWideRange, kWideRange);
  SetArguments(arguments);
  function.exact(exact_, x_, y_, MPFR_RNDN);
  const mpfr_exp_t last_place = std::max<mpfr_exp_t>(mpfr_get_exp(exact_) - 64, kLeastExponent);
  mpfr_mul_2si(exact_, exact_, -last_place, MPFR_RNDN);
  if (to_midpoint) mpfr_sub_d(exact_, exact_, 0.5, MPFR_RNDN);
  mpfr_rint(difference_, exact_, MPFR_RNDN);
  mpfr_sub(difference_, exact_, difference_, MPFR_RNDN);
  if (mpfr_zero_p(difference_) != 0) return -HUGE_VALL;
  mpfr_abs(difference_, difference_, MPFR_RNDN);
  mpfr_log2(difference_, difference_, MPFR_RNDN);
  return mpfr_get_ld(difference_, MPFR_RNDN);
}

void RegionOutcome::Add(const RegionOutcome& other) {
  tried += other.tried;
  not_nearest += other.not_nearest;
  if (other.largest_error > largest_error) {
    largest_error = other.largest_error;
    worst = other.worst;
  }
}

RegionOutcome Try(const ElementaryFunction& function, const ArgumentRegion& region,
                  std::uint64_t count, std::uint64_t seed) {
  Engine engine(seed);
  Reference reference;
  RegionOutcome outcome;
  for (; outcome.tried < count; ++outcome.tried) {
    const Arguments arguments = region.draw(engine);
    const Extended result = function.ours(arguments);
    if (function.is_nearest && IsSameNumber(result, reference.Nearest(function, arguments)))
      continue;
    const Extended error = reference.ErrorOf(function, arguments, result);
    if (function.is_nearest || error > 0.5L) ++outcome.not_nearest;
    if (error > outcome.largest_error) {
      outcome.largest_error = error;
      outcome.worst = arguments;
    }
  }
  return outcome;
}

bool IsSameNumber(Extended a, Extended b) {
  const Binary80 first = BitsOf(a);
  const Binary80 second = BitsOf(b);
  return (first.significand == second.significand && first.sign_exponent == second.sign_exponent) ||
         (std::isnan(a) && std::isnan(b));
}

std::string Text(const Arguments& arguments) {
  char text[96];
  std::snprintf(text, sizeof text, arguments.y == 0 ? "%La" : "%La, %La", arguments.x, arguments.y);
  return text;
}

}  // namespace qorvex::testing
