#pragma once

#include <cstddef>
#include <vector>

#include "qorvex/stats/regression/gram_matrix.h"

namespace qorvex::regression {

/// Which figures of a regression are exactly 0, for p coefficients.
struct Zeros {
  /// The number of columns before the first that depends on those before it; p if none does. Of the
  /// figures below, the ones of these columns are known.
  std::size_t independent = 0;
  /// What column k explains beyond the columns before it.
  std::vector<bool> terms;
  /// The sum of squares that the first k columns leave, for k from 0 to p.
  std::vector<bool> residual;
  /// The coefficients.
  std::vector<bool> coefficients;
  /// No integer of an elimination of the matrix is longer.
  std::size_t bits = 0;
};

/// Finds the figures that are 0.
///
/// - They are quotients of minors of the matrix. A minor that is not 0 modulo one prime is not 0,
///   and one that is 0 modulo so many primes that their product exceeds its bound is. Most data are
///   decided by the first prime.
/// - n = p rows leave nothing, which needs no proof.
/// - O(p^3) operations on machine words for each prime.
[[nodiscard]] Zeros FindZeros(const GramMatrix& gram);

}  // namespace qorvex::regression
