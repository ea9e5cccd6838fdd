#pragma once

/// @file
/// The commands of `matrix`: what they compute, and their --help.

#include <cstddef>
#include <span>
#include <vector>

#include "qorvex/base/vector_types.h"

namespace qorvex::apps {

using Matrices = std::vector<TQorFloatMatrix>;

/// A command of `matrix`.
struct MatrixOperation {
  const char* name;
  const char* summary;
  /// The result, as messages name it.
  const char* result;
  /// How many matrices it takes.
  std::size_t least_matrices = 1;
  std::size_t most_matrices = least_matrices;
  /// Whether it eliminates and therefore depends on what counts as zero.
  bool takes_tolerance = false;
  /// Takes rectangular matrices and may change them. Throws EMathError for shapes that do not
  /// match, for a matrix without an inverse and for a system without a solution. The result does
  /// not depend on the number of threads.
  TQorFloatMatrix (*compute)(Matrices& operands, unsigned threads);
  const char* help;
};

/// The commands in the order of --help.
[[nodiscard]] std::span<const MatrixOperation> MatrixOperations();

}  // namespace qorvex::apps
