#include "qorvex/controls/panel/cell_panel.h"

#include <QEvent>
#include <new>
#include <optional>
#include <utility>

#include "qorvex/controls/panel/detail/accessible_panel.h"
#include "qorvex/controls/panel/detail/block_clipboard.h"
#include "qorvex/controls/panel/detail/panel_parts.h"

namespace qorvex::inline QorvexControls {

CellPanel::CellPanel(QWidget* parent, CellTable& table, GridAxes axes, detail::CurrentRule rule,
                     detail::EditWindowEvents row_events, detail::EditWindowEvents col_events)
    : TQorCustomPanel(parent), table_(table) {
  detail::RegisterAccessiblePanels();
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  // The tab key, a buddy and QWidget::setTabOrder lead to the cells. A click beside them does not.
  setFocusPolicy(Qt::TabFocus);
  row_events.before_top = [this](quint32 top) {
    parts_->focus.CommitPending();
    Q_EMIT ontopChange(top);
  };
  row_events.current_changed = [this](quint32 before, quint32 now) {
    Q_EMIT OnCurrRowChange(before, now);
  };
  row_events.redisplay = [this] { Redisplay(); };
  col_events.before_top = [this, announce = std::move(col_events.before_top)](quint32 left) {
    parts_->focus.CommitPending();
    if (announce) announce(left);
  };
  col_events.redisplay = [this] {
    parts_->layout.ColsMoved();
    Redisplay();
  };
  parts_ = std::make_unique<detail::PanelParts>(*this, rule, std::move(row_events),
                                                std::move(col_events));

  parts_->rows.AddBar(Qt::Vertical, *this);
  parts_->keys.WatchBar(*parts_->rows.Bar());
  if (axes == GridAxes::kRowsAndCols) {
    parts_->cols.AddBar(Qt::Horizontal, *this);
    parts_->keys.WatchBar(*parts_->cols.Bar());
  }
  NameBars();
  connect(this, &CellPanel::OnSelectionChange, this, &CellPanel::AnnounceSelection);
}

CellPanel::~CellPanel() = default;

void CellPanel::Build(CellFactory make_cell, int row_edits, int col_edits) {
  parts_->grid.SetCellFactory(std::move(make_cell));
  parts_->layout.SetEdits(parts_->cols, col_edits);
  parts_->layout.SetEdits(parts_->rows, row_edits);
}

void CellPanel::ConnectCell(TQorCustomEdit& cell, detail::CellPlace place) {
  const auto row = [this, place] {
    return parts_->typed_place ? parts_->typed_place->row : Rows().Top() + place.row;
  };
  const auto col = [this, place] {
    return parts_->typed_place ? parts_->typed_place->col : Cols().Top() + place.col;
  };
  connect(&cell, &TQorCustomEdit::Entered, this, [=, this, &cell] {
    // A text that was typed in another cell is committed now.
    parts_->typed_place.reset();
    parts_->focus.Enter(cell, place, false);
    parts_->selection.Entered(cell.EnteredByMouse());
    table_.Notify(CellEvent::kEnter, row(), col());
  });
  connect(&cell, &TQorCustomEdit::Left, this, [=, this, &cell] {
    parts_->focus.Leave(cell);
    parts_->selection.Left({row(), col()});
    table_.Notify(CellEvent::kExit, row(), col());
  });
  connect(&cell, &TQorCustomEdit::textEdited, this,
          [=, this](const QString& text) { table_.NotifyText(row(), col(), text); });
  connect(&cell, &TQorCustomEdit::Refused, this,
          [=, this, &cell] { RefuseText(cell, row(), col(), cell.Refusal()); });
  connect(&cell, &TQorCustomEdit::BlockPasted, this, &CellPanel::PasteBlock);
  cell.StoreElsewhere = [=, this, &cell](Extended value) { DoChange(cell, row(), col(), value); };
  Watch(cell);
}

void CellPanel::DoChange(TQorCustomEdit& cell, quint32 row, quint32 col, Extended value) {
  if (parts_->model_moves) {
    StoreLater(row, col, value);
    return;
  }
  if (row >= table_.RowCount() || col >= table_.ColCount()) {
    AppendLines(cell, row, col, value);
    return;
  }
  // The cell may have shown null in place of the element.
  const Extended before = table_.Value(row, col);
  const detail::ModelLink::Element element(parts_->model, {row, col});
  try {
    if (!table_.Store(row, col, value)) {
      cell.Refresh(before);
      RefuseBlock(detail::NotStored(table_.CellName(row, col), cell.ExactText(value)));
      return;
    }
  } catch (const std::bad_alloc&) {
    // A table that is longer than memory allows gets its memory now.
    cell.Refresh(before);
    RefuseBlock(detail::OutOfMemory());
    return;
  }
  // A model may have sorted the element to another place, or hidden it.
  const std::optional<detail::CellPlace> place = element.Place();
  if (!place) return;
  // In virtual mode the program may have stored another value.
  const Extended now = table_.Value(place->row, place->col);
  if (place == element.Origin()) cell.Refresh(now);
  parts_->history.Record({place->row, place->col, before});
}

void CellPanel::SetCount(detail::PanelAxis& axis, quint32 count) {
  const std::optional<QString> typed = count > axis.Count() ? TakeFromSpareRow(axis) : std::nullopt;
  const bool is_cols = &axis == &parts_->cols;
  SetLines(axis, count, is_cols ? HasSpareCol(count) : axis.HasSpare());
  axis.ReachWantedTop();
  parts_->layout.CountChanged();
  AnnounceSize();
  if (typed) TypeIntoSpareRow(*typed);
}

void CellPanel::SetLines(detail::PanelAxis& axis, quint32 count, bool spare) {
  const quint32 top = axis.Window().Top();
  const quint32 lines = detail::PanelAxis::Lines(count, spare);
  parts_->focus.Keep(axis, lines > top ? lines - top : 0, [&] { axis.SetCount(count, spare); });
}

void CellPanel::FitGrid() {
  parts_->grid.Fit(EffectiveSettings(), CellFocusPolicy(), parts_->rows.Bar());
  parts_->layout.Place();
  Redisplay();
}

void CellPanel::Redisplay() {
  parts_->model.FetchRow(Rows().Top() + Rows().Edits());
  // At once, since a cell may be given the focus before the update ends.
  parts_->grid.EnableUsedCells();
  parts_->focus.Lead();
  if (!Updating()) {
    parts_->grid.Show();
    if (parts_->headings.Show()) parts_->layout.Arrange();
  }
  parts_->selection.Update();
}

void CellPanel::Watch(TextCell& text) {
  connect(&text, &QLineEdit::textEdited, this, [this] { parts_->focus.SetEditing(true); });
  connect(&text, &TextCell::MenuOpening, this, [this, &text](QMenu* menu) {
    const detail::CellGrid::Spot spot = parts_->grid.SpotOf(text);
    const detail::CellPlace element{Rows().Top() + spot.place.row, Cols().Top() + spot.place.col};
    FillMenu(*menu, spot.is_cell ? parts_->typed_place.value_or(element) : element);
  });
  parts_->keys.Watch(text);
}

void CellPanel::ApplySettings() {
  parts_->grid.Apply(EffectiveSettings(), CellFocusPolicy());
}

Qt::FocusPolicy CellPanel::CellFocusPolicy() const {
  return tab_stop_ ? Qt::StrongFocus : Qt::ClickFocus;
}

void CellPanel::SettingsChanged() {
  ApplySettings();
  FitSpareLines();
}

void CellPanel::DoColorSetChange() {
  ApplySettings();
  Q_EMIT OnColorSetChange();
}

void CellPanel::Loaded() {
  parts_->settings.Find();
  parts_->rows.Loaded();
  parts_->cols.Loaded();
}

void CellPanel::changeEvent(QEvent* event) {
  TQorCustomPanel::changeEvent(event);
  switch (event->type()) {
    case QEvent::FontChange:
    case QEvent::StyleChange:
    case QEvent::LayoutDirectionChange:
      parts_->layout.Arrange();
      break;
    case QEvent::LanguageChange:
      NameBars();
      Redisplay();
      break;
    case QEvent::LocaleChange:
      Redisplay();
      break;
    default:
      break;
  }
}

void CellPanel::resizeEvent(QResizeEvent* event) {
  TQorCustomPanel::resizeEvent(event);
  parts_->layout.SizeChanged();
}

void CellPanel::showEvent(QShowEvent* event) {
  TQorCustomPanel::showEvent(event);
  parts_->settings.Find();
  // Their texts may have been supplied since they were measured.
  parts_->layout.MeasureHeadings();
}

void CellPanel::wheelEvent(QWheelEvent* event) {
  // Cells without an element are disabled and pass it on.
  parts_->wheel.EditMouseWheel(*event);
}

bool CellPanel::focusNextPrevChild(bool next) {
  return parts_->focus.TabOn(next) || TQorCustomPanel::focusNextPrevChild(next);
}

void CellPanel::hideEvent(QHideEvent* event) {
  // Turning a page of tabs loses nothing. The cell is not left, though: the control may be about to
  // be deleted, and what its handlers refer to with it. A window that is minimised comes back as it
  // was.
  if (!event->spontaneous()) parts_->focus.CommitPending();
  TQorCustomPanel::hideEvent(event);
}

}  // namespace qorvex::inline QorvexControls
