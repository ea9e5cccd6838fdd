#pragma once

/// @file
/// The two tails of a distribution at a point.

#include "qorvex/base/special/scaled.h"

namespace qorvex::special {

/// A side of a point.
enum class Tail {
  kLower,  ///< at most the point
  kUpper,  ///< more than the point
};

/// The other side.
constexpr Tail Opposite(Tail tail) {
  return tail == Tail::kLower ? Tail::kUpper : Tail::kLower;
}

/// The probabilities on both sides of a point. One of them is known with full relative accuracy,
/// the other, which is not much smaller, as 1 minus it.
struct Tails {
  /// The tail that is known. As members of an aggregate both are made in place: a number that has
  /// just been written takes longer to copy than to compute with.
  Tail known_tail;
  /// Its probability.
  Scaled known;

  /// The probability of a tail as a number that may be too small for the format.
  [[nodiscard]] Scaled ScaledProbability(Tail tail) const {
    return tail == known_tail ? known : Scaled() - known;
  }
  /// The probability of a tail; 0 where it is too small for the format.
  [[nodiscard]] Extended Probability(Tail tail) const {
    return tail == known_tail ? known.Value() : known.Rest();
  }
  /// The natural logarithm of the probability of a tail, also where the probability underflows.
  [[nodiscard]] Extended LogProbability(Tail tail) const {
    // Adding 0 turns -0 into 0.
    return (tail == known_tail ? known.Log() : known.LogOfRest()) + 0;
  }
  /// The tails of the mirrored distribution.
  [[nodiscard]] Tails Mirrored() const { return {Opposite(known_tail), known}; }
};

}  // namespace qorvex::special
