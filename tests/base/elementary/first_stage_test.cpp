#include "qorvex/base/elementary/detail/first_stage.h"

#include <cmath>
#include <gtest/gtest.h>

#include "base/elementary/elementary_functions.h"
#include "qorvex/base/elementary/detail/erf_wide.h"
#include "support/environment.h"

namespace qorvex::testing {

namespace {

using elementary::Wide;

/// A function and arguments: extended numbers, or 128 bits if the function takes them.
struct FirstStage {
  const char* name;
  Wide (*ours)(const Wide&);
  int (*exact)(mpfr_ptr, mpfr_srcptr, mpfr_rnd_t);
  std::vector<Draw> arguments;
  bool takes_wide = true;
  double largest_error = 0x1p-96;
};

template <Wide (*kFunction)(Extended)>
Wide OfExtended(const Wide& x) {
  return kFunction(elementary::Nearest(x));
}
Wide ArcTan(const Wide& x) {
  return elementary::ArcTanWide(x, Wide(1.0L));
}
Wide Sine(const Wide& x) {
  return elementary::SinCosWide(elementary::Nearest(x)).sine;
}
Wide Cosine(const Wide& x) {
  return elementary::SinCosWide(elementary::Nearest(x)).cosine;
}

int HalfErfc(mpfr_ptr result, mpfr_srcptr x, mpfr_rnd_t rounding) {
  mpfr_erfc(result, x, rounding);
  return mpfr_div_2ui(result, result, 1, rounding);
}

const Draw kMultiplesOfHalfPi = Multiples(1.57079632679489661923L, 60);
const Draw kAnyPositive = Exponents(-16382, 16383, Sign::kPlus);
const FirstStage kFirstStages[] = {
    {"LogWide(Extended)",
     OfExtended<elementary::LogWide>,
     mpfr_log,
     {kAnyPositive, Near(1), FewBits(-2, 2, Sign::kPlus)},
     false},
    {"LogWide", elementary::LogWide, mpfr_log, {kAnyPositive, Near(1)}},
    {"Log1pWide(Extended)",
     OfExtended<elementary::Log1pWide>,
     mpfr_log1p,
     {kAnyPositive, Exponents(-70, -1), FewBits(-70, -1)},
     false},
    {"Log1pWide", elementary::Log1pWide, mpfr_log1p, {kAnyPositive, Exponents(-70, -1)}},
    {"ExpWide",
     elementary::ExpWide,
     mpfr_exp,
     {Exponents(-80, 13), Multiples(0.693147180559945309417L / 65536, 29), FewBits(-20, 13)}},
    {"Expm1Wide", elementary::Expm1Wide, mpfr_expm1, {Exponents(-80, 13), FewBits(-20, 10)}},
    {"Sine", Sine, mpfr_sin, {Exponents(-80, 80), kMultiplesOfHalfPi}, false},
    {"Cosine", Cosine, mpfr_cos, {Exponents(-80, 80), kMultiplesOfHalfPi}, false},
    {"ArcTanWide",
     ArcTan,
     mpfr_atan,
     {Exponents(-80, 80, Sign::kPlus), FewBits(-10, 10, Sign::kPlus)}},
    {"ErfWide", elementary::ErfWide, mpfr_erf, {Exponents(-80, 3), FewBits(-8, 3)}, true, 0x1p-90},
    {"HalfErfcWide",
     elementary::HalfErfcWide,
     HalfErfc,
     {Exponents(-80, 13, Sign::kPlus), FewBits(-8, 13, Sign::kPlus)},
     true,
     0x1p-90},
};

}  // namespace

// What densities and tails compute with has the relative errors that the headers state.
TEST(ElementaryFirstStage, KeepsItsErrorBounds) {
  const int cases = FromEnvironment("QORVEX_ELEMENTARY_CASES", 20'000) / 4;
  MpfrNumber x(128), exact(256), error(256);
  mpfr_set_emin(-(1 << 30));
  mpfr_set_emax(1 << 30);
  for (const FirstStage& stage : kFirstStages) {
    Engine engine(11);
    for (const Draw& draw : stage.arguments) {
      double worst = 0;
      Extended where = 0;
      for (int i = 0; i < cases; ++i) {
        Wide argument(draw(engine).x);
        if (stage.takes_wide) argument.mantissa |= engine();
        x.Set(argument);
        stage.exact(exact, x, MPFR_RNDN);
        error.Set(stage.ours(argument));
        if (mpfr_equal_p(error, exact) != 0) continue;
        mpfr_sub(error, error, exact, MPFR_RNDN);
        mpfr_div(error, error, exact, MPFR_RNDN);
        const double relative = std::fabs(mpfr_get_d(error, MPFR_RNDA));
        if (relative <= worst) continue;
        worst = relative;
        where = elementary::Nearest(argument);
      }
      EXPECT_LE(worst, stage.largest_error)
          << stage.name << " 2^" << std::log2(worst) << ' ' << Text({where});
    }
  }
}

}  // namespace qorvex::testing
