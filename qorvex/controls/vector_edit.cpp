#include "qorvex/controls/vector_edit.h"

#include <QCoreApplication>
#include <QMetaMethod>
#include <algorithm>
#include <limits>
#include <stdexcept>
#include <utility>

#include "qorvex/base/errors.h"
#include "qorvex/base_controls/detail/same_element.h"
#include "qorvex/controls/detail/array_lines.h"
#include "qorvex/controls/panel/detail/panel_parts.h"

namespace qorvex::inline QorvexVectorEdit {

using QorvexBaseControls::detail::SameElement;

TQorVectorEdit::TQorVectorEdit(QWidget* parent)
    : CellPanel(parent, *this, GridAxes::kRows, QorvexControls::detail::CurrentRule::kFollowsTop,
                {.after_top = [this](quint32 top) { Q_EMIT OnAfterTopChange(top); }}, {}) {
  SetCount(Parts().cols, 1);
  Build([this](QWidget* panel) { return new TQorFloatEdit(panel, &OnConvert); }, kDefaultEdits, 1);
}

TQorVectorEdit::~TQorVectorEdit() = default;

int TQorVectorEdit::NoOfEdits() const noexcept {
  return static_cast<int>(Rows().Edits());
}

void TQorVectorEdit::setNoOfEdits(int edits) {
  Parts().layout.SetEdits(Parts().rows, edits);
}

quint32 TQorVectorEdit::NoOfRows() const noexcept {
  return Parts().rows.Count();
}

void TQorVectorEdit::setNoOfRows(quint32 rows) {
  if (Model() != nullptr) {
    Parts().model.SetCount(CellAxis::kRows, rows);
  } else {
    SetSize(rows, 1);
  }
}

void TQorVectorEdit::SetSize(quint32 rows, quint32) {
  if (rows == NoOfRows()) return;
  Resize(rows);
  Q_EMIT OnRowNoChange(NoOfRows());
}

int TQorVectorEdit::ModelColumn() const noexcept {
  return Parts().model.FirstCol();
}

void TQorVectorEdit::setModelColumn(int column) {
  Parts().focus.CommitPending();
  Parts().history.Forget();
  Parts().model.SetFirstCol(std::max(column, 0));
  Redisplay();
}

void TQorVectorEdit::Resize(quint32 rows) {
  SetCount(Parts().rows, rows);
  // After the handlers, which may still read the elements that go.
  if (!VirtualMode()) TrimStore();
  if (Model() == nullptr) Parts().history.Forget();
}

void TQorVectorEdit::TrimStore() {
  if (store_.size() > NoOfRows()) store_.SetLength(NoOfRows());
}

TQorFloatVector& TQorVectorEdit::FullStore() {
  if (store_.size() < NoOfRows()) store_.SetLength(NoOfRows());
  return store_;
}

TQorFloatVector TQorVectorEdit::Vector() const {
  auto vector = TQorFloatVector::ForOverwrite(NoOfRows());
  for (quint32 row = 0; row < NoOfRows(); ++row) vector[row] = Value(row, 0);
  return vector;
}

void TQorVectorEdit::setVector(const TQorFloatVector& vector) {
  if (vector.size() > std::numeric_limits<quint32>::max()) {
    throw std::length_error("A vector edit has at most 4294967295 rows");
  }
  const TQorFloatVector copy{std::span<const Extended>(vector)};
  const Update update(*this);
  Parts().focus.CommitUnless([&](quint32 row, quint32 col) {
    return row < copy.size() && SameElement(copy[row], Value(row, col));
  });
  const auto rows = static_cast<quint32>(copy.size());
  if (Model() != nullptr) {
    Parts().history.Forget();
    setNoOfRows(rows);
  }
  const quint32 rows_before = NoOfRows();
  if (Model() == nullptr) Resize(rows);
  if (VirtualMode()) {
    for (quint32 row = 0; row < std::min<std::size_t>(NoOfRows(), copy.size()); ++row) {
      Store(row, 0, copy[row]);
    }
  } else if (NoOfRows() == copy.size()) {
    store_ = copy;
  }
  if (NoOfRows() != rows_before) Q_EMIT OnRowNoChange(NoOfRows());
}

void TQorVectorEdit::CheckRow(quint32 row) const {
  if (NoOfRows() == 0) RaiseMathError(rsVectorIsEmpty);
  if (row >= NoOfRows()) RaiseMathError(rsInvalidRow);
}

Extended TQorVectorEdit::Element(quint32 row) const {
  CheckRow(row);
  return Value(row, 0);
}

void TQorVectorEdit::setElement(quint32 row, Extended value) {
  CheckRow(row);
  Store(row, 0, value);
  Parts().history.ForgetCommand();
  Redisplay();
}

quint32 TQorVectorEdit::EditFocus() const noexcept {
  return Rows().Focus();
}

void TQorVectorEdit::setEditFocus(quint32 edit) {
  Parts().focus.FocusCell(edit, 0);
}

Extended TQorVectorEdit::Value(quint32 row, quint32 col) const {
  if (Model() != nullptr) return Parts().model.Value(row, col);
  if (VirtualMode()) return OnGetElement ? OnGetElement(row) : static_cast<Extended>(row);
  return row < store_.size() ? std::as_const(store_)[row] : 0;
}

bool TQorVectorEdit::Store(quint32 row, quint32 col, Extended value) {
  if (Model() != nullptr) return Parts().model.Store(row, col, value);
  if (VirtualMode()) {
    Q_EMIT OnSetElement(row, value);
  } else if (row < NoOfRows()) {
    FullStore()[row] = value;
  }
  return true;
}

bool TQorVectorEdit::IsReadOnly(quint32 row, quint32 col) const {
  return Parts().model.IsReadOnly(row, col);
}

void TQorVectorEdit::Notify(CellEvent event, quint32 row, quint32) {
  switch (event) {
    case CellEvent::kEnter:
      Q_EMIT OnCellEnter(row);
      break;
    case CellEvent::kExit:
      Q_EMIT OnCellExit(row);
      break;
    case CellEvent::kNull:
      Q_EMIT OnNull(row);
      break;
    case CellEvent::kChange:
      Q_EMIT OnChange(row);
      break;
  }
}

void TQorVectorEdit::NotifyText(quint32 row, quint32, const QString& text) {
  Q_EMIT OnChangeText(row, text);
}

QString TQorVectorEdit::CellName(quint32 row, quint32) const {
  return QCoreApplication::translate("TQorVectorEdit", "Row %1").arg(qint64{row} + 1);
}

QColor TQorVectorEdit::SpecialColor(quint32, quint32, Extended) const {
  return {};
}

bool TQorVectorEdit::CanInsert(CellAxis axis) const {
  return axis == CellAxis::kRows &&
         (!VirtualMode() || Model() != nullptr ||
          isSignalConnected(QMetaMethod::fromSignal(&CellPanel::OnInsertRows)));
}

std::optional<quint32> TQorVectorEdit::InsertLines(CellAxis axis, quint32 first, quint32 count,
                                                   Extended value) {
  if (Model() != nullptr) return Parts().model.InsertLines(axis, first, count, value);
  if (VirtualMode()) {
    Q_EMIT OnInsertRows(first, count);
    return first;
  }
  // A handler may have shortened the vector.
  first = std::min(first, NoOfRows());
  const Update update(*this);
  // Zeros at the end need no memory.
  if (first < store_.size() || value != 0) {
    if (store_.size() < first) store_.SetLength(first);
    store_.resize(store_.size() + count, value);
    QorvexControls::detail::MoveLastTo(store_, first, count);
  }
  SetCount(Parts().rows, NoOfRows() + count);
  Q_EMIT OnRowNoChange(NoOfRows());
  return first;
}

void TQorVectorEdit::RemoveLines(CellAxis axis, quint32 first, quint32 count) {
  if (Model() != nullptr) {
    Parts().model.RemoveLines(axis, first, count);
    return;
  }
  if (VirtualMode()) {
    Q_EMIT OnDeleteRows(first, count);
    return;
  }
  count = std::min(count, NoOfRows() - std::min(first, NoOfRows()));
  const Update update(*this);
  SetCount(Parts().rows, NoOfRows() - count);
  // After the handlers, which may still read the elements that go.
  QorvexControls::detail::Remove(store_, first, count);
  Q_EMIT OnRowNoChange(NoOfRows());
}

KeptLineData TQorVectorEdit::KeepLineData(CellAxis, quint32, quint32) {
  return {};
}

void TQorVectorEdit::VirtualModeChanged() {
  if (!VirtualMode()) TrimStore();
}

void TQorVectorEdit::CopyRows(quint32 first, quint32 count) {
  CopyCells({first, count, 0, 1});
}

}  // namespace qorvex::inline QorvexVectorEdit
