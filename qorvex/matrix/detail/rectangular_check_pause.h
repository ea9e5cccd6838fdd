#pragma once

namespace qorvex::inline QorvexMatrix::detail {

// Turns QorMatrixRectangularCheck off during its lifetime. Pauses on several threads may overlap:
// the first one saves the value and the last one restores it.
class RectangularCheckPause {
 public:
  RectangularCheckPause();
  ~RectangularCheckPause();
  RectangularCheckPause(const RectangularCheckPause&) = delete;
  RectangularCheckPause& operator=(const RectangularCheckPause&) = delete;
};

}  // namespace qorvex::inline QorvexMatrix::detail
