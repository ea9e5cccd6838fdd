#pragma once

/// @file
/// What the page of matrices computes.

#include <QString>
#include <cstdint>

#include "apps/qorvex-gallery/model/background_work.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::gallery {

/// What is computed from A, and from B if it takes two matrices.
enum class MatrixResult : std::uint8_t { kInverse, kEchelon, kProduct, kSolution };

/// Whether it takes B.
[[nodiscard]] constexpr bool TakesB(MatrixResult result) {
  return result == MatrixResult::kProduct || result == MatrixResult::kSolution;
}

struct MatrixTask {
  MatrixResult wanted = MatrixResult::kInverse;
  TQorFloatMatrix a = {};
  TQorFloatMatrix b = {};
};

struct MatrixOutcome {
  /// The figures of A, or why they are missing.
  QString determinant = {};
  QString rank = {};
  /// Valid if the next text is empty.
  TQorFloatMatrix result = {};
  QString why_none = {};
};

/// Computes the result and the figures of A, in about 2 ns times the cube of the order. It asks
/// whether to proceed between the eliminations and between blocks of rows of a product; what it
/// returns after it was told not to is incomplete. Throws std::bad_alloc.
[[nodiscard]] MatrixOutcome Calculate(const MatrixTask& task, const Proceed& proceed);

/// How many elements a matrix on the page may have, by the memory of the computer: the page and its
/// computations need some eight matrices of that size.
[[nodiscard]] std::uint64_t MostElements();

}  // namespace qorvex::gallery
