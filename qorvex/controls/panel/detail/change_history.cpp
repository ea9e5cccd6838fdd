#include "qorvex/controls/panel/detail/change_history.h"

#include <QCoreApplication>
#include <algorithm>
#include <limits>
#include <new>
#include <utility>

#include "qorvex/base_controls/detail/same_element.h"
#include "qorvex/controls/panel/detail/undo_step.h"

namespace qorvex::inline QorvexControls::detail {

namespace {

// The stack of the history itself also limits the number of steps, since obsolete ones stay on it.
constexpr int kMostSteps = 10'000;

constexpr Extended kNull = std::numeric_limits<Extended>::quiet_NaN();

// Whether a part of a stack has a command that is not obsolete; the newest ones are looked at
// first.
bool IsAlive(const QUndoStack& stack, int begin, int end) {
  while (end > begin) {
    if (!stack.command(--end)->isObsolete()) return true;
  }
  return false;
}

}  // namespace

ChangeHistory::ChangeHistory(CellTable& table, Owner owner)
    : table_(table), owner_(std::move(owner)) {
  own_.setUndoLimit(kMostSteps);
  QObject::connect(&StackUse::Of(own_), &StackUse::AtRest, &own_, [this] { Settle(); });
}

ChangeHistory::~ChangeHistory() {
  own_.disconnect();
  QObject::disconnect(shared_moves_);
  while (!steps_.empty()) steps_.back()->Drop();
}

bool ChangeHistory::Apply(const LineInsertions& lines, ElementChanges changes,
                          const QString& text) {
  changes.shrink_to_fit();
  const auto shared = std::make_shared<ElementChanges>(std::move(changes));
  auto step = std::make_unique<Step>(text, false);
  bool complete = false;
  const bool undisturbed = RunBatch([&] {
    try {
      for (const LineInsertion& insertion : lines) {
        const std::optional<quint32> place = Insert(insertion);
        if (!place) return;
        MoveChanges(*shared, insertion, *place);
        if (table_.IsVirtual()) continue;
        step->Add(Moving(insertion, true), 0);
        if (disturbed_) break;
      }
      complete = lines.empty() || std::ranges::all_of(*shared, [this](const ElementChange& change) {
                   return Has(change.row, change.col);
                 });
      complete = complete && Exchange(shared);
    } catch (const std::bad_alloc&) {
      events_.clear();
      step->RunParts(*this, true);
      throw;
    }
  });
  if (!undisturbed) step = std::make_unique<Step>(text, false);
  if (undisturbed && complete && !shared->empty()) {
    step->Add(Exchanging(shared), BytesOf(*shared));
  }
  Push(std::move(step));
  return complete;
}

void ChangeHistory::Remove(CellAxis axis, quint32 first, quint32 count, const QString& text) {
  if (table_.IsVirtual()) {
    table_.RemoveLines(axis, first, count);
    return;
  }
  auto step = std::make_unique<Step>(text, false);
  step->Add(Moving({axis, first, count, 0}, false), 0);
  if (!RunBatch([&] { step->RunParts(*this, false); })) step = std::make_unique<Step>(text, false);
  Push(std::move(step));
}

void ChangeHistory::Record(const ElementChange& before) {
  const auto shared = std::make_shared<ElementChanges>(ElementChanges{before});
  events_.push_back(shared);
  if (Use().IsBusy()) {
    // A text was committed because a step moves the elements below it.
    ForgetCommand();
    return;
  }
  auto step = std::make_unique<Step>(QCoreApplication::translate("CellPanel", "Typing"), false);
  step->Add(Exchanging(shared), BytesOf(*shared));
  Push(std::move(step));
}

void ChangeHistory::RecordCommand(const QString& text, qint64 bytes,
                                  std::function<void()> exchange) {
  auto step = std::make_unique<Step>(text, true);
  step->Add([run = std::move(exchange), bytes](bool) { return run(), bytes; }, bytes);
  Push(std::move(step));
}

void ChangeHistory::ExtendCommand(qint64 bytes, std::function<void()> exchange) {
  if (last_command_ == nullptr) return;
  last_command_->Add([run = std::move(exchange), bytes](bool) { return run(), bytes; }, bytes);
  KeepWithinLimit();
}

bool ChangeHistory::RunBatch(const std::function<void()>& run) {
  const StackUse::Busy busy(Use());
  disturbed_ = false;
  owner_.batch(run);
  return !std::exchange(disturbed_, false);
}

void ChangeHistory::Push(std::unique_ptr<Step> step) {
  if (Use().IsBusy()) {
    // What handlers do in the midst of a step has no place in the order of steps.
    Forget();
  } else if (limit_ > 0 && !step->IsEmpty()) {
    step->Enlist(*this);
    Stack().push(step.release());
    KeepWithinLimit();
  }
  Use().Settle();
}

void ChangeHistory::RunStep(Step& step, bool undo) {
  StackUse& use = Use();
  const StackUse::Busy busy(use);
  bool undisturbed = false;
  try {
    undisturbed = RunBatch([&] { step.RunParts(*this, undo); });
    restored_ = true;
  } catch (const std::bad_alloc&) {
    out_of_memory_ = true;
    Forget();
  }
  // A stack that deletes a step which it has redone does not tell of it.
  if (!undisturbed) QMetaObject::invokeMethod(&use, &StackUse::Settle, Qt::QueuedConnection);
}

void ChangeHistory::Settle() {
  if (Use().IsBusy()) return;
  for (const auto& changes : std::exchange(events_, {})) {
    for (const auto& [row, col, before] : *changes) {
      if (Has(row, col) && QorvexBaseControls::detail::SameElement(table_.Value(row, col), kNull)) {
        table_.Notify(CellEvent::kNull, row, col);
      }
      if (Has(row, col)) table_.Notify(CellEvent::kChange, row, col);
    }
  }
  if (std::exchange(restored_, false)) owner_.restored();
  if (std::exchange(out_of_memory_, false)) owner_.out_of_memory();
  if (!StackUse::Of(own_).IsBusy() && own_.count() > 0 && !IsAlive(own_, 0, own_.count())) {
    own_.clear();
  }
  // Each is looked at when the handlers of the one before have run.
  const bool can_undo = CanUndo();
  if (std::exchange(could_undo_, can_undo) != can_undo) owner_.can_undo_changed(can_undo);
  const bool can_redo = CanRedo();
  if (std::exchange(could_redo_, can_redo) != can_redo) owner_.can_redo_changed(can_redo);
}

void ChangeHistory::KeepWithinLimit() {
  while (bytes_ > limit_ && steps_.size() > 1) {
    // What is redone builds on the steps before it.
    (steps_.front()->IsDone() ? steps_.front() : steps_.back())->Drop();
  }
}

void ChangeHistory::Forget() {
  disturbed_ = true;
  while (!steps_.empty()) steps_.back()->Drop();
  Use().Settle();
}

void ChangeHistory::ForgetCommand() {
  if (commands_ == 0) return;
  const auto drop_through = [this](const Step* last, bool from_front) {
    for (const Step* dropped = nullptr; dropped != last;) {
      Step* const next = from_front ? steps_.front() : steps_.back();
      dropped = next;
      next->Drop();
    }
  };
  const auto done = std::find_if(steps_.rbegin(), steps_.rend(), [](const Step* step) {
    return step->IsCommand() && step->IsDone();
  });
  if (done != steps_.rend()) drop_through(*done, true);
  const auto undone = std::ranges::find_if(
      steps_, [](const Step* step) { return step->IsCommand() && !step->IsDone(); });
  if (undone != steps_.end()) drop_through(*undone, false);
  Use().Settle();
}

bool ChangeHistory::CanUndo() const {
  const QUndoStack& stack = Stack();
  return stack.canUndo() && IsAlive(stack, 0, stack.index());
}

bool ChangeHistory::CanRedo() const {
  const QUndoStack& stack = Stack();
  return stack.canRedo() && IsAlive(stack, stack.index(), stack.count());
}

bool ChangeHistory::Undo() {
  while (!Use().IsBusy() && CanUndo()) {
    QUndoStack& stack = Stack();
    const bool obsolete = stack.command(stack.index() - 1)->isObsolete();
    stack.undo();
    if (!obsolete) return Use().Settle(), true;
  }
  return false;
}

bool ChangeHistory::Redo() {
  while (!Use().IsBusy() && CanRedo()) {
    QUndoStack& stack = Stack();
    const bool obsolete = stack.command(stack.index())->isObsolete();
    stack.redo();
    if (!obsolete) return Use().Settle(), true;
  }
  return false;
}

void ChangeHistory::ForgetOthers() {
  for (auto place = steps_.begin(); place != steps_.end();) {
    Step* const step = *place++;
    if (!step->IsRunning()) step->Drop();
  }
  Settle();
}

void ChangeHistory::SetLimit(qint64 bytes) {
  limit_ = std::max<qint64>(bytes, 0);
  if (limit_ == 0) {
    Forget();
  } else {
    KeepWithinLimit();
    Use().Settle();
  }
}

void ChangeHistory::SetStack(QUndoStack* stack) {
  QUndoStack* const next = stack != nullptr ? stack : &own_;
  if (next == &Stack()) return;
  Forget();
  QObject::disconnect(shared_moves_);
  shared_ = next == &own_ ? nullptr : next;
  if (shared_) {
    shared_moves_ =
        QObject::connect(&StackUse::Of(*shared_), &StackUse::AtRest, shared_, [this] { Settle(); });
  }
  Use().Settle();
}

}  // namespace qorvex::inline QorvexControls::detail
