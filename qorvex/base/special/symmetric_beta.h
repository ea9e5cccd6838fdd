#pragma once

/// @file
/// The beta distribution with closed forms, and with the same figures when its sides change places.

#include "qorvex/base/export.h"
#include "qorvex/base/special/regularised_beta.h"

namespace qorvex::special {

/// The beta distribution with shapes from 1e-18 to 1e15. A shape of NaN gives NaN.
///
/// - Exchanged shapes and odds give exchanged tails, bit for bit; equal shapes at equal odds are
/// 1/2.
/// - A shape of 1 has a closed form.
/// - Whole shapes that add up to 256 at most, one of them at most 16, are sums of up to 16 terms:
///   results with 64 bits are exact.
/// - The tails of all others are those of RegularisedBeta.
class QORVEX_EXPORT SymmetricBeta {
 public:
  /// The shapes are not checked.
  SymmetricBeta(Extended a, Extended b);
  /// With the shapes of a distribution that exists already.
  explicit SymmetricBeta(const RegularisedBeta& beta);

  /// Both tails at odds above 0 and below infinity.
  [[nodiscard]] Tails At(const Odds& odds) const;
  /// The density at x = in_favour, for odds that add up to 1.
  [[nodiscard]] Extended Density(const Odds& odds) const;

 private:
  // The tails with the smaller shape first.
  [[nodiscard]] Tails OrderedAt(const Odds& odds) const;

  bool is_exchanged_;
  RegularisedBeta beta_;  // the smaller shape first
};

}  // namespace qorvex::special
