// A panel of cells over a model of Qt.

#include <QCoreApplication>
#include <QPointer>
#include <new>

#include "qorvex/base/text.h"
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

bool CellPanel::TextItems() const noexcept {
  return parts_->model.HasTexts();
}

void CellPanel::setTextItems(bool on) {
  if (on == TextItems()) return;
  parts_->focus.CommitPending();
  parts_->history.Forget();
  parts_->model.SetHasTexts(on);
  parts_->grid.SetTexts(on ? &parts_->model.Texts() : nullptr);
  Redisplay();
}

void CellPanel::SwitchModel(QAbstractItemModel* model) {
  detail::ModelLink& link = parts_->model;
  const Update update(*this);
  // Its handlers may set a model themselves, which is replaced here.
  parts_->history.Forget();
  // A model that is being deleted is not linked any more.
  const bool was_virtual = virtual_mode_ || own_size_;
  if (!own_size_) own_size_ = TQorCellRange{0, table_.RowCount(), 0, table_.ColCount()};
  link.Link(model);
  if (model != nullptr) {
    table_.SetSize(link.Count(CellAxis::kRows), link.Count(CellAxis::kCols));
  } else {
    const TQorCellRange size = *own_size_;
    table_.SetSize(size.rows, size.cols);
    // Handlers may have set a model, and need the size again.
    if (Model() == nullptr) own_size_.reset();
  }
  if (VirtualMode() != was_virtual) table_.VirtualModeChanged();
  FitSpareLines();
}

void CellPanel::ModelDeleted() {
  // There is no place for what is being typed.
  if (TextCell* const text = parts_->focus.Entered()) text->Restore();
  parts_->history.Forget();
  // Handlers may have set another model.
  if (Model() == nullptr) SwitchModel(nullptr);
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
  const QAbstractItemModel* const model = Model();
  if (!move.is_append) {
    // The step that stores a value follows its own elements.
    move.is_stored ? parts_->history.ForgetOthers() : parts_->history.Forget();
  }
  // Handlers may have set another model.
  if (Model() != model) return;
  if (TextCell* const text = parts_->focus.Entered(); text && move.typed_is_gone) text->Restore();
  const quint32 rows = parts_->model.Count(CellAxis::kRows);
  // What is being typed is committed to its own element, not to the one that is now in its cell; in
  // the spare row it becomes a row of its own.
  const std::optional<detail::CellPlace> typed = TypedPlace();
  const bool in_spare = typed && typed->row >= table_.RowCount();
  parts_->typed_place = in_spare ? detail::CellPlace{rows, typed->col} : move.typed_to;
  parts_->model_moves = true;
  if (move.cols.removed + move.cols.inserted > 0) ReplaceCols(move.cols);
  table_.SetSize(rows, parts_->model.Count(CellAxis::kCols));
  if (parts_->typed_place != typed && parts_->typed_place) parts_->focus.CommitPending();
  parts_->model_moves = false;
  parts_->typed_place.reset();
}

void CellPanel::StoreLater(quint32 row, quint32 col, Extended value) {
  // A proxy tells of one removal after the other, and must not be changed between them.
  const detail::ModelLink::Element element(parts_->model, {row, col});
  const bool appends = row >= table_.RowCount();
  const auto store = [=, this, model = QPointer<QAbstractItemModel>(Model())] {
    if (model == nullptr || model != Model()) return;
    const quint32 rows = table_.RowCount();
    detail::LineInsertions lines;
    if (appends) lines.push_back({CellAxis::kRows, rows, 1, NewElement()});
    const auto place = appends ? detail::CellPlace{rows, col} : element.Place();
    if (!place) return;
    if (place->col >= table_.ColCount()) {
      // The editor of a vector shows another column now.
      table_.Store(place->row, place->col, value);
      return;
    }
    try {
      if (parts_->history.Apply(lines, {{place->row, place->col, value}},
                                QCoreApplication::translate("CellPanel", "Typing"))) {
        return;
      }
      RefuseBlock(detail::NotStored(table_.CellName(place->row, place->col),
                                    QString::fromStdString(Float2Str(value))));
    } catch (const std::bad_alloc&) {
      RefuseBlock(detail::OutOfMemory());
    }
  };
  QMetaObject::invokeMethod(this, store, Qt::QueuedConnection);
}

}  // namespace qorvex::inline QorvexControls
