// A panel of cells over a model of Qt.

#include "qorvex/controls/panel/detail/panel_parts.h"

namespace qorvex::inline QorvexControls {

QAbstractItemModel* CellPanel::Model() const noexcept {
  return parts_->model.Linked();
}

void CellPanel::setModel(QAbstractItemModel* model) {
  if (model == Model()) return;
  parts_->focus.CommitPending();
  SwitchModel(model);
}

void CellPanel::SwitchModel(QAbstractItemModel* model) {
  detail::ModelLink& link = parts_->model;
  // A model that is being deleted is not linked any more.
  const bool was_virtual = virtual_mode_ || own_size_;
  if (!own_size_) own_size_ = TQorCellRange{0, table_.RowCount(), 0, table_.ColCount()};
  const Update update(*this);
  parts_->history.Forget();
  link.Link(model);
  if (model != nullptr) {
    table_.SetSize(link.Count(CellAxis::kRows), link.Count(CellAxis::kCols));
  } else {
    const TQorCellRange size = *own_size_;
    own_size_.reset();
    table_.SetSize(size.rows, size.cols);
  }
  if (VirtualMode() != was_virtual) table_.VirtualModeChanged();
  FitSpareRow();
}

void CellPanel::ModelDeleted() {
  // There is no place for what is being typed.
  if (TextCell* const text = parts_->focus.Entered()) text->Restore();
  SwitchModel(nullptr);
}

std::optional<detail::CellPlace> CellPanel::TypedPlace() const {
  const auto* const cell = qobject_cast<TQorCustomEdit*>(parts_->focus.Entered());
  if (cell == nullptr || !cell->Pending()) return std::nullopt;
  return detail::CellPlace{Rows().Top() + Rows().Focus(), Cols().Top() + Cols().Focus()};
}

void CellPanel::ModelChanged(const TQorCellRange& range) {
  const auto in_sight = [](const detail::EditWindow& window, quint32 first, quint32 count) {
    return first < window.Top() + window.UsedEdits() && window.Top() < first + count;
  };
  if (in_sight(Rows(), range.row, range.rows) && in_sight(Cols(), range.col, range.cols)) {
    Redisplay();
  }
}

void CellPanel::ModelMoved(const detail::ModelMove& move) {
  const Update update(*this);
  if (!move.is_append) parts_->history.Forget();
  if (TextCell* const text = parts_->focus.Entered(); text && move.typed_is_gone) text->Restore();
  const quint32 rows = parts_->model.Count(CellAxis::kRows);
  // What is being typed is committed to its own element, not to the one that is now in its cell; in
  // the spare row it becomes a row of its own.
  const std::optional<detail::CellPlace> typed = TypedPlace();
  const bool in_spare = typed && typed->row >= table_.RowCount();
  parts_->typed_place = in_spare ? detail::CellPlace{rows, typed->col} : move.typed_to;
  table_.SetSize(rows, parts_->model.Count(CellAxis::kCols));
  if (parts_->typed_place != typed && parts_->typed_place) parts_->focus.CommitPending();
  parts_->typed_place.reset();
}

}  // namespace qorvex::inline QorvexControls
