#pragma once

/// @file
/// ChangeHistory, undo and redo of the last change to a table.

#include <functional>
#include <vector>

#include "qorvex/controls/panel/cell_table.h"

namespace qorvex::inline QorvexControls::detail {

/// An element, and a value for it or that it had.
struct ElementChange {
  quint32 row;
  quint32 col;
  Extended value;
};
using ElementChanges = std::vector<ElementChange>;

/// The last change to a table: either elements that were typed or pasted, or a command. A command
/// can be undone until anything else changes; elements can be undone until the size of the table
/// changes.
class ChangeHistory {
 public:
  /// Runs a function while the display waits, and displays the result.
  using Batch = std::function<void(const std::function<void()>& run)>;

  /// Nothing to undo.
  ChangeHistory(CellTable& table, Batch batch);

  /// Stores the values in the elements and raises the events of the changes, which can be undone.
  /// When memory runs out there is nothing to undo, and the exception passes through.
  void Apply(ElementChanges changes);
  /// An element has got a new value: raises its events. Undo brings back the one before.
  void Record(const ElementChange& before, Extended now);
  /// A command has run. The function is called alternately to undo and to redo it; copies of it
  /// must share what they exchange.
  void RecordCommand(std::function<void()> exchange);
  /// More to undo and redo for the last command.
  void ExtendCommand(std::function<void()> exchange);

  /// The size of the table has changed.
  void Forget();
  /// Something other than cells has changed elements.
  void ForgetCommand();

  [[nodiscard]] bool CanUndo() const noexcept { return exchange_ && !undone_; }
  [[nodiscard]] bool CanRedo() const noexcept { return exchange_ && undone_; }
  /// @{
  /// False when there is nothing to undo or redo.
  bool Undo();
  bool Redo();
  /// @}

 private:
  void Remember(std::function<void()> exchange, bool is_command);
  // Stores the changes and puts the values that were there in their place.
  void Exchange(ElementChanges& changes);
  void Notify(quint32 row, quint32 col, Extended now);
  // Whether a table that handlers may have shortened still has the element.
  [[nodiscard]] bool Has(quint32 row, quint32 col) const;
  bool Run(bool undo);

  CellTable& table_;
  Batch batch_;
  std::function<void()> exchange_;
  bool is_command_ = false;
  bool undone_ = false;
};

}  // namespace qorvex::inline QorvexControls::detail
