#pragma once

/// @file
/// What the page of matrices shows besides the matrix itself.

#include <QString>

#include "qorvex/base/vector_types.h"

namespace qorvex::gallery {

struct MatrixProperties {
  /// The figures, or why they are missing.
  QString determinant;
  QString rank;
  /// Valid if the next text is empty.
  TQorFloatMatrix inverse;
  QString why_no_inverse;
};

/// The properties of a matrix. Large matrices have none: they would take too long at every edit.
[[nodiscard]] MatrixProperties PropertiesOf(const TQorFloatMatrix& matrix);

}  // namespace qorvex::gallery
