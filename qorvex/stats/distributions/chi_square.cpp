#include "qorvex/stats/distributions/chi_square.h"

#include "qorvex/stats/distributions/detail/checks.h"

namespace qorvex {

using namespace distributions;

namespace {

Extended CheckedShape(Extended df) {
  RequirePositive(df, rsDF);
  return df / 2;
}

}  // namespace

ChiSquareDistribution::ChiSquareDistribution(Extended df) : gamma_(CheckedShape(df), 2) {}

}  // namespace qorvex
