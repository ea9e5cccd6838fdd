#pragma once

#include "qorvex/matrix/shape.h"

namespace qorvex::testing {

/// Turns QorMatrixRectangularCheck off during its lifetime.
class RectangularCheckOff {
 public:
  RectangularCheckOff() { QorMatrixRectangularCheck = false; }
  ~RectangularCheckOff() { QorMatrixRectangularCheck = true; }
  RectangularCheckOff(const RectangularCheckOff&) = delete;
  RectangularCheckOff& operator=(const RectangularCheckOff&) = delete;
};

}  // namespace qorvex::testing
