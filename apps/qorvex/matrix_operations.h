#pragma once

/// @file
/// What the commands of `matrix` compute, and what their --help says.

#include <span>
#include <vector>

#include "qorvex/base/vector_types.h"

namespace qorvex::apps {

using Matrices = std::vector<TQorFloatMatrix>;

/// A command of `matrix`.
struct MatrixOperation {
  const char* name;
  const char* summary;
  /// What it computes, as messages call it.
  const char* result;
  bool takes_two_files = false;
  /// Whether it eliminates, and so has to know what counts as zero.
  bool takes_tolerance = false;
  bool takes_decimals = true;
  /// Takes rectangular matrices, one or two, and may change them. Raises EMathError for shapes that
  /// do not fit, and when a matrix has no inverse.
  TQorFloatMatrix (*compute)(Matrices& operands);
  const char* help;
};

/// The commands in the order of --help.
[[nodiscard]] std::span<const MatrixOperation> MatrixOperations();

}  // namespace qorvex::apps
