#include "apps/common/round_step.h"

#include <cmath>
#include <initializer_list>

#include "qorvex/base/elementary/functions.h"

namespace qorvex::apps {

namespace {

Extended PowerOfTen(int exponent) {
  return Pow(Extended{10}, static_cast<Extended>(exponent));
}

}  // namespace

RoundStep RoundStep::AtLeast(Extended width) {
  const int exponent = static_cast<int>(std::floor(Log10(width)));
  // The logarithm may have been rounded across a power of ten.
  for (const RoundStep step : {RoundStep{1, exponent}, {2, exponent}, {5, exponent}})
    if (step.Times(1) >= width) return step;
  return {1, exponent + 1};
}

Extended RoundStep::Times(Extended count) const {
  const Extended digits = count * static_cast<Extended>(digit);
  return exponent < 0 ? digits / PowerOfTen(-exponent) : digits * PowerOfTen(exponent);
}

}  // namespace qorvex::apps
