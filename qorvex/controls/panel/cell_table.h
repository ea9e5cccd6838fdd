#pragma once

/// @file
/// CellTable, the interface through which a panel of cells reads and writes its elements.

#include <QColor>
#include <QString>
#include <functional>
#include <optional>

#include "qorvex/base/element_types.h"
#include "qorvex/base/export.h"

namespace qorvex::inline QorvexControls {

/// What happens to an element in its cell.
enum class CellEvent {
  kEnter,  ///< The focus has come to its cell.
  kExit,   ///< The focus has left its cell, whose text is committed.
  kNull,   ///< The user has made it null; kChange follows.
  kChange  ///< The user has changed it.
};

/// The two directions of a table. Its lines along an axis are its rows or its columns.
enum class CellAxis { kRows, kCols };

/// What belongs to lines beside their elements, such as labels.
struct KeptLineData {
  /// Brings it back after the lines have been removed and inserted again. Empty if there is
  /// nothing.
  std::function<void()> bring_back;
  /// How much memory it holds.
  qint64 bytes = 0;
};

/// A table of elements. An editor implements it over the vector or matrix that it stores, or over
/// the requests that it sends in virtual mode.
class QORVEX_EXPORT CellTable {
 public:
  /// @{
  /// The size of the table.
  [[nodiscard]] virtual quint32 RowCount() const = 0;
  [[nodiscard]] virtual quint32 ColCount() const = 0;
  /// @}
  /// @{
  /// One element, of which there is one in the given row and column. NaN is null. Store is false if
  /// the element refuses the value.
  [[nodiscard]] virtual Extended Value(quint32 row, quint32 col) const = 0;
  virtual bool Store(quint32 row, quint32 col, Extended value) = 0;
  /// @}
  /// Whether the elements are the program's: it stores them, and inserts and removes lines.
  [[nodiscard]] virtual bool IsVirtual() const = 0;
  /// Whether lines can be inserted. A program that does not handle the signal cannot insert any.
  [[nodiscard]] virtual bool CanInsert(CellAxis axis) const = 0;
  /// @{
  /// Inserts lines before the given one, with a value for their elements; removes lines. All of
  /// them are in the table. Inserting gives the place of the lines, since a model that sorts has
  /// another one for them; nothing if the model refuses or scatters them. A program may refuse
  /// both, so that the size stays as it is. Inserting raises std::bad_alloc and changes nothing if
  /// memory runs out.
  virtual std::optional<quint32> InsertLines(CellAxis axis, quint32 first, quint32 count,
                                             Extended value) = 0;
  virtual void RemoveLines(CellAxis axis, quint32 first, quint32 count) = 0;
  /// @}
  /// What belongs to the lines beside their elements, before they are removed.
  [[nodiscard]] virtual KeptLineData KeepLineData(CellAxis axis, quint32 first, quint32 count) = 0;
  /// Whether the element cannot be changed.
  [[nodiscard]] virtual bool IsReadOnly(quint32 row, quint32 col) const = 0;
  /// The name of the element's cell, for screen readers and messages.
  [[nodiscard]] virtual QString CellName(quint32 row, quint32 col) const = 0;
  /// @{
  /// The text of the heading in front of a row or above a column; its number, from 1, by default.
  [[nodiscard]] virtual QString RowHeading(quint32 row) const {
    return QString::number(qint64{row} + 1);
  }
  [[nodiscard]] virtual QString ColHeading(quint32 col) const {
    return QString::number(qint64{col} + 1);
  }
  /// @}
  /// The colour of the element's text; invalid for the colour that the settings give it.
  [[nodiscard]] virtual QColor SpecialColor(quint32 row, quint32 col, Extended value) const = 0;
  /// @{
  /// Raises the signals of the element: an event, or a text that is being typed into its cell.
  virtual void Notify(CellEvent event, quint32 row, quint32 col) = 0;
  virtual void NotifyText(quint32 row, quint32 col, const QString& text) = 0;
  /// @}
  /// Virtual mode has been turned on or off.
  virtual void VirtualModeChanged() = 0;
  /// Gives the table another size: that of a model, or its own again. Raises the signals of a
  /// change.
  virtual void SetSize(quint32 rows, quint32 cols) = 0;

 protected:
  ~CellTable() = default;
};

}  // namespace qorvex::inline QorvexControls
