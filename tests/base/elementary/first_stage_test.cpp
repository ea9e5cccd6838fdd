#include "qorvex/base/elementary/detail/first_stage.h"

#include <gtest/gtest.h>

#include "base/elementary/elementary_functions.h"
#include "support/environment.h"

namespace qorvex::testing {

namespace {

using elementary::Wide;

struct FirstStage {
  const char* name;
  Wide (*ours)(Extended);
  int (*exact)(mpfr_ptr, mpfr_srcptr, mpfr_rnd_t);
  std::vector<Draw> arguments;
};

const FirstStage kFirstStages[] = {
    {"LogWide",
     elementary::LogWide,
     mpfr_log,
     {Exponents(-16382, 16383, Sign::kPlus), Near(1), FewBits(-2, 2, Sign::kPlus)}},
    {"LogWide(Wide)",
     [](Extended x) { return elementary::LogWide(Wide(x)); },
     mpfr_log,
     {Exponents(-16382, 16383, Sign::kPlus), Near(1)}},
    {"Log1pWide",
     elementary::Log1pWide,
     mpfr_log1p,
     {Exponents(-16382, 16383, Sign::kPlus), Exponents(-70, -1), FewBits(-70, -1)}},
    {"ExpWide",
     [](Extended x) { return elementary::ExpWide(Wide(x)); },
     mpfr_exp,
     {Exponents(-80, 13), Multiples(0.693147180559945309417L / 65536, 29), FewBits(-20, 13)}},
    {"Expm1Wide",
     [](Extended x) { return elementary::Expm1Wide(Wide(x)); },
     mpfr_expm1,
     {Exponents(-80, 13), FewBits(-20, 10)}},
    {"SinCosWide, sine",
     [](Extended x) { return elementary::SinCosWide(x).sine; },
     mpfr_sin,
     {Exponents(-80, 80), Multiples(1.57079632679489661923L, 60)}},
    {"SinCosWide, cosine",
     [](Extended x) { return elementary::SinCosWide(x).cosine; },
     mpfr_cos,
     {Exponents(-80, 80), Multiples(1.57079632679489661923L, 60)}},
    {"ArcTanWide",
     [](Extended x) { return elementary::ArcTanWide(Wide(x), Wide(1.0L)); },
     mpfr_atan,
     {Exponents(-80, 80, Sign::kPlus), FewBits(-10, 10, Sign::kPlus)}},
};

}  // namespace

// What densities and tails compute with has relative errors below 2^-96.
TEST(ElementaryFirstStage, KeepsItsErrorBounds) {
  const int cases = FromEnvironment("QORVEX_ELEMENTARY_CASES", 20'000) / 4;
  MpfrNumber x(64), exact(256), result(256);
  for (const FirstStage& stage : kFirstStages) {
    Engine engine(11);
    for (const Draw& draw : stage.arguments) {
      double worst = 0;
      Extended where = 0;
      for (int i = 0; i < cases; ++i) {
        const Extended argument = draw(engine).x;
        x.Set(argument);
        stage.exact(exact, x, MPFR_RNDN);
        result.Set(stage.ours(argument));
        mpfr_sub(result, result, exact, MPFR_RNDN);
        mpfr_div(result, result, exact, MPFR_RNDN);
        const double error = std::fabs(mpfr_get_d(result, MPFR_RNDA));
        // NaN, too, if the exact value is 0 and ours is not.
        if (!(error <= worst) && !(mpfr_zero_p(exact) != 0 && stage.ours(argument).IsZero())) {
          worst = error;
          where = argument;
        }
      }
      EXPECT_LE(worst, 0x1p-96) << stage.name << " 2^" << std::log2(worst) << ' ' << Text({where});
    }
  }
}

}  // namespace qorvex::testing
