#pragma once

/// @file
/// The two tails of a distribution at a point.

#include <cmath>

#include "qorvex/base/special/scaled.h"

namespace qorvex::special {

/// Which side of the point.
enum class Tail { kLower, kUpper };

constexpr Tail Opposite(Tail tail) {
  return tail == Tail::kLower ? Tail::kUpper : Tail::kLower;
}

/// The probabilities on both sides of a point, from the one that is known with full relative
/// accuracy; the other is not much smaller.
class Tails {
 public:
  Tails(Tail known_tail, const Scaled& probability)
      : known_tail_(known_tail), known_(probability) {}

  /// The probability of a tail as a number that may be too small for the format.
  [[nodiscard]] Scaled ScaledProbability(Tail tail) const {
    return tail == known_tail_ ? known_ : Scaled{1 - known_.Value(), ExtendedPair()};
  }
  [[nodiscard]] Extended Probability(Tail tail) const { return ScaledProbability(tail).Value(); }
  [[nodiscard]] Extended LogProbability(Tail tail) const {
    // Adding 0 takes the sign off a zero.
    return tail == known_tail_ ? known_.Log() : std::log1p(-known_.Value()) + 0;
  }
  /// The tails of the mirrored distribution.
  [[nodiscard]] Tails Mirrored() const { return {Opposite(known_tail_), known_}; }

 private:
  Tail known_tail_;
  Scaled known_;
};

}  // namespace qorvex::special
