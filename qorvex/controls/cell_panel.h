#pragma once

/// @file
/// CellPanel, a grid of cells that is a window on a longer and wider table. What the editors of
/// vectors and matrices have in common.

#include <QColor>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>
#include <QString>
#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

#include "qorvex/base/element_types.h"
#include "qorvex/base/export.h"
#include "qorvex/base_controls/cell_properties.h"
#include "qorvex/base_controls/custom_edit.h"
#include "qorvex/base_controls/custom_panel.h"
#include "qorvex/base_controls/uictrl.h"
#include "qorvex/base_controls/unit.h"

class QScrollBar;

QORVEX_WIDGET_UNIT(QorvexControls) {
/// @cond internal
namespace detail {
class EditWindow;
enum class CurrentRule;
}  // namespace detail
/// @endcond

/// A grid of cells with a scroll bar beside it, and one below it where the table has columns. The
/// cells show the part of a table that begins at DisplayTopRow; the table itself is behind the pure
/// functions below.
///
/// Keys: Enter and Ctrl+Down go to the cell below, Ctrl+Up to the one above, and the table scrolls
/// where the window ends; the page keys scroll by a window. Ctrl+Z takes back the last change by
/// typing, pasting or a command, and Ctrl+Y or Ctrl+Shift+Z makes it again; while a text is being
/// typed, they work on the text. Ctrl+Shift+C copies the whole table. A text of several cells that
/// is pasted, as spreadsheets put it on the clipboard, fills the table from the cell with the focus
/// on, all of it or nothing.
///
/// Before anything moves or changes under a cell, the text that is typed there is committed, or
/// given up where it is no number.
///
/// Handlers of signals may do anything but destroy the control: deleteLater serves, unless the
/// handler runs an event loop of its own. A redisplay costs O(cells), whatever the size of the
/// table.
class QORVEX_EXPORT CellPanel : public TQorCustomPanel, public CellProperties {
  Q_OBJECT

 public:
  ~CellPanel() override;

  /// @{
  /// The shared settings that this control is linked to; none at first. A form names them by their
  /// object name. The nearest of that name in the control's window is looked up at once, in the
  /// next turn of the event loop, and whenever the control is shown.
  [[nodiscard]] TQorUICtrl* UICtrl() const noexcept { return ui_ctrl_; }
  [[nodiscard]] QString UICtrlName() const;
  void setUICtrl(TQorUICtrl* settings);
  void setUICtrl(const QString& name);
  void resetUICtrl() { setUICtrl(nullptr); }
  /// @}

  /// @{
  /// What comes from the shared settings, while there are some; everything at first.
  [[nodiscard]] TQorUICtrl::TQorUIUsage UIUsage() const noexcept { return ui_usage_; }
  void setUIUsage(TQorUICtrl::TQorUIUsage usage);
  void resetUIUsage() { setUIUsage(kUseAll); }
  /// @}

  /// @{
  /// The size of a cell in pixels, 21 and 81 at first; negative sizes count as 0. A cell is never
  /// lower than a line of its font.
  [[nodiscard]] int CellHeight() const noexcept { return cell_height_; }
  void setCellHeight(int height);
  void resetCellHeight() { setCellHeight(kDefaultCellHeight); }
  [[nodiscard]] int CellWidth() const noexcept { return cell_width_; }
  void setCellWidth(int width);
  void resetCellWidth() { setCellWidth(kDefaultCellWidth); }
  /// @}

  /// @{
  /// The row that the first cells show, 0 at first. Values beyond the last page are clamped. A form
  /// may set it before the number of rows: it is clamped when the form is complete.
  [[nodiscard]] quint32 DisplayTopRow() const noexcept;
  void setDisplayTopRow(quint32 row);
  void resetDisplayTopRow() { setDisplayTopRow(0); }
  /// @}

  /// @{
  /// Setting it makes every visible cell show null until the next redisplay; the elements stay. It
  /// reads as it was set last.
  [[nodiscard]] bool Null() const noexcept { return null_; }
  void setNull(bool null);
  void resetNull() { setNull(false); }
  /// @}

  /// @{
  /// Whether the tab key stops at the cells; true at first.
  [[nodiscard]] bool TabStop() const noexcept { return tab_stop_; }
  void setTabStop(bool stop);
  void resetTabStop() { setTabStop(true); }
  /// @}

  /// @{
  /// Whether the elements are asked for and handed over one by one instead of being kept here;
  /// false at first. Leaving the mode shows the elements that were kept before it.
  [[nodiscard]] bool VirtualMode() const noexcept { return virtual_mode_; }
  void setVirtualMode(bool on);
  void resetVirtualMode() { setVirtualMode(false); }
  /// @}

  /// @{
  /// The current row. Asking for another one scrolls until it is under the focused cell, or to the
  /// first cell when there are not as many rows above it; near the end, where the last page stops,
  /// the current row is then the one under the focused cell instead.
  [[nodiscard]] quint32 CurrentRow() const noexcept;
  void setCurrentRow(quint32 row);
  /// @}

  /// Scrolls up by this many rows, or not at all when there are fewer above.
  void ScrollUp(quint32 rows);
  /// Scrolls down by this many rows, at most to the last page.
  void ScrollDown(quint32 rows);
  /// To the first row.
  void ScrollTop();
  /// To the last page.
  void ScrollBottom();

  /// Fills the table from the focused cell on with the cells of a text: rows end with line ends,
  /// cells with tabs. A text that does not fit, a cell that is no number, or a control that is
  /// read-only refuses the whole text: nothing changes, OnBlockRefused tells why, and false comes
  /// back. Each element that changes raises the event of a change.
  bool PasteBlock(const QString& text);

  /// Copies the whole table to the clipboard with all digits, in the numbers of the locale, as
  /// PasteBlock and spreadsheets take it; infinities are copied as "inf", which PasteBlock refuses
  /// like any text that is no number. More than ten million elements are refused.
  void CopyAll();

  /// Shows the elements in the cells, unless an update is under way. In virtual mode this is how to
  /// say that they are others now.
  void Redisplay() override;

  /// @{
  /// Takes back, and makes again, the last change by typing, pasting or a command. What was typed
  /// or pasted raises the events of a change again, and concerns its own elements, whatever has
  /// become of others. A command can be taken back until anything else changes, and nothing after a
  /// change of the number of elements.
  [[nodiscard]] bool CanUndo() const noexcept { return exchange_ && !undone_; }
  [[nodiscard]] bool CanRedo() const noexcept { return exchange_ && undone_; }
  void Undo();
  void Redo();
  /// @}

  /// @{
  /// The room that the cells, what is in front of them and the bar take.
  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;
  /// @}

 Q_SIGNALS:
  /// DisplayTopRow is about to become the given row.
  void ontopChange(quint32 top);
  /// The current row has changed.
  void OnCurrRowChange(quint32 before, quint32 now);
  /// A colour of the set has changed.
  void OnColorSetChange();
  /// Undo or Redo has put elements back.
  void OnUndo();
  /// A block could not be pasted or copied, or a value that was typed could not be kept; the
  /// message says why, and which row is to blame.
  void OnBlockRefused(const QString& message);
  /// A typed text is not a number and has been discarded; the message names the element and
  /// the text.
  void OnTextRefused(const QString& message);

  /// @{
  /// What happens in any of the cells. A handler of OnKeyDown or OnKeyPress that accepts the event
  /// takes the key away; OnKeyPress comes after OnKeyDown for keys that stand for a character,
  /// those that control among them.
  void OnClick();
  void OnDblClick();
  void OnKeyDown(QKeyEvent* event);
  void OnKeyPress(QKeyEvent* event);
  void OnKeyUp(QKeyEvent* event);
  void OnMouseDown(QMouseEvent* event);
  void OnMouseMove(QMouseEvent* event);
  void OnMouseUp(QMouseEvent* event);
  /// @}

 protected:
  /// Makes one cell.
  using CellFactory = std::function<TQorCustomEdit*(QWidget* parent)>;
  /// What happens to an element in its cell.
  enum class CellEvent { kEnter, kExit, kNull, kChange };

  /// In which directions the table is longer than the grid.
  enum class GridAxes { kRows, kRowsAndCols };

  /// A grid without cells.
  CellPanel(QWidget* parent, GridAxes axes, detail::CurrentRule rule, CellFactory make_cell);

  /// @{
  /// The table. Store also tells the owner in virtual mode.
  [[nodiscard]] virtual Extended Value(quint32 row, quint32 col) const = 0;
  virtual void Store(quint32 row, quint32 col, Extended value) = 0;
  /// @}
  /// @{
  /// Raises the signals of an element.
  virtual void Notify(CellEvent what, quint32 row, quint32 col) = 0;
  virtual void NotifyText(quint32 row, quint32 col, const QString& text) = 0;
  /// @}
  /// @{
  /// What a table with columns tells of them: the first column in sight is about to change, and the
  /// current column has changed.
  virtual void LeftChange(quint32 left);
  virtual void CurrColChange(quint32 before, quint32 now);
  /// @}
  /// A colour for the text of an element in place of the settings'; invalid for none.
  [[nodiscard]] virtual QColor SpecialColor(quint32 row, quint32 col, Extended value) const;
  /// What a screen reader calls the cell of an element.
  [[nodiscard]] virtual QString CellName(quint32 row, quint32 col) const = 0;

  /// @{
  /// What a derived control adds: after the top has changed; after cells were made or dropped;
  /// after a redisplay; after the settings of cells have changed; room in front of the cells; what
  /// takes the focus that a key or a change of size leads to a cell.
  virtual void AfterTopChange(quint32 top);
  virtual void GridBuilt();
  virtual void Redisplayed();
  virtual void CellSettingsApplied();
  [[nodiscard]] virtual int LeadingWidth() const;
  [[nodiscard]] virtual TextCell* NavigationTarget(std::size_t row_edit,
                                                   std::size_t col_edit) const;
  /// @}
  /// The mode is another one: the store fits itself to the number of elements.
  virtual void VirtualModeChanged() = 0;

  /// @{
  /// The window on the rows and on the columns.
  [[nodiscard]] const detail::EditWindow& Rows() const noexcept { return *rows_.window; }
  [[nodiscard]] const detail::EditWindow& Cols() const noexcept { return *cols_.window; }
  /// @}
  /// @{
  /// Changes the number of cells or of elements. A focus that would be lost goes to the last used
  /// cell.
  void SetRowEdits(int edits);
  void SetColEdits(int edits);
  void SetRowCount(quint32 count);
  void SetColCount(quint32 count);
  /// @}
  /// @{
  /// Scrolls to a first column, and asks for a current one.
  void SetLeft(quint32 left);
  void SetCurrentCol(quint32 col);
  /// @}
  /// A cell of the grid.
  [[nodiscard]] TQorCustomEdit* Cell(std::size_t row_edit, std::size_t col_edit) const {
    return cells_[row_edit][col_edit];
  }
  /// Where a cell is, in this widget.
  [[nodiscard]] QRect CellRect(std::size_t row_edit, std::size_t col_edit) const;
  /// Where the bars meet.
  [[nodiscard]] QRect CornerRect() const;
  /// A rectangle given as in a left-to-right layout, where the layout has it.
  [[nodiscard]] QRect Placed(const QRect& rectangle) const;
  /// Gives the cell the focus, if it can take it.
  void FocusCell(std::size_t row_edit, std::size_t col_edit);
  /// The same for what navigation leads to there.
  void Navigate(std::size_t row_edit, std::size_t col_edit);
  /// @{
  /// A cell, or another text that belongs to it, has been entered or left.
  void EnterText(TextCell* text, quint32 row_edit, quint32 col_edit);
  void LeaveText(const TextCell* text);
  /// @}
  /// Commits what is typed, or gives it up.
  void CommitPending();
  /// Lets the keys, the wheel and the mouse of a widget count as those of a cell.
  void Watch(QWidget* widget);
  /// Places the cells and the bars.
  virtual void Arrange();
  /// The settings that count: the control's own or the shared ones.
  [[nodiscard]] CellSettings EffectiveSettings() const;

  /// Copies a part of the table to the clipboard, as CopyAll does.
  void CopyBlock(quint32 row, quint32 rows, quint32 col, quint32 cols);
  /// Remembers how to take back a command: exchange is called alternately to undo and to redo it.
  /// Copies of it must share what they exchange.
  void Remember(std::function<void()> exchange);
  /// Adds to what Remember was told last.
  void AlsoExchange(std::function<void()> exchange);
  /// The number of elements is another one: nothing is left to take back.
  void Forget();
  /// Something else than elements through their cells has changed: no command is left to take back.
  void ForgetCommand();
  /// Runs a command on the whole table and redisplays, also when it raises. In virtual mode, where
  /// the table is not here, only the latter.
  void Command(const std::function<void()>& command);

  /// @{
  /// Handlers of a cell.
  void EditEnter(TQorCustomEdit* cell);
  void EditExit(TQorCustomEdit* cell);
  void DoChange(TQorCustomEdit* cell);
  /// True when the key is used up.
  bool EditKeyDown(QKeyEvent* event);
  bool EditKeyPress(QKeyEvent* event);
  void EditMouseWheel(QWheelEvent* event);
  /// @}

  /// @{
  /// The form is complete, a setting or a colour has changed.
  void Loaded() override;
  void SettingsChanged() override;
  void DoColorSetChange() override;
  /// @}

  /// @{
  /// Qt's events.
  bool eventFilter(QObject* watched, QEvent* event) override;
  void changeEvent(QEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  /// @}

 private:
  struct Axis {
    std::unique_ptr<detail::EditWindow> window;
    QScrollBar* bar = nullptr;
    // A top that a form has set before the table was as long.
    quint32 wanted_top = 0;
  };
  // One element of a change that can be taken back.
  struct ElementChange {
    quint32 row;
    quint32 col;
    Extended value;
  };
  using ElementChanges = std::vector<ElementChange>;

  static constexpr int kDefaultCellHeight = 21;
  static constexpr int kDefaultCellWidth = 81;
  static constexpr TQorUICtrl::TQorUIUsage kUseAll{0xF};

  void MakeBar(Axis& axis, Qt::Orientation orientation);
  void PlaceBar(const Axis& axis);
  // What the user does with a bar, and what others do.
  void SBScroll(const Axis& axis, int action);
  void FollowBar(const Axis& axis);
  void SetEdits(Axis& axis, int edits);
  void SetCount(Axis& axis, quint32 count);
  // Whether the focus is on a cell that shows an element from the given one of the axis on.
  [[nodiscard]] bool FocusIsBeyond(const Axis& axis, quint32 edit) const;
  void Park(const Axis& axis);
  void FitGrid();
  TQorCustomEdit* MakeCell(std::size_t row_edit, std::size_t col_edit);
  void DropCell(TQorCustomEdit* cell);
  void EnableUsedCells();
  [[nodiscard]] int RowHeight() const;
  [[nodiscard]] int BarExtent() const;
  void ApplySettings();
  void ApplyTo(TQorCustomEdit& cell, const CellSettings& settings) const;
  void SetTop(Axis& axis, quint32 top);
  void LinkTo(TQorUICtrl* settings);
  void FindUICtrl();

  [[nodiscard]] quint32 RowOf(const TQorCustomEdit* cell) const;
  [[nodiscard]] quint32 ColOf(const TQorCustomEdit* cell) const;
  [[nodiscard]] bool FocusInside() const;
  [[nodiscard]] bool IsOwnKey(const QKeyEvent& event);
  bool UseKey(const QKeyEvent& event);
  void ForwardMouse(const QWidget& widget, QMouseEvent* event);
  void Step(Axis& along, Axis& across, bool forward);

  [[nodiscard]] QString BlockText(quint32 row, quint32 rows, quint32 col, quint32 cols) const;
  [[nodiscard]] static QString OutOfMemory();
  void RefuseBlock(const QString& message);
  void RefuseText(quint32 row, quint32 col, const QString& text);
  // Puts the other values in the elements, and those that were there in the changes.
  void ExchangeElements(ElementChanges& changes);
  void RememberElements(const std::shared_ptr<ElementChanges>& changes);
  void NotifyChanges(const ElementChanges& changes);
  void Exchange(bool undone);
  void AddToMenu(QMenu* menu);

  CellFactory make_cell_;
  detail::CurrentRule rule_;
  Axis rows_;
  Axis cols_;
  std::vector<std::vector<TQorCustomEdit*>> cells_;
  // The cell, or the text beside one, that has been entered and not left.
  TextCell* entered_ = nullptr;

  QPointer<TQorUICtrl> ui_ctrl_;
  QString ui_ctrl_name_;
  TQorUICtrl::TQorUIUsage ui_usage_ = kUseAll;
  int cell_height_ = kDefaultCellHeight;
  int cell_width_ = kDefaultCellWidth;
  bool null_ = false;
  bool tab_stop_ = true;
  bool virtual_mode_ = false;
  // What a finely resolved wheel has turned since the last whole notch, across and down.
  QPoint wheel_rest_;

  std::function<void()> exchange_;
  bool exchanges_command_ = false;
  bool undone_ = false;
  // The bar is being moved by the panel.
  bool placing_bar_ = false;
};

}  // QORVEX_WIDGET_UNIT(QorvexControls)
