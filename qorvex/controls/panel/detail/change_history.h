#pragma once

/// @file
/// ChangeHistory, undo and redo of the changes to a table.

#include <QPointer>
#include <QString>
#include <QUndoStack>
#include <functional>
#include <list>
#include <memory>
#include <optional>
#include <vector>

#include "qorvex/controls/panel/cell_table.h"
#include "qorvex/controls/panel/detail/cell_place.h"
#include "qorvex/controls/panel/detail/stack_use.h"

namespace qorvex::inline QorvexControls::detail {

/// An element, and a value for it or that it had.
struct ElementChange {
  quint32 row;
  quint32 col;
  Extended value;
};
using ElementChanges = std::vector<ElementChange>;
[[nodiscard]] inline qint64 BytesOf(const ElementChanges& changes) {
  return static_cast<qint64>(changes.size() * sizeof(ElementChange));
}
/// Where the element of a change is now; nothing if it is gone.
using ElementPlaces = std::function<std::optional<CellPlace>(std::size_t change)>;

/// Lines to insert into a table, and the value of their elements.
struct LineInsertion {
  CellAxis axis;
  quint32 first;
  quint32 count;
  Extended value;
};
using LineInsertions = std::vector<LineInsertion>;

/// The changes to a table as steps on an undo stack, its own or one that a form shares between
/// editors. What a user does at once is one step.
///
/// Steps know how much memory they hold. Beyond a limit the oldest ones release it and are gone: a
/// stack cannot drop its oldest commands, so they stay on it as obsolete commands, which Undo and
/// Redo pass over.
///
/// A step exchanges elements while the stack moves. Events follow when the stack is at rest,
/// because their handlers may change the table and so push further steps. A history that is to take
/// a step while another one runs on its stack, be it of another history, forgets all.
class ChangeHistory {
 public:
  /// What the history needs from the panel.
  struct Owner {
    /// Commits what is being typed if it is in the given lines.
    std::function<void(CellAxis axis, quint32 first, quint32 end)> commit_lines;
    /// Runs a function while the display waits, and displays the result.
    std::function<void(const std::function<void()>& run)> batch;
    /// Follows elements that may move while they are stored; an empty function if they cannot.
    std::function<ElementPlaces(const ElementChanges& changes)> follow;
    /// A step has been undone or redone.
    std::function<void()> restored;
    /// Memory has run out in the midst of a step: nothing can be undone any more.
    std::function<void()> out_of_memory;
    /// @{
    /// CanUndo or CanRedo has changed.
    std::function<void(bool can)> can_undo_changed;
    std::function<void(bool can)> can_redo_changed;
    /// @}
  };

  static constexpr qint64 kDefaultLimit = qint64{64} << 20;

  /// Nothing to undo.
  ChangeHistory(CellTable& table, Owner owner);
  ~ChangeHistory();
  ChangeHistory(const ChangeHistory&) = delete;
  ChangeHistory& operator=(const ChangeHistory&) = delete;

  /// Stores the values in the elements and raises the events of the changes: one step of the given
  /// name. When memory runs out nothing has changed, and the exception passes through.
  void Apply(ElementChanges changes, const QString& text) { Apply({}, std::move(changes), text); }
  /// Inserts lines first. False, and no element changes, if the program has not inserted them.
  bool Apply(const LineInsertions& lines, ElementChanges changes, const QString& text);
  /// Removes lines.
  void Remove(CellAxis axis, quint32 first, quint32 count, const QString& text);
  /// A typed value has replaced the one before: raises the events of the element.
  void Record(const ElementChange& before);
  /// A command has run. The function is called alternately to undo and to redo it; copies of it
  /// must share what they exchange, whose size is given.
  void RecordCommand(const QString& text, qint64 bytes, std::function<void()> exchange);
  /// More to undo and redo for the last command.
  void ExtendCommand(qint64 bytes, std::function<void()> exchange);

  /// The program has changed the size of the table: nothing can be undone.
  void Forget();
  /// The step that runs has moved elements: no other one can be undone or redone.
  void ForgetOthers();
  /// The program has changed elements: commands and what was done before them cannot be undone.
  void ForgetCommand();

  [[nodiscard]] bool CanUndo() const;
  [[nodiscard]] bool CanRedo() const;
  /// @{
  /// False when there is nothing to undo or redo, or a step runs.
  bool Undo();
  bool Redo();
  /// @}

  /// @{
  /// How many bytes the steps may hold, of which the newest one is always kept; 0 for no steps.
  [[nodiscard]] qint64 Limit() const noexcept { return limit_; }
  void SetLimit(qint64 bytes);
  /// @}
  /// @{
  /// The stack. Another one, or the history's own for a null pointer, starts without steps of this
  /// history.
  [[nodiscard]] QUndoStack& Stack() const { return shared_ ? *shared_ : own_; }
  void SetStack(QUndoStack* stack);
  /// @}

 private:
  class Step;
  struct RemovedLines;
  // Runs a part of a step. The result is how many bytes it holds now.
  using Part = std::function<qint64(bool undo)>;

  [[nodiscard]] StackUse& Use() const { return StackUse::Of(Stack()); }
  void Push(std::unique_ptr<Step> step);
  // False if a handler has pushed or forgotten something meanwhile.
  bool RunBatch(const std::function<void()>& run);
  void RunStep(Step& step, bool undo);
  void KeepWithinLimit();
  // Raises what is due when the stack is at rest.
  void Settle();
  [[nodiscard]] Part Exchanging(const std::shared_ptr<ElementChanges>& changes);
  // Inserts the lines and removes them in turn. What they have when they go comes back with them.
  [[nodiscard]] Part Moving(const LineInsertion& lines, bool undo_removes);
  void TakeOut(RemovedLines& removed);
  void PutBack(RemovedLines& removed);
  std::optional<quint32> Insert(const LineInsertion& lines);
  static void MoveChanges(ElementChanges& changes, const LineInsertion& lines, quint32 place);
  // The elements that differ from the value with which the lines are inserted.
  [[nodiscard]] ElementChanges ElementsOf(const LineInsertion& lines) const;
  // Stores the changes and puts the values that were there in their place. False, and nothing
  // changes, if an element refuses its value.
  bool Exchange(const std::shared_ptr<ElementChanges>& changes);
  // Whether a table that handlers may have shortened still has the element.
  [[nodiscard]] bool Has(quint32 row, quint32 col) const;

  CellTable& table_;
  Owner owner_;
  mutable QUndoStack own_;
  QPointer<QUndoStack> shared_;
  QMetaObject::Connection shared_moves_;
  // The steps that can be undone or redone, the oldest first.
  std::list<Step*> steps_;
  qint64 limit_ = kDefaultLimit;
  qint64 bytes_ = 0;
  int commands_ = 0;
  Step* last_command_ = nullptr;
  // A handler has pushed or forgotten something since the last step began to run.
  bool disturbed_ = false;
  // What is to be told when the stack is at rest.
  bool restored_ = false;
  bool out_of_memory_ = false;
  std::vector<std::shared_ptr<const ElementChanges>> events_;
  bool could_undo_ = false;
  bool could_redo_ = false;
};

}  // namespace qorvex::inline QorvexControls::detail
