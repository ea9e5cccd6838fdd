#pragma once

/// @file
/// TextCell, a line edit for a cell whose text takes effect when it is committed.

#include <QLineEdit>
#include <QMenu>
#include <QString>

#include "qorvex/base/export.h"
#include "qorvex/base_controls/cell_settings.h"
#include "qorvex/base_controls/unit.h"

class QMimeData;

QORVEX_WIDGET_UNIT(QorvexBaseControls) {

/// A line edit that keeps the text that it shows while nothing is being typed, and signals when the
/// focus comes from or goes to another widget. Opening a menu or deactivating the window does not
/// count as leaving: what is being typed stays as it is. All pasted and dropped text goes through
/// Paste. Files and links are ignored, so that they can be dropped on the parent.
///
/// A text that is wider than the cell is painted in a shorter form, never cut off, which could be
/// misread, unless it is being edited; a tool tip shows all of it. text() is always the whole text.
class QORVEX_EXPORT TextCell : public QLineEdit {
  Q_OBJECT

 public:
  ~TextCell() override;

  /// Whether a text has been typed that is not committed and differs from the one shown before.
  [[nodiscard]] bool Pending() const;
  /// Commits the typed text. False if that is not possible; the text then stays.
  virtual bool Commit() = 0;
  /// Discards the typed text.
  virtual void Restore();
  /// Commits as Enter does: if that fails the text stays, and Refused is raised.
  bool CommitOrRefuse();
  /// Commits, or restores if that fails, and Refused is raised.
  void CommitOrRestore();
  /// Leaves the cell like a change of focus: CommitOrRestore, then Left. Does nothing if the cell
  /// has not been entered.
  void Leave();

  /// The painted text: the whole text if it fits or is being edited, otherwise its shorter form. A
  /// text is being edited while it has the focus, unless it is read-only, and while a part of it is
  /// selected.
  [[nodiscard]] QString PaintedText() const;
  /// Whether a text that is selected as a whole counts as being edited when it has the focus; true
  /// by default. In a panel it does not until the user edits it.
  void SetEditing(bool editing);
  /// The width in pixels at which the whole text fits.
  [[nodiscard]] int FittingWidth() const;

  /// Whether a press of the mouse, not yet released, has entered the cell.
  [[nodiscard]] bool EnteredByMouse() const noexcept { return entered_by_mouse_; }

  /// The menu that a click on the cell opens; the caller owns it.
  [[nodiscard]] QMenu* CreateContextMenu();

  /// When the whole text gets selected. With auto_select this includes a text that replaces another
  /// one while the cell has the focus.
  void SetSelectionBehaviour(const SelectionBehaviour& behaviour) { behaviour_ = behaviour; }

 Q_SIGNALS:
  /// The focus has come from another widget.
  void Entered();
  /// The focus has gone to another widget, and the text is committed or restored.
  void Left();
  /// This text cannot be committed: it is still there, or CommitOrRestore has discarded it.
  void Refused(const QString& text);
  /// A menu is about to open; the owner may add to it.
  void MenuOpening(QMenu* menu);

 protected:
  /// An empty cell.
  explicit TextCell(QWidget* parent = nullptr);

  /// Shows the text, or keeps a text that is being typed.
  void ShowText(const QString& text, bool keep_pending);
  /// Inserts a pasted or dropped text: by default the part before the first tab or line end,
  /// trimmed.
  virtual void Paste(const QString& text);
  /// The text that is painted if the shown text does not fit: by default its beginning with an
  /// ellipsis.
  [[nodiscard]] virtual QString ShorterText() const;
  /// Whether a text fits.
  [[nodiscard]] bool HasRoom(const QString& text) const;
  /// The text that is painted while it is not being edited, if it fits: by default the text.
  [[nodiscard]] virtual QString WholeText() const { return displayText(); }
  /// The text of the tool tip: the whole text if it does not fit; empty for no tip.
  [[nodiscard]] virtual QString Tip() const;
  /// Between Entered and Left.
  [[nodiscard]] bool Inside() const noexcept { return inside_; }

  /// @{
  /// Qt's events.
  void contextMenuEvent(QContextMenuEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dragMoveEvent(QDragMoveEvent* event) override;
  void dropEvent(QDropEvent* event) override;
  bool event(QEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  /// @}

 private:
  void PasteFrom(const QMimeData* contents);
  void PaintText(const QString& painted);
  void PaintLostFrame();
  [[nodiscard]] bool IsEdited() const;
  // Where the frame and the margins leave place for a text.
  [[nodiscard]] QRect Contents() const;

  QString shown_;
  SelectionBehaviour behaviour_;
  bool inside_ = false;
  bool entered_by_mouse_ = false;
  bool editing_ = true;
};

}  // QORVEX_WIDGET_UNIT(QorvexBaseControls)
