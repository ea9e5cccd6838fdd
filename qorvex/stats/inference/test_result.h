#pragma once

/// @file
/// What tests of hypotheses take and return.
///
/// All tests share this contract:
///
/// - The result is a plain struct; programs format it.
/// - The statistic is the exact figure of the data, rounded once, unless a test says otherwise.
/// - p has the accuracy of the tails in stats/distributions, at the statistic before it is rounded,
///   however small p is; log_p also where p underflows. Near p = 1 log_p is known as well as 1 - p,
///   except for two-sided p of variances, of counts and of two samples of Kolmogorov and Smirnov,
///   and p of a sum of many probabilities: there it is off by some units of 2^-64.
/// - A NaN among the values gives a result of NaN, form and degrees of freedom apart; so does an
///   infinity, except where a test only compares values.
/// - Errors are raised in the order in which a test lists them, before anything is computed.

#include <cstdint>
#include <limits>

#include "qorvex/base/element_types.h"

namespace qorvex {

/// The hypothesis that a test sets against its null hypothesis.
enum class Alternative : std::uint8_t {
  kTwoSided,  ///< different
  kLess,      ///< less: of the first sample where there are two
  kGreater,   ///< greater
};

/// Where the p-value of a test comes from.
enum class TestForm : std::uint8_t {
  kExact,  ///< the distribution of the statistic itself, for normal data where the test assumes
           ///< them
  kWelch,  ///< Student's t with degrees of freedom that make up for unequal variances
  kNormalApproximation,     ///< a normal distribution
  kChiSquareApproximation,  ///< a chi-square distribution
  kLimit,                   ///< the limit of the distribution for large samples
};

/// The result of a test.
struct TestResult {
  /// The test statistic.
  Extended statistic = std::numeric_limits<Extended>::quiet_NaN();
  /// The degrees of freedom; NaN for tests without.
  Extended degrees_of_freedom = std::numeric_limits<Extended>::quiet_NaN();
  /// The degrees of freedom of the denominator of F; NaN for other tests.
  Extended second_degrees_of_freedom = std::numeric_limits<Extended>::quiet_NaN();
  /// The probability, if the null hypothesis holds, of a statistic that speaks against it at least
  /// as much.
  Extended p = std::numeric_limits<Extended>::quiet_NaN();
  /// The natural logarithm of p.
  Extended log_p = std::numeric_limits<Extended>::quiet_NaN();
  /// Where p comes from.
  TestForm form = TestForm::kExact;
};

}  // namespace qorvex
