#pragma once

/// @file
/// The distribution routines of the unit QorvexStatistics behind one signature.

#include <cstdint>
#include <span>

#include "qorvex/base/vector_types.h"

namespace qorvex::apps {

/// Numbers in order: the parameters, then what is asked for.
using Numbers = std::span<const Extended>;

/// The routines of a family; null where it has none.
struct ClassicRoutines {
  using Routine = Extended (*)(Numbers numbers);

  /// These take the parameters, then a point, two points or a probability.
  Routine density = nullptr;
  Routine less = nullptr;
  Routine greater = nullptr;
  Routine between = nullptr;
  Routine quantile = nullptr;
  Routine upper_quantile = nullptr;
  /// Takes the parameters and the ends of the range.
  void (*table)(Numbers numbers, std::int32_t n, TQorFloatVector& x_values,
                TQorFloatVector& y_values) = nullptr;
};

/// @{
/// Those of each family.
extern const ClassicRoutines kClassicNormal;
extern const ClassicRoutines kClassicLogNormal;
extern const ClassicRoutines kClassicExponential;
extern const ClassicRoutines kClassicGamma;
extern const ClassicRoutines kClassicChiSquare;
extern const ClassicRoutines kClassicStudentT;
extern const ClassicRoutines kClassicF;
extern const ClassicRoutines kClassicBeta;
extern const ClassicRoutines kClassicBinomial;
extern const ClassicRoutines kClassicHypergeometric;
extern const ClassicRoutines kClassicPoisson;
/// @}

}  // namespace qorvex::apps
