#pragma once

#include <array>
#include <cstddef>
#include <memory>
#include <vector>

#include "qorvex/base/vector_types.h"
#include "qorvex/matrix/detail/split_quads.h"

namespace qorvex::inline QorvexMatrix::detail {

// A faster DirectRows for extended elements, with bitwise identical results.
//
// Loading and storing an element costs more than adding a product to it. So additions to a row are
// deferred until there are several, and then performed in one pass over the row. Each element still
// receives its products in the order of the calls. At returns an element as if no addition were
// deferred; the matrix itself is up to date after Flush.
//
// Meant for eliminations: no two rows may share a buffer, the elements of a source row do not
// change any more, and a source is added to a row at most once, after all earlier sources. Flush
// ends these restrictions.
class DeferredRows {
 public:
  DeferredRows(TQorFloatMatrix& matrix, std::size_t cols);

  [[nodiscard]] Extended At(std::size_t row, std::size_t col) const;
  void Clear(std::size_t row, std::size_t col);
  void Swap(std::size_t row1, std::size_t row2);
  void Scale(std::size_t row, Extended factor);
  void Add(std::size_t target, std::size_t source, Extended factor);
  void Flush();

 private:
  // The largest number of sources at a time, and so of deferred additions to a row.
  static constexpr std::size_t kMostSources = 8;
  static constexpr std::size_t kNoSlot = kMostSources;

  struct Row {
    Extended* elements;
    std::size_t cleared = 0;
    // The deferred additions: bit i of pending is set if factors[i] times the source in slot i is
    // to be added.
    std::array<Extended, kMostSources> factors = {};
    unsigned pending = 0;
    // The slot of this row if it is a source.
    std::size_t slot = kNoSlot;
  };

  [[nodiscard]] static std::size_t FirstQuad(const Row& row) { return row.cleared / kQuad * kQuad; }
  [[nodiscard]] SplitQuad* Quads(std::size_t col) { return &quads_[col / kQuad * kMostSources]; }
  bool MakeSource(std::size_t row);
  void FlushRow(Row& row);

  std::size_t cols_;
  std::vector<Row> rows_;
  // The row in each slot.
  std::vector<std::size_t> sources_;
  // The elements of the sources: for every four columns, the quads of all slots in sequence.
  std::unique_ptr<SplitQuad[]> quads_;
};

}  // namespace qorvex::inline QorvexMatrix::detail
