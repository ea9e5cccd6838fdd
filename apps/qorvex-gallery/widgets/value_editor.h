#pragma once

/// @file
/// How the editors of values on the pages look.

#include "qorvex/controls/QorvexVectorEdit.h"

namespace qorvex::gallery {

/// Gives an editor as many cells as have room in its layout, and a format that suits values of any
/// magnitude. Nulls are blank.
void SetUpValueEditor(TQorVectorEdit& editor);

}  // namespace qorvex::gallery
