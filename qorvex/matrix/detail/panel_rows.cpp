#include "qorvex/matrix/detail/panel_rows.h"

#include <algorithm>
#include <utility>

#include "qorvex/matrix/detail/row_kernels.h"

namespace qorvex::inline QorvexMatrix::detail {

PanelRows::PanelRows(TQorFloatMatrix& matrix, std::size_t cols)
    : cols_(cols),
      words_(WordsFor(std::min(matrix.size(), cols))),
      rows_(matrix.size(), Memory()),
      cleared_(matrix.size(), Memory()),
      added_(matrix.size() * words_, Memory()),
      recurrence_(std::min(matrix.size(), cols), Memory()) {
  for (std::size_t i = 0; i < rows_.size(); ++i) {
    Extended* const elements = matrix[i].data();
    rows_[i] = {.elements = elements, .factors = elements, .added = &added_[i * words_]};
  }
}

void PanelRows::Swap(std::size_t row1, std::size_t row2) {
  SwapElements(rows_[row1].elements, rows_[row2].elements, cols_);
  std::swap(cleared_[row1], cleared_[row2]);
  std::swap_ranges(rows_[row1].added, rows_[row1].added + words_, rows_[row2].added);
}

void PanelRows::Scale(std::size_t row, Extended factor) {
  rows_[row].scale = factor;
  ScaleElements(rows_[row].elements + cleared_[row], panel_end_ - cleared_[row], factor);
}

void PanelRows::Flush() {
  while (panel_end_ < cols_) ComputePanel();
  for (std::size_t i = 0; i < rows_.size(); ++i) {
    std::fill_n(rows_[i].elements, cleared_[i], Extended(0));
  }
}

void PanelRows::ComputePanel() {
  // The first columns have not missed any step.
  if (panel_end_ > 0) recurrence_.Compute(rows_, 0, sources_, panel_end_, cols_);
  panel_end_ = std::min(panel_end_ + kPair, cols_);
}

}  // namespace qorvex::inline QorvexMatrix::detail
