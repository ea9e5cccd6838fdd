#pragma once

/// @file
/// TextCell, a line edit as one of many cells: what is typed into it counts once it is committed.

#include <QLineEdit>
#include <QMenu>
#include <QString>

#include "qorvex/base/export.h"
#include "qorvex/base_controls/cell_settings.h"
#include "qorvex/base_controls/unit.h"

class QMimeData;

QORVEX_WIDGET_UNIT(QorvexBaseControls) {

/// A line edit that knows what it shows while nothing is typed, and that tells when the focus comes
/// from another widget and when it has gone to one. A menu that opens or a window that becomes
/// inactive is neither; the latter commits. What is pasted or dropped goes through Paste, by
/// whatever way it comes. Files and links are not taken, so that they can be dropped on what is
/// around the cell.
///
/// A text that is wider than the cell is not painted in part, which could be read as another one,
/// but in a shorter form, unless it is being edited; a tool tip shows it whole. text() is the whole
/// text at all times.
class QORVEX_EXPORT TextCell : public QLineEdit {
  Q_OBJECT

 public:
  ~TextCell() override;

  /// Something has been typed that is neither committed nor what the cell showed.
  [[nodiscard]] bool Pending() const;
  /// Makes the text that is typed count. False when it cannot; the text stays then.
  virtual bool Commit() = 0;
  /// Gives up what is typed.
  virtual void Restore();
  /// Commits, or restores where that fails.
  void CommitOrRestore();
  /// Leaves the cell as a change of the focus does: CommitOrRestore, then Left. Nothing happens
  /// when the cell has not been entered.
  void Leave();

  /// What is painted: the text where it has room or is being edited, its shorter form elsewhere. A
  /// text is being edited while it has the focus, unless it is read-only, and while a part of it is
  /// selected.
  [[nodiscard]] QString PaintedText() const;

  /// The menu that a click on the cell opens; the caller owns it.
  [[nodiscard]] QMenu* CreateContextMenu();

  /// What gets selected on entry. A cell with auto_select selects a text that takes the place of
  /// another while the focus is there, too.
  void SetSelectionBehaviour(const SelectionBehaviour& behaviour) { behaviour_ = behaviour; }

 Q_SIGNALS:
  /// The focus has come in from another widget.
  void Entered();
  /// The focus has gone to another widget, and the text is committed or restored.
  void Left();
  /// CommitOrRestore has given up this text.
  void Refused(const QString& text);
  /// A menu is about to open; the owner may add to it.
  void MenuOpening(QMenu* menu);

 protected:
  /// An empty cell.
  explicit TextCell(QWidget* parent = nullptr);

  /// Shows the text; one that is being typed can be kept over it.
  void ShowText(const QString& text, bool keep_pending);
  /// Takes a text that is pasted or dropped. This one takes what stands in front of the first tab
  /// or line end, without the blanks around it.
  virtual void Paste(const QString& text);
  /// What is painted in place of the text that the cell shows, which has no room. This one is the
  /// front of it with an ellipsis.
  [[nodiscard]] virtual QString ShorterText() const;
  /// Whether a text can be painted in full width.
  [[nodiscard]] bool HasRoom(const QString& text) const;
  /// What a tool tip shows: the text, where it has no room; empty for no tip.
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
  [[nodiscard]] bool IsEdited() const;
  // Where the frame and the margins leave place for a text.
  [[nodiscard]] QRect Contents() const;

  QString shown_;
  SelectionBehaviour behaviour_;
  bool inside_ = false;
  bool entered_by_mouse_ = false;
};

}  // QORVEX_WIDGET_UNIT(QorvexBaseControls)
