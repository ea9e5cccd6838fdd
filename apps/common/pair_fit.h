#pragma once

/// @file
/// Least-squares lines and parabolas through pairs of numbers of any magnitude and offset.

#include <cstddef>
#include <optional>
#include <stdexcept>
#include <vector>

#include "qorvex/base/vector_types.h"

namespace qorvex::apps {

/// Why a fit fails.
enum class PairFitFault {
  kTooFewDifferentX,  ///< A line needs two different x, a parabola three.
  kNearlyTwoPlaces,   ///< The x are too close to only two places for a parabola.
  kTooLarge           ///< Sums are beyond the range of extended precision.
};

/// A failed fit.
class PairFitError : public std::runtime_error {
 public:
  PairFitError(PairFitFault fault, const char* text) : std::runtime_error(text), fault_(fault) {}

  [[nodiscard]] PairFitFault Fault() const noexcept { return fault_; }

 private:
  PairFitFault fault_;
};

/// A fitted curve and its statistics.
struct PairFit {
  Extended mean_x, mean_y;
  Extended std_dev_x, std_dev_y;
  Extended covariance;
  std::vector<Extended> coefficients;  ///< Of 1, x and x^2.
  Extended sse;                        ///< The sum of the squared errors.
  /// Empty if all y are equal.
  std::optional<Extended> correlation, determination;
};

/// The least-squares polynomial of degree 1 or 2 through pairs of finite numbers.
///
/// - There are as many x as y. All figures of the result are finite.
/// - Throws PairFitError.
/// - O(n).
[[nodiscard]] PairFit FitPairs(const TQorFloatVector& x, const TQorFloatVector& y,
                               std::size_t degree);

}  // namespace qorvex::apps
