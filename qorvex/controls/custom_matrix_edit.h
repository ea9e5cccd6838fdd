#pragma once

/// @file
/// TQorCustomMatrixEdit, the base of the editors of matrices.

#include <QColor>
#include <functional>

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"
#include "qorvex/base_controls/unit.h"
#include "qorvex/controls/panel/cell_panel.h"

/// The properties of both editors of matrices, in their order.
#define QORVEX_PUBLISHED_MATRIX_EDIT                                                            \
  Q_PROPERTY(QString UICtrl READ UICtrlName WRITE setUICtrl RESET resetUICtrl)                  \
  Q_PROPERTY(                                                                                   \
      qorvex::TQorUICtrl::TQorUIUsage UIUsage READ UIUsage WRITE setUIUsage RESET resetUIUsage) \
  QORVEX_PUBLISHED_COLORS                                                                       \
  QORVEX_PUBLISHED(bool, TrimTrailingZeroes)                                                    \
  QORVEX_PUBLISHED(bool, FullAccuracy)                                                          \
  QORVEX_PUBLISHED(bool, AutoSelectClick)                                                       \
  QORVEX_PUBLISHED(bool, BlankWhenZero)                                                         \
  QORVEX_PUBLISHED(bool, BlankWhenNull)                                                         \
  QORVEX_PUBLISHED(bool, Null)                                                                  \
  QORVEX_PUBLISHED(bool, ReadOnly)                                                              \
  QORVEX_PUBLISHED(bool, VirtualMode)                                                           \
  QORVEX_PUBLISHED(bool, AutoSelect)                                                            \
  QORVEX_PUBLISHED(bool, AllowKbdNull)                                                          \
  QORVEX_PUBLISHED(bool, TabStop)                                                               \
  QORVEX_PUBLISHED(Qt::Alignment, Alignment)                                                    \
  QORVEX_PUBLISHED(int, CellHeight)                                                             \
  QORVEX_PUBLISHED(int, CellWidth)                                                              \
  QORVEX_PUBLISHED(int, DecimalPlaces)                                                          \
  QORVEX_PUBLISHED(uint, DisplayLeftCol)                                                        \
  QORVEX_PUBLISHED(uint, DisplayTopRow)                                                         \
  QORVEX_PUBLISHED(int, NoOfColEdits)                                                           \
  QORVEX_PUBLISHED(int, NoOfRowEdits)                                                           \
  QORVEX_PUBLISHED(uint, NoOfCols)                                                              \
  QORVEX_PUBLISHED(uint, NoOfRows)                                                              \
  QORVEX_PUBLISHED(QString, NullStr)                                                            \
  QORVEX_PUBLISHED(bool, RowHeadings)                                                           \
  QORVEX_PUBLISHED(bool, ColHeadings)                                                           \
  QORVEX_PUBLISHED_PANEL

QORVEX_WIDGET_UNIT(QorvexMatrixEdit) {

/// @{
/// Handlers of events: a changed element, a text that is being typed, a request for an element, an
/// element to store, and a request for the colour of an element's text, which holds the usual
/// colour. Requests are members of the control, the others are signals with these parameters.
using TQorMatrixChangeEvent = std::function<void(quint32 row, quint32 col)>;
using TQorMatrixChangeTextEvent =
    std::function<void(quint32 row, quint32 col, const QString& text)>;
using TQorGetMatrixElementEvent = std::function<Extended(quint32 row, quint32 col)>;
using TQorSetMatrixElementEvent = std::function<void(quint32 row, quint32 col, Extended value)>;
using TQorSpecialColorEvent =
    std::function<void(quint32 row, quint32 col, Extended value, QColor& color)>;
/// @}
/// A request for the text of the heading of a row or a column.
using TQorGetHeadingEvent = std::function<QString(quint32 row_or_col)>;

/// A grid of cells that shows and edits a matrix of any size. See CellPanel for keys, pasting and
/// undo. Left and Right move along a row as Up and Down move along a column; at
/// the end of a row or column they continue in the next one.
///
/// The matrix is stored here. In virtual mode the program stores it: OnGetElement supplies each
/// element that is shown (its row-major position if it is empty), OnSetElement passes on each one
/// that the user changes, and commands on the whole matrix only redisplay.
///
/// A NaN in the matrix is null. OnChange is raised when the user types, pastes or undoes, not when
/// the program sets elements. The current row and column are those of the cell that was entered
/// last; scrolling does not change them.
class QORVEX_EXPORT TQorCustomMatrixEdit : public CellPanel, protected CellTable {
  Q_OBJECT

 public:
  ~TQorCustomMatrixEdit() override;

  /// @{
  /// The column that the first cells show, 0 by default; see DisplayTopRow.
  [[nodiscard]] quint32 DisplayLeftCol() const noexcept;
  void setDisplayLeftCol(quint32 col);
  void resetDisplayLeftCol() { setDisplayLeftCol(0); }
  /// @}

  /// @{
  /// The number of cells in a row and in a column, 3 and 4 by default, clamped to 0 to 255.
  [[nodiscard]] int NoOfColEdits() const noexcept;
  void setNoOfColEdits(int edits);
  void resetNoOfColEdits() { setNoOfColEdits(kDefaultColEdits); }
  [[nodiscard]] int NoOfRowEdits() const noexcept;
  void setNoOfRowEdits(int edits);
  void resetNoOfRowEdits() { setNoOfRowEdits(kDefaultRowEdits); }
  /// @}

  /// @{
  /// Whether there are headings in front of the rows and above the columns; off by default. They
  /// show numbers from 1 on, the headers of a model, or what OnGetRowHeading and OnGetColHeading
  /// supply. A click on a heading selects its row or column. The edge of a column's heading can be
  /// dragged, which changes the width of the column.
  [[nodiscard]] bool RowHeadings() const noexcept;
  void setRowHeadings(bool on);
  void resetRowHeadings() { setRowHeadings(false); }
  [[nodiscard]] bool ColHeadings() const noexcept;
  void setColHeadings(bool on);
  void resetColHeadings() { setColHeadings(false); }
  /// @}
  /// @{
  /// The text of the heading of a row or a column, whether it shows or not.
  [[nodiscard]] QString RowHeading(quint32 row) const override;
  [[nodiscard]] QString ColHeading(quint32 col) const override;
  /// @}

  /// @{
  /// The width of a column's cells in pixels, CellWidth by default, clamped to 0 to 32767. There
  /// need not be such a column yet. Without AutoEdits the control is as wide as the widest columns
  /// that can be in sight at once. O(columns with a width of their own).
  [[nodiscard]] int ColWidth(quint32 col) const;
  void setColWidth(quint32 col, int width);
  void resetColWidth(quint32 col);
  /// @}
  /// @{
  /// How the numbers of a column are written: by default as the control's settings say, which a
  /// format of its own replaces as a whole. There need not be such a column yet.
  [[nodiscard]] NumberSettings ColFormat(quint32 col) const;
  void setColFormat(quint32 col, const NumberSettings& format);
  void resetColFormat(quint32 col);
  /// @}

  /// @{
  /// The size of the matrix, 0 by 0 by default. New elements are 0; their memory is allocated when
  /// one of them is set. Raises OnNoColsChange or OnNoRowsChange. O(rows).
  [[nodiscard]] quint32 NoOfCols() const noexcept;
  void setNoOfCols(quint32 cols);
  void resetNoOfCols() { setNoOfCols(0); }
  [[nodiscard]] quint32 NoOfRows() const noexcept;
  void setNoOfRows(quint32 rows);
  void resetNoOfRows() { setNoOfRows(0); }
  /// @}

  /// @{
  /// The whole matrix, as a copy that shares no memory with the control. Setting copies too, and
  /// sets the numbers of rows and columns; in virtual mode each element goes through the events. A
  /// text that is being typed is treated as by TQorVectorEdit::setVector.
  /// EMathError with rsMatrixRect for rows of different lengths. O(elements).
  [[nodiscard]] TQorFloatMatrix Matrix() const;
  void setMatrix(const TQorFloatMatrix& matrix);
  /// @}

  /// @{
  /// One element. EMathError: rsMatrixIsEmpty, then rsInvalidRow, then rsInvalidCol if there is no
  /// such element. Setting an element does not affect a text that is being typed.
  [[nodiscard]] Extended Element(quint32 row, quint32 col) const;
  void setElement(quint32 row, quint32 col, Extended value);
  /// @}

  /// @{
  /// Inserts and deletes columns as InsertRows and DeleteRows do rows; rsInvalidCol if there is no
  /// such column.
  void InsertCols(quint32 col, quint32 count);
  void DeleteCols(quint32 col, quint32 count);
  /// @}

  /// @{
  /// The current column; see CurrentRow.
  [[nodiscard]] quint32 CurrentCol() const noexcept;
  void setCurrentCol(quint32 col);
  /// @}

  /// @{
  /// The row and the column, in the grid, of the cell that has the focus, or had it last. Setting
  /// them gives the focus to a cell that shows an element; others are ignored.
  [[nodiscard]] quint32 RowEditFocus() const noexcept;
  void setRowEditFocus(quint32 edit);
  [[nodiscard]] quint32 ColEditFocus() const noexcept;
  void setColEditFocus(quint32 edit);
  /// @}

  /// @{
  /// Scrolls the columns as ScrollUp, ScrollDown, ScrollTop and ScrollBottom scroll the rows.
  void ScrollLeft(quint32 cols);
  void ScrollRight(quint32 cols);
  void ScrollLeftMost();
  void ScrollRightMost();
  /// @}

  /// @{
  /// Apply a routine to the whole matrix: SwapMatrixRows, SwapMatrixCols, LinearTransformMatrix,
  /// SquareMatrix, SqrtMatrix, InvMatrix (reciprocals of the elements), LnMatrix, Log10Matrix,
  /// TransposeMatrix, RowEchelonForm, ScaleMatrixRow, ScaleMatrixCol, AddMatrixRows and
  /// AddMatrixCols. Their errors reach the caller. Each command keeps a copy of the matrix so that
  /// it can be undone. In virtual mode they only redisplay.
  void SwapRows(quint32 first, quint32 second);
  void SwapColumns(quint32 first, quint32 second);
  void LinearTransform(Extended slope, Extended intercept);
  void Sqr();
  void Sqrt();
  void Invert();
  void Ln();
  void Log10();
  void Transpose();
  void RowReduce();
  void ScaleRow(quint32 row, Extended factor);
  void ScaleCol(quint32 col, Extended factor);
  void AddRows(quint32 target, quint32 source, Extended factor);
  void AddCols(quint32 target, quint32 source, Extended factor);
  /// @}
  /// The inverse matrix, by MatrixInverse. EMathError with rsNoInvert for a singular matrix and for
  /// one with a null, which are left unchanged. In virtual mode it only redisplays.
  void Inverse();
  /// Replaces the matrix by another one of any shape, like setMatrix, but as a step of undo unless it is
  /// empty: earlier steps stay. EMathError with rsMatrixIsEmpty for a matrix without elements, then rsMatrixRect. In
  /// virtual mode it only redisplays.
  void Replace(const TQorFloatMatrix& matrix);

  /// Raises OnCornerBtnClick, like a click on the button in the corner.
  void CornerClick();

  /// Supplies the elements in virtual mode; may be called at any time.
  TQorGetMatrixElementEvent OnGetElement;
  /// Supplies the colours of texts at every redisplay; empty by default.
  TQorSpecialColorEvent OnSpecialColor;
  /// @{
  /// Supply the texts of headings, which also name the elements in messages; if they are empty, the
  /// headers of the model, or numbers from 1. Call Redisplay if the texts change.
  TQorGetHeadingEvent OnGetRowHeading;
  TQorGetHeadingEvent OnGetColHeading;
  /// @}

 Q_SIGNALS:
  /// The user has changed the element.
  void OnChange(quint32 row, quint32 col);
  /// The user is typing this text into the cell of the element.
  void OnChangeText(quint32 row, quint32 col, const QString& text);
  /// The user has made the element null; OnChange follows.
  void OnNull(quint32 row, quint32 col);
  /// In virtual mode: store this value.
  void OnSetElement(quint32 row, quint32 col, long double value);
  /// @{
  /// In virtual mode: insert or delete columns, and set NoOfCols; see OnInsertRows.
  void OnInsertCols(quint32 col, quint32 count);
  void OnDeleteCols(quint32 col, quint32 count);
  /// @}
  /// DisplayLeftCol is about to become the given column.
  void OnLeftChange(quint32 left);
  /// @{
  /// The number of rows or columns has changed.
  void OnNoRowsChange(quint32 rows);
  void OnNoColsChange(quint32 cols);
  /// @}
  /// The current column has changed.
  void OnCurrColChange(quint32 before, quint32 now);
  /// The focus has left the cell of the element, whose text is committed.
  void OnCellExit(quint32 row, quint32 col);
  /// The focus has come to the cell of the element.
  void OnCellEnter(quint32 row, quint32 col);
  /// The button in the corner where the scroll bars meet has been clicked.
  void OnCornerBtnClick();

 protected:
  /// A grid without cells.
  explicit TQorCustomMatrixEdit(QWidget* parent);
  /// Makes the cells of an empty matrix.
  void BuildGrid(CellFactory make_cell);

  /// @{
  /// The matrix as the table of the panel.
  [[nodiscard]] quint32 RowCount() const override { return NoOfRows(); }
  [[nodiscard]] quint32 ColCount() const override { return NoOfCols(); }
  [[nodiscard]] Extended Value(quint32 row, quint32 col) const override;
  bool Store(quint32 row, quint32 col, Extended value) override;
  [[nodiscard]] bool IsReadOnly(quint32 row, quint32 col) const override;
  [[nodiscard]] QString CellName(quint32 row, quint32 col) const override;
  [[nodiscard]] QColor SpecialColor(quint32 row, quint32 col, Extended value) const override;
  void Notify(CellEvent event, quint32 row, quint32 col) override;
  void NotifyText(quint32 row, quint32 col, const QString& text) override;
  [[nodiscard]] bool IsVirtual() const override { return VirtualMode(); }
  [[nodiscard]] bool CanInsert(CellAxis axis) const override;
  std::optional<quint32> InsertLines(CellAxis axis, quint32 first, quint32 count,
                                     Extended value) override;
  void RemoveLines(CellAxis axis, quint32 first, quint32 count) override;
  [[nodiscard]] KeptLineData KeepLineData(CellAxis axis, quint32 first, quint32 count) override;
  void VirtualModeChanged() override;
  void SetSize(quint32 rows, quint32 cols) override;
  /// @}

  /// Raises EMathError if there is no such element in a matrix of the given number of columns.
  void CheckElement(quint32 row, quint32 col, quint64 cols) const;

 private:
  static constexpr int kDefaultColEdits = 3;
  static constexpr int kDefaultRowEdits = 4;

  // Change the numbers of rows and columns, with and without the events.
  void ChangeRows(quint32 rows);
  void ChangeCols(quint32 cols);
  void ResizeRows(quint32 rows);
  void ResizeCols(quint32 cols);
  void TrimStore();
  // Makes room in the store for lines of a value.
  void InsertIntoStore(CellAxis axis, quint32 first, quint32 count, Extended value);
  // The store, extended to all rows and columns.
  TQorFloatMatrix& FullStore();
  // Exchanges the store for a matrix that shares no memory with another one, or stores its elements
  // in virtual mode.
  void Take(TQorFloatMatrix& matrix);
  void ExchangeStore(TQorFloatMatrix& other);
  // Runs a command on the matrix that can be undone.
  void MatrixCommand(const QString& text,
                     const std::function<void(TQorFloatMatrix& matrix)>& command);

  // Elements beyond its ends are 0.
  TQorFloatMatrix store_;
};

}  // QORVEX_WIDGET_UNIT(QorvexMatrixEdit)
