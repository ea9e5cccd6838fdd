#pragma once

#include <algorithm>
#include <cassert>
#include <cstddef>
#include <memory_resource>
#include <span>
#include <vector>

#include "qorvex/base/vector_types.h"
#include "qorvex/matrix/detail/recurrence.h"
#include "qorvex/matrix/detail/small_memory.h"

namespace qorvex::inline QorvexMatrix::detail {

// A faster DirectRows for extended elements, with bitwise identical results.
//
// Loading and storing an element costs more than adding a product to it. So additions and scalings
// are performed on the next two columns only, and recorded. When an elimination reaches other
// columns, these catch up on all steps so far while they stay in registers. Each element still goes
// through its steps in the order of the calls. The factors are recorded in the elements that have
// been cleared, and become +0 in Flush.
//
// Meant for eliminations: no two rows may share a buffer; columns begin one after the other; a row
// is added only to later ones, at most once to each, after all earlier rows, and does not change
// any more.
class PanelRows {
 public:
  PanelRows(TQorFloatMatrix& matrix, std::size_t cols);

  // Brings the column up to date. Comes before anything else is done to it.
  void BeginColumn(std::size_t col) {
    if (col == panel_end_) ComputePanel();
  }
  [[nodiscard]] Extended At(std::size_t row, std::size_t col) const {
    return rows_[row].elements[col];
  }
  void Clear(std::size_t row, std::size_t col) { cleared_[row] = col + 1; }
  void Swap(std::size_t row1, std::size_t row2);
  void Scale(std::size_t row, Extended factor);
  void Add(std::size_t target, std::size_t source, Extended factor) {
    assert(source < target && source < cleared_[target]);
    Extended* const elements = rows_[target].elements;
    for (std::size_t col = cleared_[target]; col < panel_end_; ++col) {
      elements[col] += rows_[source].elements[col] * factor;
    }
    elements[source] = factor;
    Insert(rows_[target].added, source);
    rows_[source].is_source = true;
    sources_ = std::max(sources_, source + 1);
  }
  void Flush();

 protected:
  [[nodiscard]] std::span<const RecurrentRow> Rows() const { return rows_; }
  [[nodiscard]] std::pmr::memory_resource* Memory() { return memory_.get(); }
  Recurrence& Columns() { return recurrence_; }

 private:
  void ComputePanel();

  SmallMemory memory_;
  std::size_t cols_;
  std::size_t panel_end_ = 0;
  std::size_t sources_ = 0;
  std::size_t words_;
  std::pmr::vector<RecurrentRow> rows_;
  std::pmr::vector<std::size_t> cleared_;
  std::pmr::vector<Bits> added_;
  Recurrence recurrence_;
};

}  // namespace qorvex::inline QorvexMatrix::detail
