#pragma once

/// @file
/// CellPanel, the grid of cells that the editors of vectors and matrices share.

#include <QAbstractItemModel>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QString>
#include <functional>
#include <memory>
#include <optional>

#include "qorvex/base/export.h"
#include "qorvex/base_controls/custom_edit.h"
#include "qorvex/base_controls/custom_panel.h"
#include "qorvex/base_controls/uictrl.h"
#include "qorvex/base_controls/unit.h"
#include "qorvex/controls/panel/cell_range.h"
#include "qorvex/controls/panel/cell_table.h"
#include "qorvex/controls/panel/published.h"

class QMenu;
class QUndoStack;

QORVEX_WIDGET_UNIT(QorvexControls) {
/// @cond internal
namespace detail {
class EditWindow;
class PanelAxis;
struct BlockChanges;
struct CellPlace;
struct EditWindowEvents;
struct PanelParts;
struct ModelMove;
struct ReplacedCols;
enum class CurrentRule;
}  // namespace detail
/// @endcond

/// A grid of cells with a scroll bar beside it, and one below it if the table has columns. The
/// cells show the part of a CellTable that begins at DisplayTopRow.
///
/// Keys: the arrows and Enter go to the next cell, and scroll at the edge of the grid; the page
/// keys scroll by a page. With Shift, the arrows select. Left and Right, Home and End, Delete, and
/// Ctrl with A, C, X and V work on the text while it is being edited, that is, from the first typed
/// character, F2 or a double click on, and on the selected cells otherwise. Ctrl+Z undoes the last
/// change, Ctrl+Y or Ctrl+Shift+Z redoes it. Ctrl+Shift+C copies the whole table.
///
/// One rectangle of elements is selected: by Shift and the arrows, by the mouse, or by a program.
/// Unless there is more, it is the element under the focus.
///
/// The tab key goes from cell to cell and scrolls on at the last one in sight; Ctrl+Tab and
/// Ctrl+Shift+Tab leave at once. QWidget::setTabOrder and buddies lead to the first cell in sight;
/// setFocus leads to the cell that had the focus last.
///
/// Before another element comes under a cell, the text that is being typed there is committed, or
/// discarded if it is not a number. Until then it stays, whatever else changes and while another
/// window is active.
///
/// To screen readers it is a table of all elements, in sight or not. Every cell has an accessible
/// name while assistive technology is active.
///
/// Handlers of signals may do anything except delete the control; they may call deleteLater unless
/// they run a nested event loop. A redisplay costs O(cells), whatever the size of the table.
class QORVEX_EXPORT CellPanel : public TQorCustomPanel, public CellProperties {
  Q_OBJECT

 public:
  ~CellPanel() override;

  /// @{
  /// The shared settings that this control is linked to; none by default. A form names them: the
  /// nearest object of that name in the control's window is looked up at once, in the next turn of
  /// the event loop, and whenever the control is shown.
  [[nodiscard]] TQorUICtrl* UICtrl() const noexcept;
  [[nodiscard]] QString UICtrlName() const;
  void setUICtrl(TQorUICtrl* settings);
  void setUICtrl(const QString& name);
  void resetUICtrl() { setUICtrl(nullptr); }
  /// @}

  /// @{
  /// Which settings come from the shared ones; all of them by default.
  [[nodiscard]] TQorUICtrl::TQorUIUsage UIUsage() const noexcept;
  void setUIUsage(TQorUICtrl::TQorUIUsage usage);
  void resetUIUsage();
  /// @}
  /// The settings of the cells: the control's own or the shared ones.
  [[nodiscard]] CellSettings EffectiveSettings() const;

  /// @{
  /// The size of a cell in pixels, 21 and 81 by default; at least 0 and a line of its font, at
  /// most 32767.
  [[nodiscard]] int CellHeight() const noexcept;
  void setCellHeight(int height);
  void resetCellHeight();
  [[nodiscard]] int CellWidth() const noexcept;
  void setCellWidth(int width);
  void resetCellWidth();
  /// @}

  /// @{
  /// Whether there are as many cells as the control has room for, but no more than the table has
  /// elements, and at least one; false by default. A scroll bar then shows only while it is needed.
  /// The size policy becomes Expanding where it is Fixed, in the directions that can be scrolled.
  /// A number of cells that is set is what the size hint has room for; the next turn of the event
  /// loop fits the cells into the control again.
  [[nodiscard]] bool AutoEdits() const noexcept;
  void setAutoEdits(bool on);
  void resetAutoEdits() { setAutoEdits(false); }
  /// @}

  /// @{
  /// The row that the first cells show, 0 by default. Rows beyond the last page are clamped. A form
  /// may set it before the number of rows: it is clamped when the form is complete.
  [[nodiscard]] quint32 DisplayTopRow() const noexcept;
  void setDisplayTopRow(quint32 row);
  void resetDisplayTopRow() { setDisplayTopRow(0); }
  /// @}

  /// @{
  /// Makes every visible cell show null until the next redisplay. The elements keep their values.
  [[nodiscard]] bool Null() const noexcept { return null_; }
  void setNull(bool null);
  void resetNull() { setNull(false); }
  /// @}
  /// @{
  /// The tab key stops at the cells; true by default.
  [[nodiscard]] bool TabStop() const noexcept { return tab_stop_; }
  void setTabStop(bool stop);
  void resetTabStop() { setTabStop(true); }
  /// @}

  /// @{
  /// Whether the elements are requested and passed on one by one instead of being stored here;
  /// false by default. Leaving the mode shows the elements that were stored before it.
  [[nodiscard]] bool VirtualMode() const noexcept { return virtual_mode_ || Model() != nullptr; }
  void setVirtualMode(bool on);
  void resetVirtualMode() { setVirtualMode(false); }
  /// @}

  /// @{
  /// The model of Qt that supplies and stores the elements; none by default. The editor is in
  /// virtual mode meanwhile, and its size is the model's; setting the size asks the model to insert
  /// or remove at its end. Without a model, the editor has its own elements again. The model is not
  /// owned, and may be deleted at any time.
  ///
  /// Cells read and write the role EditRole: numbers, and texts, which are read as plain decimal
  /// numbers first and then in the locale of the editor. Anything else is shown as null. What is
  /// written has the type of the number that the item held, if that type can hold the value
  /// exactly; otherwise it is the shortest decimal text of the value. Null is a variant without a
  /// value. Items that cannot be edited are read-only.
  [[nodiscard]] QAbstractItemModel* Model() const noexcept;
  void setModel(QAbstractItemModel* model);
  /// @}
  /// @{
  /// Whether the items of a model may be texts; false by default. A text that an item holds is then
  /// shown as it is, and a typed or pasted text that is not a number is written as it is; so are
  /// plain numbers that would be written in another way, such as 007, to items that hold no number
  /// or a long double. Element() and the like take a text for null.
  [[nodiscard]] bool TextItems() const noexcept;
  void setTextItems(bool on);
  /// @}

  /// @{
  /// The current row. Setting it scrolls until that row is under the focused cell, or under the
  /// first cell if there are too few rows above it. On the last page the row under the focused cell
  /// becomes the current one.
  [[nodiscard]] quint32 CurrentRow() const noexcept;
  void setCurrentRow(quint32 row);
  /// @}

  /// @{
  /// Scrolls up by this many rows, or not at all if there are fewer above; down by this many, at
  /// most to the last page; to the first row; to the last page.
  void ScrollUp(quint32 rows);
  void ScrollDown(quint32 rows);
  void ScrollTop();
  void ScrollBottom();
  /// @}

  /// @{
  /// The selected elements: the one under the focus, unless more have been selected, and none in an
  /// empty table. Selecting leaves out what is beyond the table, and nothing at all selects the
  /// element under the focus. It neither scrolls nor moves the focus. O(cells).
  [[nodiscard]] TQorCellRange Selection() const;
  void Select(const TQorCellRange& range);
  void SelectAll();
  void SelectRows(quint32 first, quint32 count);
  void SelectCols(quint32 first, quint32 count);
  void ClearSelection();
  /// @}

  /// @{
  /// Copies a range, the selection or the whole table with all digits, in the numbers of the
  /// locale: tabs separate columns, and each row ends with a line end, except a single value.
  /// Infinities are copied as "inf", which PasteBlock refuses. More than ten million elements are
  /// refused by OnBlockRefused. Without elements the clipboard keeps its contents. False if it
  /// does. What is being typed is committed first if its element is copied.
  bool CopyCells(const TQorCellRange& range);
  bool Copy();
  void CopyAll();
  /// @}

  /// @{
  /// Changes the selected elements in one step: pastes a text or the text of the clipboard over
  /// them, makes them null, does so after copying them, or fills them with the values of their
  /// first row or column; a single row or column is filled with the one before it.
  ///
  /// In a text, line ends separate rows and tabs separate cells. It is pasted as often as it covers
  /// the selection exactly, or else once, from the first selected element on.
  ///
  /// Each element that changes raises OnChange. If the control is read-only, or AllowKbdNull
  /// forbids nulls, or a text does not fit or is not a number, or there are more than ten million
  /// elements, nothing changes, OnBlockRefused says why, and the result is false.
  bool PasteBlock(const QString& text);
  bool Paste();
  bool Cut();
  bool DeleteSelected();
  bool FillDown();
  bool FillRight();
  /// @}

  /// Shows the elements, unless an update is in progress. In virtual mode, call it if they change.
  void Redisplay() override;

  /// @{
  /// Undoes and redoes changes, the last one first: what has been typed or pasted, a command, rows
  /// that were inserted or deleted. Elements that were typed or pasted raise OnChange again.
  ///
  /// When the program sets an element, commands and what was done before them can no longer be
  /// undone, because they hold the whole table. When it sets the size, the whole table or
  /// VirtualMode, nothing can be undone. In virtual mode no insertion or deletion can be undone.
  [[nodiscard]] bool CanUndo() const;
  [[nodiscard]] bool CanRedo() const;
  void Undo();
  void Redo();
  /// @}
  /// @{
  /// How many bytes the steps of undo may hold, 64 MiB by default. Beyond it the oldest ones are
  /// dropped; the newest one is kept whatever its size. With 0 nothing can be undone.
  [[nodiscard]] qint64 UndoLimit() const noexcept;
  void setUndoLimit(qint64 bytes);
  void resetUndoLimit();
  /// @}
  /// @{
  /// The stack of the steps: one of the program, so that several editors and what else the program
  /// puts there are undone in one order, or the editor's own for a null pointer, the default. Undo
  /// and Redo go by the stack, whatever its next command is. Setting one forgets all steps. The
  /// program keeps it; when it is deleted, the editor returns to its own.
  ///
  /// Dropped steps stay on the stack as obsolete commands, which it passes over without effect.
  [[nodiscard]] QUndoStack* UndoStack() const;
  void setUndoStack(QUndoStack* stack);
  /// @}

  /// @{
  /// Whether the user may make the table longer; false by default. An empty row then follows the
  /// last one: a value that is typed there becomes a new row. A block that is pasted beyond the end
  /// appends rows, and columns to a matrix. The menu of a cell inserts and deletes rows and
  /// columns.
  ///
  /// New elements are null if AllowKbdNull is set, otherwise 0. The spare row does not count as a
  /// row, but it can be the current one: events of cells then name the row after the last. There is
  /// none while the editor is read-only, nor in virtual mode without a model unless OnInsertRows is
  /// handled. A matrix without columns has a spare column in the same way.
  [[nodiscard]] bool CanGrow() const noexcept { return can_grow_; }
  void setCanGrow(bool grow);
  void resetCanGrow() { setCanGrow(false); }
  /// @}

  /// @{
  /// Inserts rows before the given one, or after the last one; deletes rows. One step of undo. New
  /// elements are null if AllowKbdNull is set, otherwise 0. In virtual mode they only raise
  /// OnInsertRows and OnDeleteRows, and a model decides itself. EMathError with rsInvalidRow if
  /// there is no such row; std::length_error for more than 2^32 - 1 rows. O(elements).
  void InsertRows(quint32 row, quint32 count);
  void DeleteRows(quint32 row, quint32 count);
  /// @}
  /// @{
  /// What a user does with the menu while CanGrow is on: inserts rows before the selected ones, as
  /// many as are selected, or deletes them; columns if whole columns are selected.
  void InsertSelectedLines();
  void DeleteSelectedLines();
  /// @}

  /// @{
  /// The size of the cells, the texts around them and the bars. With AutoEdits, a control may be as
  /// small as three rows and columns.
  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;
  /// @}

 Q_SIGNALS:
  /// DisplayTopRow is about to become the given row.
  void ontopChange(quint32 top);
  /// The current row has changed.
  void OnCurrRowChange(quint32 before, quint32 now);
  /// Selection has changed.
  void OnSelectionChange();
  /// A colour of the set has changed.
  void OnColorSetChange();
  /// A change has been undone or redone.
  void OnUndo();
  /// @{
  /// CanUndo or CanRedo has changed.
  void OnCanUndoChange(bool can);
  void OnCanRedoChange(bool can);
  /// @}
  /// @{
  /// In virtual mode: insert rows before the given one, or delete rows, and set NoOfRows. A handler
  /// that does nothing refuses it.
  void OnInsertRows(quint32 row, quint32 count);
  void OnDeleteRows(quint32 row, quint32 count);
  /// @}
  /// A block could not be changed or copied, or a typed value not be stored; the message says why.
  void OnBlockRefused(const QString& message);
  /// A typed text is not a number: Enter has marked it, or leaving the cell has discarded it. The
  /// message names the element and says why.
  void OnTextRefused(const QString& message);
  /// The menu of an element is about to open, in its cell or its label: add to it. For a heading it
  /// is the first element of the row or column. The signal is raised as long as the control's
  /// contextMenuPolicy is the default; other policies replace the menu, as in any widget.
  void OnContextMenu(QMenu& menu, quint32 row, quint32 col);

  /// @{
  /// Events of the cells. A handler of OnKeyDown or OnKeyPress that accepts the event suppresses
  /// the key. OnKeyPress follows OnKeyDown for keys that produce a character or control character.
  void OnClick();
  void OnDblClick();
  void OnKeyDown(QKeyEvent* event);
  void OnKeyPress(QKeyEvent* event);
  void OnKeyUp(QKeyEvent* event);
  void OnMouseDown(QMouseEvent* event);
  void OnMouseMove(QMouseEvent* event);
  void OnMouseUp(QMouseEvent* event);
  /// @}
  /// @{
  /// The mouse in the cell of an element; each follows the signal above for the same event.
  void OnCellMouseDown(QMouseEvent* event, quint32 row, quint32 col);
  void OnCellMouseMove(QMouseEvent* event, quint32 row, quint32 col);
  void OnCellMouseUp(QMouseEvent* event, quint32 row, quint32 col);
  void OnCellClick(quint32 row, quint32 col);
  void OnCellDblClick(quint32 row, quint32 col);
  /// @}

 protected:
  /// In which directions the table may be longer than the grid.
  enum class GridAxes { kRows, kRowsAndCols };
  /// Makes one cell.
  using CellFactory = std::function<TQorCustomEdit*(QWidget* panel)>;

  /// A grid without cells. The table is not used until it has elements. The events are the editor's
  /// own: after_top of the rows, before_top and current_changed of the columns.
  CellPanel(QWidget* parent, CellTable& table, GridAxes axes, detail::CurrentRule rule,
            detail::EditWindowEvents row_events, detail::EditWindowEvents col_events);
  /// Makes the cells.
  void Build(CellFactory make_cell, int row_edits, int col_edits);

  /// @{
  /// The parts of the panel, and the windows on its rows and columns.
  [[nodiscard]] detail::PanelParts& Parts() const noexcept { return *parts_; }
  [[nodiscard]] const detail::EditWindow& Rows() const noexcept;
  [[nodiscard]] const detail::EditWindow& Cols() const noexcept;
  /// @}

  /// Changes the number of elements along an axis. A focus that would be lost goes to the last cell
  /// in use.
  void SetCount(detail::PanelAxis& axis, quint32 count);
  /// @{
  /// Inserts lines before the given one, or deletes lines: see InsertRows.
  void InsertLines(CellAxis axis, quint32 first, quint32 count);
  void DeleteLines(CellAxis axis, quint32 first, quint32 count);
  /// @}
  /// Decides whether there is a spare row or column. Call when CanInsert of the table may have
  /// changed.
  void FitSpareLines();
  /// @{
  /// The widths and formats of columns move with them; have changed.
  void ReplaceCols(const detail::ReplacedCols& cols);
  void ColsReplaced();
  /// @}
  /// Makes the missing cells and drops those that are too many.
  void FitGrid();
  /// Applies the settings to the cells.
  void ApplySettings();
  /// Lets the keys, the wheel and the mouse of a text in front of the cells count as those of a
  /// cell.
  void Watch(TextCell& text);

  /// Runs a command, but not in virtual mode, and redisplays, even if it raises.
  void Command(const std::function<void()>& command);

  /// @{
  /// Events of the base classes.
  void Loaded() override;
  void SettingsChanged() override;
  void DoColorSetChange() override;
  void changeEvent(QEvent* event) override;
  bool focusNextPrevChild(bool next) override;
  void hideEvent(QHideEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void connectNotify(const QMetaMethod& signal) override;
  void disconnectNotify(const QMetaMethod& signal) override;
  /// @}

 private:
  friend struct detail::PanelParts;
  [[nodiscard]] std::optional<detail::CellPlace> TypedPlace() const;
  void ModelChanged(const TQorCellRange& range);
  void ModelMoved(const detail::ModelMove& move);
  void ModelDeleted();
  void StoreLater(quint32 row, quint32 col, Extended value);
  void SwitchModel(QAbstractItemModel* model);
  void ConnectCell(TQorCustomEdit& cell, detail::CellPlace place);
  void DoChange(TQorCustomEdit& cell, quint32 row, quint32 col, Extended value);
  void AppendLines(TQorCustomEdit& cell, quint32 row, quint32 col, Extended value);
  void SetLines(detail::PanelAxis& axis, quint32 count, bool spare);
  // What is being typed into the spare row stays with it when the program appends rows.
  std::optional<QString> TakeFromSpareRow(const detail::PanelAxis& axis);
  void TypeIntoSpareRow(const QString& typed);
  [[nodiscard]] bool MayGrow(CellAxis axis) const;
  [[nodiscard]] bool HasSpareCol(quint32 cols) const;
  [[nodiscard]] Extended NewElement() const;
  [[nodiscard]] CellAxis AxisOfSelection() const;
  void ChangeSelectedLines(CellAxis axis, bool insert);
  void AddHistoryToMenu(QMenu& menu);
  [[nodiscard]] Qt::FocusPolicy CellFocusPolicy() const;
  using BlockPlan = std::function<detail::BlockChanges(const TQorCellRange& selection)>;
  bool ChangeBlock(const QString& step, const BlockPlan& plan);
  bool MakeNull(const QString& step);
  bool RequireChangeable();
  bool RequireNulls();
  void AddSelectionToMenu(QMenu& menu);
  void RefuseBlock(const QString& message);
  void RefuseText(TextCell& cell, quint32 row, quint32 col, const QString& reason);
  // The menu of an element, its label or its heading.
  void FillMenu(QMenu& menu, const detail::CellPlace& element);
  void OpenMenu(const detail::CellPlace& element, const QPoint& place);
  // For screen readers.
  void NameBars();
  void AnnounceSize();
  void AnnounceSelection();
  CellTable& table_;
  bool null_ = false;
  bool tab_stop_ = true;
  bool virtual_mode_ = false;
  bool can_grow_ = false;
  // While there is a model: the size of the table without it.
  std::optional<TQorCellRange> own_size_;
  std::unique_ptr<detail::PanelParts> parts_;
};

}  // QORVEX_WIDGET_UNIT(QorvexControls)
