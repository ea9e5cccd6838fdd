#pragma once

namespace qorvex::inline QorvexMatrix::detail {

// Turns QorMatrixRectangularCheck off while it lives. Reductions on several threads overlap, so the
// first pause keeps the program's value and the last one restores it.
class RectangularCheckPause {
 public:
  RectangularCheckPause();
  ~RectangularCheckPause();
  RectangularCheckPause(const RectangularCheckPause&) = delete;
  RectangularCheckPause& operator=(const RectangularCheckPause&) = delete;
};

}  // namespace qorvex::inline QorvexMatrix::detail
