// Inserting and deleting rows and columns of a matrix edit.

#include <QMetaMethod>
#include <algorithm>
#include <new>
#include <utility>

#include "qorvex/controls/custom_matrix_edit.h"
#include "qorvex/controls/detail/array_lines.h"
#include "qorvex/controls/detail/shift_keys.h"
#include "qorvex/controls/panel/detail/panel_parts.h"

namespace qorvex::inline QorvexMatrixEdit {

void TQorCustomMatrixEdit::InsertCols(quint32 col, quint32 count) {
  CellPanel::InsertLines(CellAxis::kCols, col, count);
}

void TQorCustomMatrixEdit::DeleteCols(quint32 col, quint32 count) {
  DeleteLines(CellAxis::kCols, col, count);
}

bool TQorCustomMatrixEdit::CanInsert(CellAxis axis) const {
  return !VirtualMode() || Model() != nullptr ||
         isSignalConnected(axis == CellAxis::kRows
                               ? QMetaMethod::fromSignal(&CellPanel::OnInsertRows)
                               : QMetaMethod::fromSignal(&TQorCustomMatrixEdit::OnInsertCols));
}

std::optional<quint32> TQorCustomMatrixEdit::InsertLines(CellAxis axis, quint32 first,
                                                         quint32 count, Extended value) {
  if (Model() != nullptr) return Parts().model.InsertLines(axis, first, count, value);
  const bool rows = axis == CellAxis::kRows;
  if (VirtualMode()) {
    rows ? Q_EMIT OnInsertRows(first, count) : Q_EMIT OnInsertCols(first, count);
    return first;
  }
  // A handler may have changed the size.
  first = std::min(first, rows ? NoOfRows() : NoOfCols());
  const Update update(*this);
  try {
    InsertIntoStore(axis, first, count, value);
  } catch (const std::bad_alloc&) {
    TrimStore();
    throw;
  }
  if (rows) {
    SetCount(Parts().rows, NoOfRows() + count);
    Q_EMIT OnNoRowsChange(NoOfRows());
  } else {
    ReplaceCols({first, 0, count});
    SetCount(Parts().cols, NoOfCols() + count);
    Q_EMIT OnNoColsChange(NoOfCols());
  }
  return first;
}

void TQorCustomMatrixEdit::InsertIntoStore(CellAxis axis, quint32 first, quint32 count,
                                           Extended value) {
  // Zeros at the end need no memory.
  if (value != 0) FullStore();
  if (axis == CellAxis::kRows) {
    if (first >= store_.size() && value == 0) return;
    const auto row = value != 0 ? TQorFloatVector(NoOfCols(), value) : TQorFloatVector();
    store_.resize(store_.size() + count, row);
    QorvexControls::detail::MoveLastTo(store_, first, count);
    return;
  }
  // Memory first, so that no row is moved when it runs out.
  const auto grows = [&](const TQorFloatVector& row) { return first < row.size() || value != 0; };
  for (TQorFloatVector& row : store_) {
    if (grows(row)) row.resize(row.size() + count, value);
  }
  for (TQorFloatVector& row : store_) {
    if (grows(row)) QorvexControls::detail::MoveLastTo(row, first, count);
  }
}

void TQorCustomMatrixEdit::RemoveLines(CellAxis axis, quint32 first, quint32 count) {
  if (Model() != nullptr) {
    Parts().model.RemoveLines(axis, first, count);
    return;
  }
  const bool rows = axis == CellAxis::kRows;
  if (VirtualMode()) {
    rows ? Q_EMIT OnDeleteRows(first, count) : Q_EMIT OnDeleteCols(first, count);
    return;
  }
  const quint32 lines = rows ? NoOfRows() : NoOfCols();
  count = std::min(count, lines - std::min(first, lines));
  const Update update(*this);
  // The store shrinks after the handlers, which may still read the elements that go.
  if (rows) {
    SetCount(Parts().rows, NoOfRows() - count);
    QorvexControls::detail::Remove(store_, first, count);
    Q_EMIT OnNoRowsChange(NoOfRows());
  } else {
    ReplaceCols({first, count, 0});
    SetCount(Parts().cols, NoOfCols() - count);
    for (TQorFloatVector& row : store_) QorvexControls::detail::Remove(row, first, count);
    Q_EMIT OnNoColsChange(NoOfCols());
  }
}

KeptLineData TQorCustomMatrixEdit::KeepLineData(CellAxis axis, quint32 first, quint32 count) {
  if (axis == CellAxis::kRows) return {};
  auto widths = Parts().geometry.ColWidths().OwnSizes(first, count);
  auto formats = QorvexControls::detail::EntriesOf(Parts().grid.ColFormats(), first, count);
  if (widths.empty() && formats.empty()) return {};
  const qint64 bytes =
      QorvexControls::detail::BytesOf(widths) + QorvexControls::detail::BytesOf(formats);
  return {[this, kept_widths = std::move(widths), kept_formats = std::move(formats)] {
            Parts().geometry.ColWidths().SetOwnSizes(kept_widths);
            Parts().grid.ColFormats().insert(kept_formats.begin(), kept_formats.end());
            ColsReplaced();
          },
          bytes};
}

}  // namespace qorvex::inline QorvexMatrixEdit
