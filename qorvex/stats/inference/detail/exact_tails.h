#pragma once

/// @file
/// Tails at statistics of more than 64 bits, which keep their digits however far out they are.

#include "qorvex/base/special/tails.h"

namespace qorvex::inference {

/// @{
/// Student's t, chi-square and F at a point that may be infinite.
[[nodiscard]] special::Tails StudentTails(special::ExtendedPair t, Extended df);
[[nodiscard]] special::Tails ChiSquareTails(special::ExtendedPair x, Extended df);
[[nodiscard]] special::Tails FTails(special::ExtendedPair f, Extended df1, Extended df2);
/// @}

}  // namespace qorvex::inference
