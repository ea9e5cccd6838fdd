#pragma once

/// @file
/// TQorVectorEdit, an editor of a vector.

#include <functional>

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"
#include "qorvex/base_controls/float_edit.h"
#include "qorvex/base_controls/unit.h"
#include "qorvex/controls/panel/cell_panel.h"

QORVEX_WIDGET_UNIT(QorvexVectorEdit) {

/// @{
/// Handlers of events: a changed element, a text that is being typed, a request for an element, an
/// element to store, a new number of rows or a new top, and a new current row. Requests are members
/// of the control, the others are signals with these parameters.
using TQorVectorChangeEvent = std::function<void(quint32 row)>;
using TQorVectorChangeTextEvent = std::function<void(quint32 row, const QString& text)>;
using TQorGetVectorElementEvent = std::function<Extended(quint32 row)>;
using TQorSetVectorElementEvent = std::function<void(quint32 row, Extended value)>;
using TQorRowChangeEvent = std::function<void(quint32 row)>;
using TQorCurrentChangeEvent = std::function<void(quint32 before, quint32 now)>;
/// @}

/// A column of cells that shows and edits a vector of any length. See CellPanel for keys, pasting
/// and undo.
///
/// The vector is stored here. In virtual mode the program stores it: OnGetElement supplies each
/// element that is shown (the row's index if it is empty), OnSetElement passes on each one that the
/// user changes, and commands on the whole vector only redisplay.
///
/// A NaN in the vector is null. OnChange is raised when the user types, pastes or undoes, not when
/// the program sets elements.
class QORVEX_EXPORT TQorVectorEdit : public CellPanel, protected CellTable {
  Q_OBJECT
  /// @{
  /// Published: see the accessor of the same name here, in CellPanel or in CellProperties.
  Q_PROPERTY(QString UICtrl READ UICtrlName WRITE setUICtrl RESET resetUICtrl)
  Q_PROPERTY(
      qorvex::TQorUICtrl::TQorUIUsage UIUsage READ UIUsage WRITE setUIUsage RESET resetUIUsage)
  QORVEX_PUBLISHED_COLORS
  QORVEX_PUBLISHED(bool, TrimTrailingZeroes)
  QORVEX_PUBLISHED(bool, FullAccuracy)
  QORVEX_PUBLISHED(Qt::Alignment, Alignment)
  QORVEX_PUBLISHED(bool, AutoSelectClick)
  QORVEX_PUBLISHED(bool, AutoSelect)
  QORVEX_PUBLISHED(bool, AllowKbdNull)
  QORVEX_PUBLISHED(bool, BlankWhenZero)
  QORVEX_PUBLISHED(bool, BlankWhenNull)
  QORVEX_PUBLISHED(int, CellHeight)
  QORVEX_PUBLISHED(int, CellWidth)
  QORVEX_PUBLISHED(int, DecimalPlaces)
  QORVEX_PUBLISHED(uint, DisplayTopRow)
  QORVEX_PUBLISHED(int, NoOfEdits)
  QORVEX_PUBLISHED(bool, Null)
  QORVEX_PUBLISHED(QString, NullStr)
  QORVEX_PUBLISHED(uint, NoOfRows)
  QORVEX_PUBLISHED(bool, ReadOnly)
  QORVEX_PUBLISHED(bool, TabStop)
  QORVEX_PUBLISHED(bool, VirtualMode)
  QORVEX_PUBLISHED_PANEL
  /// @}

 public:
  /// Four cells and an empty vector.
  explicit TQorVectorEdit(QWidget* parent = nullptr);
  ~TQorVectorEdit() override;

  /// @{
  /// The number of cells, 4 by default, clamped to 0 to 255.
  [[nodiscard]] int NoOfEdits() const noexcept;
  void setNoOfEdits(int edits);
  void resetNoOfEdits() { setNoOfEdits(kDefaultEdits); }
  /// @}

  /// @{
  /// The length of the vector, 0 by default. New elements are 0; their memory is allocated when one
  /// of them is set. A top beyond the new last page moves there. Raises OnRowNoChange. O(1).
  [[nodiscard]] quint32 NoOfRows() const noexcept;
  void setNoOfRows(quint32 rows);
  void resetNoOfRows() { setNoOfRows(0); }
  /// @}

  /// @{
  /// The whole vector, as a copy that shares no memory with the control. Setting copies too, and
  /// sets the number of rows; in virtual mode each element goes through the events. A text that is
  /// being typed stays if the new vector has the same element there; otherwise it is committed
  /// first.
  /// std::length_error for more than 2^32 - 1 elements. O(length).
  [[nodiscard]] TQorFloatVector Vector() const;
  void setVector(const TQorFloatVector& vector);
  /// @}

  /// @{
  /// One element. EMathError: rsVectorIsEmpty, then rsInvalidRow if there is no such element.
  /// Setting an element does not affect a text that is being typed.
  [[nodiscard]] Extended Element(quint32 row) const;
  void setElement(quint32 row, Extended value);
  /// @}

  /// @{
  /// The index of the cell that has the focus, or had it last. Setting it gives the focus to a cell
  /// that shows an element; others are ignored.
  [[nodiscard]] quint32 EditFocus() const noexcept;
  void setEditFocus(quint32 edit);
  /// @}

  /// @{
  /// Apply a routine to the whole vector: ClearVector, FillVector, InvVector, SquareVector,
  /// SqrtVector, LnVector, Log10Vector, LinearTransformVector, or QSortVector in ascending order.
  /// Their errors reach the caller. Each command keeps a copy of the vector so that it can be
  /// undone. In virtual mode they only redisplay.
  void Clear();
  void Fill(Extended value);
  void Invert();
  void Sqr();
  void Sqrt();
  void Ln();
  void Log10();
  void LinearTransform(Extended slope, Extended intercept);
  virtual void Sort();
  /// @}
  /// Exchanges two elements. EMathError: rsVectorIsEmpty, then rsInvalidRow if there is no such
  /// element. In virtual mode it checks the rows and redisplays.
  virtual void SwapElements(quint32 first, quint32 second);

  /// @{
  /// The column of the model that is shown; 0 by default. Negative columns count as 0.
  [[nodiscard]] int ModelColumn() const noexcept;
  void setModelColumn(int column);
  /// @}

  /// Copies a part of the vector to the clipboard, as CopyAll does. Rows beyond the end are left
  /// out.
  void CopyRows(quint32 first, quint32 count);

  /// Supplies the elements in virtual mode; may be called at any time.
  TQorGetVectorElementEvent OnGetElement;
  /// Reads the texts of cells in place of the control; empty by default.
  TQorConvertEvent OnConvert;

 Q_SIGNALS:
  /// The user has changed the element.
  void OnChange(quint32 row);
  /// The user is typing this text into the cell of the element.
  void OnChangeText(quint32 row, const QString& text);
  /// The user has made the element null; OnChange follows.
  void OnNull(quint32 row);
  /// In virtual mode: store this value.
  void OnSetElement(quint32 row, long double value);
  /// The number of rows has changed.
  void OnRowNoChange(quint32 rows);
  /// DisplayTopRow is now the given row, and the cells show it.
  void OnAfterTopChange(quint32 top);
  /// The focus has left the cell of the element, whose text is committed.
  void OnCellExit(quint32 row);
  /// The focus has come to the cell of the element.
  void OnCellEnter(quint32 row);

 protected:
  /// @{
  /// The vector as the table of the panel.
  [[nodiscard]] quint32 RowCount() const override { return NoOfRows(); }
  [[nodiscard]] quint32 ColCount() const override { return 1; }
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

  /// Raises EMathError if there is no such element.
  void CheckRow(quint32 row) const;

 private:
  static constexpr int kDefaultEdits = 4;

  // A command on the store that can be undone.
  void VectorCommand(const QString& text, const std::function<void()>& command);

  // Changes the number of rows without the event.
  void Resize(quint32 rows);
  void TrimStore();
  // The store, extended to all rows.
  TQorFloatVector& FullStore();

  // Elements beyond its end are 0.
  TQorFloatVector store_;
};

}  // QORVEX_WIDGET_UNIT(QorvexVectorEdit)
