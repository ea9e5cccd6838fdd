#pragma once

#include <array>
#include <cstddef>
#include <memory>
#include <vector>

#include "qorvex/base/vector_types.h"
#include "qorvex/matrix/detail/split_quads.h"

namespace qorvex::inline QorvexMatrix::detail {

// DirectRows for extended elements, two to three times as fast, with the same results bit for bit.
//
// Loading and storing an element costs more than adding a product to it, so additions wait until a
// row has several, and one pass over the row makes them all: each element still takes its products
// in the order in which they were asked for. At gives an element as if nothing waited; the matrix
// itself is up to date after Settle.
//
// This serves eliminations: no two rows may share a buffer, a source is final, and it is added to a
// row at most once and after all earlier sources. Settle begins anew.
class DeferredRows {
 public:
  DeferredRows(TQorFloatMatrix& matrix, std::size_t cols);

  [[nodiscard]] Extended At(std::size_t row, std::size_t col) const;
  void Clear(std::size_t row, std::size_t col);
  void Swap(std::size_t row1, std::size_t row2);
  void Scale(std::size_t row, Extended factor);
  void Add(std::size_t target, std::size_t source, Extended factor);
  void Settle();

 private:
  // How many sources there are at a time, and so how many additions to a row wait at most.
  static constexpr std::size_t kDepth = 8;
  static constexpr std::size_t kNoSlot = kDepth;

  struct Row {
    Extended* elements;
    std::size_t cleared = 0;
    // Of the additions that wait: the factors, for those slots of sources whose bit is set.
    std::array<Extended, kDepth> factors = {};
    unsigned waiting = 0;
    // The slot in which other rows know this one as a source.
    std::size_t slot = kNoSlot;
  };

  [[nodiscard]] static std::size_t FirstQuad(const Row& row) { return row.cleared / kQuad * kQuad; }
  [[nodiscard]] SplitQuad* Quads(std::size_t col) { return &quads_[col / kQuad * kDepth]; }
  bool BecomeSource(std::size_t row);
  void SettleRow(Row& row);

  std::size_t cols_;
  std::vector<Row> rows_;
  // The row in each slot.
  std::vector<std::size_t> sources_;
  // The sources' elements: for every four columns, the quads of all slots side by side.
  std::unique_ptr<SplitQuad[]> quads_;
};

}  // namespace qorvex::inline QorvexMatrix::detail
