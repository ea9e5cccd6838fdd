#include "qorvex/controls/custom_matrix_edit.h"

#include <QCoreApplication>
#include <QToolButton>
#include <algorithm>
#include <limits>
#include <utility>

#include "qorvex/base/errors.h"
#include "qorvex/controls/detail/edit_window.h"
#include "qorvex/matrix/building.h"

namespace qorvex::inline QorvexMatrixEdit {

TQorCustomMatrixEdit::TQorCustomMatrixEdit(QWidget* parent, CellFactory make_cell)
    : CellPanel(parent, GridAxes::kRowsAndCols, QorvexControls::detail::CurrentRule::kFollowsEntry,
                std::move(make_cell)),
      corner_(new QToolButton(this)) {
  corner_->setFocusPolicy(Qt::NoFocus);
  corner_->setAutoRaise(true);
  connect(corner_, &QToolButton::clicked, this, &TQorCustomMatrixEdit::CornerClick);
}

TQorCustomMatrixEdit::~TQorCustomMatrixEdit() = default;

void TQorCustomMatrixEdit::BuildGrid() {
  SetColEdits(kDefaultColEdits);
  SetRowEdits(kDefaultRowEdits);
}

quint32 TQorCustomMatrixEdit::DisplayLeftCol() const noexcept {
  return Cols().Top();
}

void TQorCustomMatrixEdit::setDisplayLeftCol(quint32 col) {
  SetLeft(col);
}

int TQorCustomMatrixEdit::NoOfColEdits() const noexcept {
  return static_cast<int>(Cols().Edits());
}

void TQorCustomMatrixEdit::setNoOfColEdits(int edits) {
  SetColEdits(edits);
}

int TQorCustomMatrixEdit::NoOfRowEdits() const noexcept {
  return static_cast<int>(Rows().Edits());
}

void TQorCustomMatrixEdit::setNoOfRowEdits(int edits) {
  SetRowEdits(edits);
}

quint32 TQorCustomMatrixEdit::NoOfCols() const noexcept {
  return Cols().Count();
}

quint32 TQorCustomMatrixEdit::NoOfRows() const noexcept {
  return Rows().Count();
}

void TQorCustomMatrixEdit::FitStore(quint32 rows, quint32 cols) {
  if (VirtualMode()) return;
  store_.SetLength(rows);
  for (TQorFloatVector& row : store_) row.SetLength(cols);
}

void TQorCustomMatrixEdit::setNoOfCols(quint32 cols) {
  Forget();
  ResizeCols(cols);
}

void TQorCustomMatrixEdit::setNoOfRows(quint32 rows) {
  Forget();
  ResizeRows(rows);
}

void TQorCustomMatrixEdit::ResizeCols(quint32 cols) {
  if (cols == NoOfCols()) return;
  // Handlers that run on the way may read any element that the counts promise.
  if (cols > NoOfCols()) FitStore(NoOfRows(), cols);
  SetColCount(cols);
  FitStore(NoOfRows(), NoOfCols());
  Q_EMIT OnNoColsChange(NoOfCols());
}

void TQorCustomMatrixEdit::ResizeRows(quint32 rows) {
  if (rows == NoOfRows()) return;
  if (rows > NoOfRows()) FitStore(rows, NoOfCols());
  SetRowCount(rows);
  FitStore(NoOfRows(), NoOfCols());
  Q_EMIT OnNoRowsChange(NoOfRows());
}

TQorFloatMatrix TQorCustomMatrixEdit::Matrix() const {
  if (!VirtualMode()) return CopyMatrix(store_);
  auto matrix = TQorFloatMatrix::WithLength(NoOfRows());
  for (quint32 row = 0; row < NoOfRows(); ++row) {
    matrix[row] = TQorFloatVector::ForOverwrite(NoOfCols());
    for (quint32 col = 0; col < NoOfCols(); ++col) matrix[row][col] = Value(row, col);
  }
  return matrix;
}

void TQorCustomMatrixEdit::setMatrix(const TQorFloatMatrix& matrix) {
  TQorFloatMatrix copy = CopyMatrix(matrix);
  const std::size_t cols = copy.empty() ? 0 : std::as_const(copy)[0].size();
  for (const TQorFloatVector& row : std::as_const(copy)) {
    if (row.size() != cols) RaiseMathError(rsMatrixRect);
  }
  CommitPending();
  Take(std::move(copy));
  Forget();
}

void TQorCustomMatrixEdit::Take(TQorFloatMatrix matrix) {
  const std::size_t rows = matrix.size();
  const std::size_t cols = matrix.empty() ? 0 : std::as_const(matrix)[0].size();
  BeginUpdate();
  ResizeRows(static_cast<quint32>(rows));
  ResizeCols(static_cast<quint32>(cols));
  if (VirtualMode()) {
    for (quint32 row = 0; row < NoOfRows(); ++row) {
      for (quint32 col = 0; col < NoOfCols(); ++col) Store(row, col, matrix[row][col]);
    }
  } else if (NoOfRows() == rows && NoOfCols() == cols) {
    store_ = std::move(matrix);
  }
  EndUpdate();
}

void TQorCustomMatrixEdit::CheckElement(quint32 row, quint32 col, quint64 cols) const {
  if (NoOfRows() == 0 || NoOfCols() == 0) RaiseMathError(rsMatrixIsEmpty);
  if (row >= NoOfRows()) RaiseMathError(rsInvalidRow);
  if (col >= cols) RaiseMathError(rsInvalidCol);
}

Extended TQorCustomMatrixEdit::Element(quint32 row, quint32 col) const {
  CheckElement(row, col, NoOfCols());
  return Value(row, col);
}

void TQorCustomMatrixEdit::setElement(quint32 row, quint32 col, Extended value) {
  CheckElement(row, col, NoOfCols());
  Store(row, col, value);
  Forget();
  Redisplay();
}

quint32 TQorCustomMatrixEdit::CurrentCol() const noexcept {
  return Cols().Current();
}

void TQorCustomMatrixEdit::setCurrentCol(quint32 col) {
  SetCurrentCol(col);
}

quint32 TQorCustomMatrixEdit::RowEditFocus() const noexcept {
  return Rows().Focus();
}

void TQorCustomMatrixEdit::setRowEditFocus(quint32 edit) {
  FocusCell(edit, Cols().Focus());
}

quint32 TQorCustomMatrixEdit::ColEditFocus() const noexcept {
  return Cols().Focus();
}

void TQorCustomMatrixEdit::setColEditFocus(quint32 edit) {
  FocusCell(Rows().Focus(), edit);
}

void TQorCustomMatrixEdit::ScrollLeft(quint32 cols) {
  if (cols <= DisplayLeftCol()) SetLeft(DisplayLeftCol() - cols);
}

void TQorCustomMatrixEdit::ScrollRight(quint32 cols) {
  const quint32 most = std::numeric_limits<quint32>::max() - DisplayLeftCol();
  SetLeft(DisplayLeftCol() + std::min(cols, most));
}

void TQorCustomMatrixEdit::ScrollLeftMost() {
  SetLeft(0);
}

void TQorCustomMatrixEdit::ScrollRightMost() {
  SetLeft(NoOfCols());
}

Extended TQorCustomMatrixEdit::Value(quint32 row, quint32 col) const {
  if (VirtualMode()) {
    return OnGetElement ? OnGetElement(row, col)
                        : static_cast<Extended>(col + quint64{row} * NoOfCols());
  }
  const TQorFloatMatrix& store = store_;
  return row < store.size() && col < store[row].size() ? store[row][col] : 0;
}

void TQorCustomMatrixEdit::Store(quint32 row, quint32 col, Extended value) {
  if (VirtualMode()) {
    Q_EMIT OnSetElement(row, col, value);
  } else if (row < store_.size() && col < store_[row].size()) {
    store_[row][col] = value;
  }
}

void TQorCustomMatrixEdit::Notify(CellEvent what, quint32 row, quint32 col) {
  switch (what) {
    case CellEvent::kEnter:
      Q_EMIT OnCellEnter(row, col);
      break;
    case CellEvent::kExit:
      Q_EMIT OnCellExit(row, col);
      break;
    case CellEvent::kNull:
      Q_EMIT OnNull(row, col);
      break;
    case CellEvent::kChange:
      Q_EMIT OnChange(row, col);
      break;
  }
}

void TQorCustomMatrixEdit::NotifyText(quint32 row, quint32 col, const QString& text) {
  Q_EMIT OnChangeText(row, col, text);
}

QString TQorCustomMatrixEdit::CellName(quint32 row, quint32 col) const {
  return QCoreApplication::translate("TQorCustomMatrixEdit", "Row %1, column %2")
      .arg(qint64{row} + 1)
      .arg(qint64{col} + 1);
}

QColor TQorCustomMatrixEdit::SpecialColor(quint32 row, quint32 col, Extended value) const {
  QColor color;
  if (OnSpecialColor) OnSpecialColor(row, col, value, color);
  return color;
}

void TQorCustomMatrixEdit::LeftChange(quint32 left) {
  Q_EMIT OnLeftChange(left);
}

void TQorCustomMatrixEdit::CurrColChange(quint32 before, quint32 now) {
  Q_EMIT OnCurrColChange(before, now);
}

void TQorCustomMatrixEdit::VirtualModeChanged() {
  FitStore(NoOfRows(), NoOfCols());
}

void TQorCustomMatrixEdit::CornerClick() {
  Q_EMIT OnCornerBtnClick();
}

void TQorCustomMatrixEdit::Arrange() {
  CellPanel::Arrange();
  corner_->setGeometry(CornerRect());
}

}  // namespace qorvex::inline QorvexMatrixEdit
