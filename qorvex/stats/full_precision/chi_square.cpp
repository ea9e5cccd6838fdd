#include "qorvex/stats/full_precision.h"
#include "qorvex/stats/full_precision/detail/shared.h"

namespace qorvex::full_precision {

using namespace detail;

// A chi-square variable is a gamma variable of half the degrees of freedom and scale 2.

Extended ChiSquarePdf(Extended df, Extended x) {
  RequirePositive(df, rsDF);
  return GammaPdf(df / 2, 2, x);
}

Extended ChiSquareLower(Extended df, Extended x) {
  RequirePositive(df, rsDF);
  return GammaLower(df / 2, 2, x);
}

Extended ChiSquareUpper(Extended df, Extended x) {
  RequirePositive(df, rsDF);
  return GammaUpper(df / 2, 2, x);
}

Extended ChiSquareLogLower(Extended df, Extended x) {
  RequirePositive(df, rsDF);
  return GammaLogLower(df / 2, 2, x);
}

Extended ChiSquareLogUpper(Extended df, Extended x) {
  RequirePositive(df, rsDF);
  return GammaLogUpper(df / 2, 2, x);
}

Extended ChiSquareQuantile(Extended df, Extended p) {
  RequireProbability(p);
  RequirePositive(df, rsDF);
  return GammaQuantile(df / 2, 2, p);
}

Extended ChiSquareUpperQuantile(Extended df, Extended q) {
  RequireProbability(q);
  RequirePositive(df, rsDF);
  return GammaUpperQuantile(df / 2, 2, q);
}

}  // namespace qorvex::full_precision
