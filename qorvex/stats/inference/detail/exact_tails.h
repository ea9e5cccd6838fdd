#pragma once

/// @file
/// Tails at statistics of more than 64 bits, which keep their digits however far out they are.

#include "qorvex/base/special/tails.h"
#include "qorvex/stats/inference/test_result.h"

namespace qorvex::inference {

/// @{
/// Student's t, chi-square and F at a point that may be infinite.
[[nodiscard]] special::Tails StudentTails(special::ExtendedPair t, Extended df);
[[nodiscard]] special::Tails ChiSquareTails(special::ExtendedPair x, Extended df);
[[nodiscard]] special::Tails FTails(special::ExtendedPair f, Extended df1, Extended df2);
/// @}

/// @{
/// The result with p from Student's t, or from the normal distribution. For kTwoSided log_p keeps
/// its digits near p = 1 as well.
[[nodiscard]] TestResult WithStudentTails(const TestResult& result, special::ExtendedPair t,
                                          Extended df, Alternative alternative);
[[nodiscard]] TestResult WithNormalTails(const TestResult& result, special::ExtendedPair z,
                                         Alternative alternative);
/// @}

}  // namespace qorvex::inference
