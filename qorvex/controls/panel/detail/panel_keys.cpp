#include "qorvex/controls/panel/detail/panel_keys.h"

#include <algorithm>

#include "qorvex/controls/panel/detail/tab_order.h"

namespace qorvex::inline QorvexControls::detail {

PanelKeys::PanelKeys(CellPanel& panel, PanelAxis& rows, PanelAxis& cols, PanelFocus& focus,
                     PanelSelection& selection, PanelMouse& mouse, PanelWheel& wheel)
    : panel_(panel),
      rows_(rows),
      cols_(cols),
      focus_(focus),
      selection_(selection),
      mouse_(mouse),
      wheel_(wheel) {}

GridKey PanelKeys::MeaningOf(const QKeyEvent& event) const {
  const GridKey key = GridKeyOf(event.key(), event.modifiers(),
                                {.editing = focus_.KeysBelongToText(),
                                 .has_cols = cols_.Bar() != nullptr,
                                 .mirrored = panel_.layoutDirection() == Qt::RightToLeft});
  switch (key.action) {
    case GridAction::kEscape:
      return focus_.Editing() || IsTyping() || selection_.IsMultiple() ? key : GridKey{};
    case GridAction::kInsertLines:
    case GridAction::kDeleteLines:
      return panel_.CanGrow() ? key : GridKey{};
    default:
      return key;
  }
}

bool PanelKeys::IsTyping() const {
  return focus_.Entered() != nullptr && focus_.Entered()->Pending();
}

bool PanelKeys::IsLeftToApplication(GridKey key) const {
  if (key.action != GridAction::kUndo && key.action != GridAction::kRedo) return false;
  if (panel_.EffectiveSettings().read_only) return true;
  return key.action == GridAction::kUndo ? !panel_.CanUndo() : !panel_.CanRedo();
}

bool PanelKeys::UseKey(QKeyEvent& event) {
  const GridKey key = MeaningOf(event);
  if (key.action == GridAction::kNone) return false;
  if (IsLeftToApplication(key)) {
    event.ignore();
  } else if (key.extends) {
    Extend(key.action);
  } else {
    Act(key.action);
  }
  return true;
}

void PanelKeys::Act(GridAction action) {
  switch (action) {
    case GridAction::kEdit:
      Edit();
      break;
    case GridAction::kEscape:
      Escape();
      break;
    case GridAction::kSelectAll:
      panel_.SelectAll();
      break;
    case GridAction::kSelectRows:
      panel_.SelectRows(panel_.Selection().row, panel_.Selection().rows);
      break;
    case GridAction::kSelectCols:
      panel_.SelectCols(panel_.Selection().col, panel_.Selection().cols);
      break;
    case GridAction::kCopy:
      panel_.Copy();
      break;
    case GridAction::kCopyAll:
      panel_.CopyAll();
      break;
    case GridAction::kCut:
      panel_.Cut();
      break;
    case GridAction::kPaste:
      panel_.Paste();
      break;
    case GridAction::kDelete:
      panel_.DeleteSelected();
      break;
    case GridAction::kFillDown:
      panel_.FillDown();
      break;
    case GridAction::kFillRight:
      panel_.FillRight();
      break;
    case GridAction::kInsertLines:
      panel_.InsertSelectedLines();
      break;
    case GridAction::kDeleteLines:
      panel_.DeleteSelectedLines();
      break;
    case GridAction::kUndo:
      panel_.Undo();
      break;
    case GridAction::kRedo:
      panel_.Redo();
      break;
    case GridAction::kPageBack:
      panel_.ScrollUp(std::min(rows_.Window().Edits(), rows_.Window().Top()));
      break;
    case GridAction::kPageForward:
      panel_.ScrollDown(rows_.Window().Edits());
      break;
    case GridAction::kLeaveBack:
    case GridAction::kLeaveForward:
      Leave(action == GridAction::kLeaveForward);
      break;
    case GridAction::kNothing:
      break;
    default:
      Go(action);
  }
}

void PanelKeys::Leave(bool forward) {
  QWidget* const stop = StopOutside(panel_, forward);
  if (stop != nullptr) stop->setFocus(forward ? Qt::TabFocusReason : Qt::BacktabFocusReason);
}

void PanelKeys::Go(GridAction action) {
  {
    const PanelSelection::Hold hold(selection_, PanelSelection::Hold::Entry::kClears);
    Move(action);
  }
  // A text that is not a number is still being edited.
  focus_.Editing() ? selection_.Update() : selection_.Clear();
}

void PanelKeys::Move(GridAction action) {
  switch (action) {
    case GridAction::kRowBack:
      focus_.Step(rows_, cols_, false);
      break;
    case GridAction::kEnter:
    case GridAction::kRowForward:
      focus_.Step(rows_, cols_, true);
      break;
    case GridAction::kColBack:
      focus_.Step(cols_, rows_, false);
      break;
    case GridAction::kColForward:
      focus_.Step(cols_, rows_, true);
      break;
    default:
      GoTo(selection_.Moved(selection_.Current(), action));
  }
}

void PanelKeys::GoTo(CellPlace element) {
  focus_.FocusElement(element.row, element.col);
}

void PanelKeys::Extend(GridAction action) {
  if (selection_.Range().IsEmpty()) return;
  const CellPlace target = selection_.Moved(selection_.End(), action);
  selection_.Extend(target);
  {
    const PanelSelection::Hold hold(selection_, PanelSelection::Hold::Entry::kKeeps);
    GoTo(target);
  }
  selection_.Update();
}

void PanelKeys::Edit() {
  TextCell* const text = focus_.Entered();
  if (text == nullptr) return;
  focus_.SetEditing(!focus_.Editing());
  if (focus_.Editing()) text->end(false);
}

void PanelKeys::Escape() {
  TextCell* const text = focus_.Entered();
  if (!focus_.Editing() && !IsTyping()) return selection_.Clear();
  text->Restore();
  focus_.SetEditing(false);
}

bool PanelKeys::EditKeyDown(QKeyEvent& event) {
  event.setAccepted(false);
  Q_EMIT panel_.OnKeyDown(&event);
  if (event.isAccepted()) return true;
  // Left unaccepted, a key would be handled again by every parent.
  event.accept();
  return UseKey(event);
}

bool PanelKeys::EditKeyPress(QKeyEvent& event) {
  if (event.text().isEmpty()) return false;
  event.setAccepted(false);
  Q_EMIT panel_.OnKeyPress(&event);
  if (event.isAccepted()) return true;
  event.accept();
  return false;
}

bool PanelKeys::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Wheel) {
    wheel_.EditMouseWheel(static_cast<QWheelEvent&>(*event));
    return true;
  }
  if (watched == rows_.Bar() || watched == cols_.Bar()) return false;
  switch (event->type()) {
    case QEvent::ShortcutOverride: {
      const GridKey key = MeaningOf(static_cast<const QKeyEvent&>(*event));
      if (key.action == GridAction::kNone) break;
      // Otherwise an action of the application with the same keys would take them. A key that it
      // may have is kept from the text, which would claim it.
      event->setAccepted(!IsLeftToApplication(key));
      return true;
    }
    case QEvent::KeyPress: {
      auto& key = static_cast<QKeyEvent&>(*event);
      return EditKeyDown(key) || EditKeyPress(key);
    }
    case QEvent::FocusIn:
      return focus_.Redirect(watched, static_cast<const QFocusEvent&>(*event).reason());
    case QEvent::ContextMenu:
      if (panel_.contextMenuPolicy() == Qt::DefaultContextMenu) break;
      // Ignored, it goes on to the panel, which follows its policy.
      event->ignore();
      return true;
    case QEvent::KeyRelease:
      Q_EMIT panel_.OnKeyUp(static_cast<QKeyEvent*>(event));
      break;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease: {
      auto& text = static_cast<TextCell&>(*watched);
      return text.isEnabled() && mouse_.Handle(text, static_cast<QMouseEvent&>(*event));
    }
    default:
      break;
  }
  return false;
}

}  // namespace qorvex::inline QorvexControls::detail
