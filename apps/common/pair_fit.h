#pragma once

/// @file
/// A line or a parabola through pairs of numbers, whatever their size and the digits they share.

#include <cstddef>
#include <optional>
#include <stdexcept>
#include <vector>

#include "qorvex/base/vector_types.h"

namespace qorvex::apps {

/// Why there is no curve through the pairs.
enum class PairFitFault {
  kTooFewDifferentX,  ///< A line needs two different x, a parabola three.
  kNearlyTwoPlaces,   ///< The x of a parabola lie too close to only two places.
  kTooLarge           ///< Sums are beyond the range of extended precision.
};

/// A fault of the pairs, in words.
class PairFitError : public std::runtime_error {
 public:
  PairFitError(PairFitFault fault, const char* text) : std::runtime_error(text), fault_(fault) {}

  [[nodiscard]] PairFitFault Fault() const noexcept { return fault_; }

 private:
  PairFitFault fault_;
};

/// A curve through pairs and what it leaves.
struct PairFit {
  Extended mean_x, mean_y;
  Extended std_dev_x, std_dev_y;
  Extended covariance;
  std::vector<Extended> coefficients;  ///< Of 1, x, x^2.
  Extended sse;                        ///< The sum of the squared errors.
  /// Without a value when the y are all the same.
  std::optional<Extended> correlation, determination;
};

/// The least-squares polynomial of degree 1 or 2 through pairs of finite numbers, as many x as y.
/// Raises PairFitError; every figure is finite otherwise. O(n).
[[nodiscard]] PairFit FitPairs(const TQorFloatVector& x, const TQorFloatVector& y,
                               std::size_t degree);

}  // namespace qorvex::apps
