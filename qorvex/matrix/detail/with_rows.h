#pragma once

#include <algorithm>
#include <concepts>
#include <cstddef>
#include <utility>
#include <vector>

#include "qorvex/base/vector_types.h"
#include "qorvex/matrix/detail/direct_rows.h"
#include "qorvex/matrix/detail/panel_rows.h"
#include "qorvex/vector/building.h"

namespace qorvex::inline QorvexMatrix::detail {

// From this many rows on, PanelRows are faster than DirectRows.
inline constexpr std::size_t kLeastPanelRows = 10;

// Gives rows that share a buffer with an earlier row of the matrix their own buffer, because
// reduced rows differ.
template <FloatElement T>
void SeparateRows(TQorMatrix<T>& matrix) {
  std::vector<TQorVector<T>*> shared;
  for (TQorVector<T>& row : matrix) {
    if (row.IsShared()) shared.push_back(&row);
  }
  std::ranges::sort(shared, {}, [](TQorVector<T>* row) { return std::pair(row->data(), row); });
  const T* kept = nullptr;
  for (TQorVector<T>* const row : shared) {
    if (row->data() == kept) {
      *row = CopyVector(*row);
    } else {
      kept = row->data();
    }
  }
}

// Calls reduce with the rows of the matrix as DirectRows or PanelRows, whichever is faster.
template <FloatElement T, class Reduce>
auto WithRows(TQorMatrix<T>& matrix, std::size_t cols, Reduce reduce) {
  SeparateRows(matrix);
  if constexpr (std::same_as<T, Extended>) {
    if (matrix.size() >= kLeastPanelRows) return reduce(PanelRows(matrix, cols));
  }
  return reduce(DirectRows<T>(matrix, cols));
}

}  // namespace qorvex::inline QorvexMatrix::detail
