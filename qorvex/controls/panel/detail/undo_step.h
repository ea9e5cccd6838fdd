#pragma once

/// @file
/// ChangeHistory::Step, one step on an undo stack.

#include <QUndoCommand>
#include <utility>

#include "qorvex/controls/panel/detail/change_history.h"

namespace qorvex::inline QorvexControls::detail {

/// Parts that are undone together, the last one first. What they change has been done when the step
/// goes onto the stack.
class ChangeHistory::Step final : public QUndoCommand {
 public:
  Step(const QString& text, bool is_command) : QUndoCommand(text), is_command_(is_command) {}
  ~Step() override { Drop(); }

  [[nodiscard]] bool IsEmpty() const noexcept { return parts_.empty(); }
  [[nodiscard]] bool IsCommand() const noexcept { return is_command_; }
  /// While it runs, it has handed out its parts.
  [[nodiscard]] bool IsRunning() const noexcept { return parts_.empty(); }
  [[nodiscard]] bool IsDone() const noexcept { return done_; }

  /// Adds a part that holds so many bytes.
  void Add(Part part, qint64 bytes) {
    parts_.push_back(std::move(part));
    bytes_ += bytes;
    if (history_ != nullptr) history_->bytes_ += bytes;
  }
  /// The step belongs to a history from now on.
  void Enlist(ChangeHistory& history) {
    history_ = &history;
    history.bytes_ += bytes_;
    if (is_command_) {
      ++history.commands_;
      history.last_command_ = this;
    }
    place_ = history.steps_.insert(history.steps_.end(), this);
  }
  /// Releases what the step holds. It can be neither undone nor redone any more.
  void Drop() {
    if (history_ == nullptr) return;
    history_->bytes_ -= bytes_;
    if (is_command_) --history_->commands_;
    if (history_->last_command_ == this) history_->last_command_ = nullptr;
    history_->steps_.erase(place_);
    history_ = nullptr;
    parts_.clear();
    setObsolete(true);
  }

  /// Undoes or redoes the parts of a step that belongs to no history, until a handler forgets what
  /// they build on.
  void RunParts(const ChangeHistory& history, bool undo) {
    bytes_ = kOwnBytes;
    for (std::size_t i = 0; i < parts_.size() && !history.disturbed_; ++i) {
      bytes_ += parts_[undo ? parts_.size() - 1 - i : i](undo);
    }
  }

  void undo() override { Run(true); }
  void redo() override { Run(false); }

 private:
  void Run(bool undo) {
    // A stack redoes what is pushed.
    if (history_ == nullptr || done_ != undo) return;
    done_ = !undo;
    // Handlers may drop the step while it runs.
    Step running(text(), is_command_);
    running.parts_.swap(parts_);
    history_->RunStep(running, undo);
    if (history_ == nullptr) return;
    parts_.swap(running.parts_);
    history_->bytes_ += running.bytes_ - bytes_;
    bytes_ = running.bytes_;
    history_->KeepWithinLimit();
  }

  // The step itself, with what it counts for without its parts.
  static constexpr qint64 kOwnBytes = 300;

  ChangeHistory* history_ = nullptr;
  std::list<Step*>::iterator place_;
  std::vector<Part> parts_;
  qint64 bytes_ = kOwnBytes;
  bool is_command_;
  bool done_ = true;
};

}  // namespace qorvex::inline QorvexControls::detail
