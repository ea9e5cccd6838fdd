#include "qorvex/controls/custom_matrix_edit.h"

#include <QCoreApplication>
#include <QMenu>
#include <QMetaMethod>
#include <QToolButton>
#include <algorithm>
#include <utility>

#include "qorvex/base/errors.h"
#include "qorvex/base_controls/detail/same_element.h"
#include "qorvex/controls/panel/detail/panel_parts.h"
#include "qorvex/matrix/building.h"
#include "qorvex/matrix/shape.h"

namespace qorvex::inline QorvexMatrixEdit {

using QorvexBaseControls::detail::SameElement;

TQorCustomMatrixEdit::TQorCustomMatrixEdit(QWidget* parent)
    : CellPanel(parent, *this, GridAxes::kRowsAndCols,
                QorvexControls::detail::CurrentRule::kFollowsEntry, {},
                {.before_top = [this](quint32 left) { Q_EMIT OnLeftChange(left); },
                 .current_changed = [this](quint32 before,
                                           quint32 now) { Q_EMIT OnCurrColChange(before, now); }}) {
  auto* const corner = new QToolButton(this);
  corner->setFocusPolicy(Qt::NoFocus);
  corner->setAccessibleName(QCoreApplication::translate("TQorCustomMatrixEdit", "Corner"));
  connect(corner, &QToolButton::clicked, this, &TQorCustomMatrixEdit::CornerClick);
  Parts().layout.SetCorner(corner);
  connect(this, &CellPanel::OnContextMenu, this, [this](QMenu& menu) {
    // The tab key does not stop at the button.
    if (!isSignalConnected(QMetaMethod::fromSignal(&TQorCustomMatrixEdit::OnCornerBtnClick)))
      return;
    menu.addAction(QCoreApplication::translate("TQorCustomMatrixEdit", "Corner Button"), this,
                   &TQorCustomMatrixEdit::CornerClick);
  });
}

TQorCustomMatrixEdit::~TQorCustomMatrixEdit() = default;

void TQorCustomMatrixEdit::BuildGrid(CellFactory make_cell) {
  Build(std::move(make_cell), kDefaultRowEdits, kDefaultColEdits);
}

quint32 TQorCustomMatrixEdit::DisplayLeftCol() const noexcept {
  return Cols().Top();
}

void TQorCustomMatrixEdit::setDisplayLeftCol(quint32 col) {
  Parts().cols.SetTop(col);
}

int TQorCustomMatrixEdit::NoOfColEdits() const noexcept {
  return static_cast<int>(Cols().Edits());
}

void TQorCustomMatrixEdit::setNoOfColEdits(int edits) {
  Parts().layout.SetEdits(Parts().cols, edits);
}

int TQorCustomMatrixEdit::NoOfRowEdits() const noexcept {
  return static_cast<int>(Rows().Edits());
}

void TQorCustomMatrixEdit::setNoOfRowEdits(int edits) {
  Parts().layout.SetEdits(Parts().rows, edits);
}

quint32 TQorCustomMatrixEdit::NoOfCols() const noexcept {
  return Parts().cols.Count();
}

quint32 TQorCustomMatrixEdit::NoOfRows() const noexcept {
  return Parts().rows.Count();
}

void TQorCustomMatrixEdit::setNoOfCols(quint32 cols) {
  if (Model() != nullptr) {
    Parts().model.SetCount(CellAxis::kCols, cols);
  } else {
    ChangeCols(cols);
  }
}

void TQorCustomMatrixEdit::setNoOfRows(quint32 rows) {
  if (Model() != nullptr) {
    Parts().model.SetCount(CellAxis::kRows, rows);
  } else {
    ChangeRows(rows);
  }
}

void TQorCustomMatrixEdit::SetSize(quint32 rows, quint32 cols) {
  const QAbstractItemModel* const model = Model();
  ChangeRows(rows);
  // A handler that sets another model has set the number of columns, too.
  if (Model() == model) ChangeCols(cols);
}

void TQorCustomMatrixEdit::ChangeCols(quint32 cols) {
  if (cols == NoOfCols()) return;
  ResizeCols(cols);
  if (Model() == nullptr) Parts().history.Forget();
  Q_EMIT OnNoColsChange(NoOfCols());
}

void TQorCustomMatrixEdit::ChangeRows(quint32 rows) {
  if (rows == NoOfRows()) return;
  ResizeRows(rows);
  if (Model() == nullptr) Parts().history.Forget();
  Q_EMIT OnNoRowsChange(NoOfRows());
}

void TQorCustomMatrixEdit::ResizeCols(quint32 cols) {
  SetCount(Parts().cols, cols);
  // After the handlers, which may still read the elements that go.
  if (!VirtualMode()) TrimStore();
}

void TQorCustomMatrixEdit::ResizeRows(quint32 rows) {
  SetCount(Parts().rows, rows);
  if (!VirtualMode()) TrimStore();
}

void TQorCustomMatrixEdit::TrimStore() {
  if (store_.size() > NoOfRows()) store_.SetLength(NoOfRows());
  for (TQorFloatVector& row : store_) {
    if (row.size() > NoOfCols()) row.SetLength(NoOfCols());
  }
}

TQorFloatMatrix& TQorCustomMatrixEdit::FullStore() {
  if (store_.size() < NoOfRows()) store_.SetLength(NoOfRows());
  for (TQorFloatVector& row : store_) {
    if (row.size() < NoOfCols()) row.SetLength(NoOfCols());
  }
  return store_;
}

TQorFloatMatrix TQorCustomMatrixEdit::Matrix() const {
  auto matrix = TQorFloatMatrix::WithLength(NoOfRows());
  for (quint32 row = 0; row < NoOfRows(); ++row) {
    matrix[row] = TQorFloatVector::ForOverwrite(NoOfCols());
    for (quint32 col = 0; col < NoOfCols(); ++col) matrix[row][col] = Value(row, col);
  }
  return matrix;
}

void TQorCustomMatrixEdit::setMatrix(const TQorFloatMatrix& matrix) {
  if (!matrix.empty() && !MatrixIsRectangular(matrix)) RaiseMathError(rsMatrixRect);
  Parts().focus.CommitUnless([&](quint32 row, quint32 col) {
    return row < matrix.size() && col < matrix[row].size() &&
           SameElement(matrix[row][col], Value(row, col));
  });
  Parts().history.Forget();
  Take(CopyMatrix(matrix));
}

void TQorCustomMatrixEdit::Take(TQorFloatMatrix matrix) {
  const quint32 rows = MatrixRows(matrix);
  const quint32 cols = MatrixCols(matrix);
  const Update update(*this);
  if (Model() != nullptr) {
    setNoOfRows(rows);
    setNoOfCols(cols);
  }
  const quint32 rows_before = NoOfRows();
  const quint32 cols_before = NoOfCols();
  if (Model() == nullptr) {
    ResizeRows(rows);
    ResizeCols(cols);
  }
  if (VirtualMode()) {
    for (quint32 row = 0; row < std::min(rows, NoOfRows()); ++row) {
      for (quint32 col = 0; col < std::min(cols, NoOfCols()); ++col) {
        Store(row, col, matrix[row][col]);
      }
    }
  } else if (NoOfRows() == rows && NoOfCols() == cols) {
    store_ = std::move(matrix);
  }
  if (NoOfRows() != rows_before) Q_EMIT OnNoRowsChange(NoOfRows());
  if (NoOfCols() != cols_before) Q_EMIT OnNoColsChange(NoOfCols());
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
  Parts().history.ForgetCommand();
  Redisplay();
}

quint32 TQorCustomMatrixEdit::CurrentCol() const noexcept {
  return Cols().Current();
}

void TQorCustomMatrixEdit::setCurrentCol(quint32 col) {
  Parts().cols.Window().SetCurrent(col);
}

quint32 TQorCustomMatrixEdit::RowEditFocus() const noexcept {
  return Rows().Focus();
}

void TQorCustomMatrixEdit::setRowEditFocus(quint32 edit) {
  Parts().focus.FocusCell(edit, Cols().Focus());
}

quint32 TQorCustomMatrixEdit::ColEditFocus() const noexcept {
  return Cols().Focus();
}

void TQorCustomMatrixEdit::setColEditFocus(quint32 edit) {
  Parts().focus.FocusCell(Rows().Focus(), edit);
}

void TQorCustomMatrixEdit::ScrollLeft(quint32 cols) {
  Parts().cols.ScrollUp(cols);
}

void TQorCustomMatrixEdit::ScrollRight(quint32 cols) {
  Parts().cols.ScrollDown(cols);
}

void TQorCustomMatrixEdit::ScrollLeftMost() {
  Parts().cols.ScrollToStart();
}

void TQorCustomMatrixEdit::ScrollRightMost() {
  Parts().cols.ScrollToEnd();
}

Extended TQorCustomMatrixEdit::Value(quint32 row, quint32 col) const {
  if (Model() != nullptr) return Parts().model.Value(row, col);
  if (VirtualMode()) {
    return OnGetElement ? OnGetElement(row, col)
                        : static_cast<Extended>(col + quint64{row} * NoOfCols());
  }
  const TQorFloatMatrix& store = store_;
  return row < store.size() && col < store[row].size() ? store[row][col] : 0;
}

bool TQorCustomMatrixEdit::Store(quint32 row, quint32 col, Extended value) {
  if (Model() != nullptr) return Parts().model.Store(row, col, value);
  if (VirtualMode()) {
    Q_EMIT OnSetElement(row, col, value);
  } else if (row < NoOfRows() && col < NoOfCols()) {
    if (row >= store_.size() || col >= store_[row].size()) FullStore();
    store_[row][col] = value;
  }
  return true;
}

bool TQorCustomMatrixEdit::IsReadOnly(quint32 row, quint32 col) const {
  return Parts().model.IsReadOnly(row, col);
}

void TQorCustomMatrixEdit::Notify(CellEvent event, quint32 row, quint32 col) {
  switch (event) {
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
      .arg(RowHeading(row), ColHeading(col));
}

QColor TQorCustomMatrixEdit::SpecialColor(quint32 row, quint32 col, Extended value) const {
  if (!OnSpecialColor) return {};
  const EditColors colors = EffectiveSettings().colors;
  QColor usual = palette().color(QPalette::Text);
  if (colors.text.isValid()) usual = colors.text;
  if (value < 0 && colors.negative_text.isValid()) usual = colors.negative_text;
  QColor color = usual;
  OnSpecialColor(row, col, value, color);
  return color == usual ? QColor() : color;
}

void TQorCustomMatrixEdit::VirtualModeChanged() {
  if (!VirtualMode()) TrimStore();
}

void TQorCustomMatrixEdit::CornerClick() {
  Q_EMIT OnCornerBtnClick();
}

}  // namespace qorvex::inline QorvexMatrixEdit
