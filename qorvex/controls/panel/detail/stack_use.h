#pragma once

/// @file
/// StackUse, whether a step runs on an undo stack.

#include <QPointer>
#include <QUndoStack>
#include <utility>

namespace qorvex::inline QorvexControls::detail {

/// Whether a step runs on an undo stack, known to all histories that share the stack.
///
/// Meanwhile the stack is about to move or to take the step, so handlers must not move, extend or
/// clear it, and events wait. It is a child of the stack.
class StackUse final : public QObject {
  Q_OBJECT

 public:
  /// The use of the stack, the same one for each call.
  static StackUse& Of(QUndoStack& stack);

  /// A step runs during the lifetime. The stack may be deleted meanwhile.
  class Busy {
   public:
    explicit Busy(StackUse& use) : use_(&use), outer_(std::exchange(use.busy_, true)) {}
    ~Busy() {
      if (use_) use_->busy_ = outer_;
    }
    Busy(const Busy&) = delete;
    Busy& operator=(const Busy&) = delete;

   private:
    QPointer<StackUse> use_;
    bool outer_;
  };

  [[nodiscard]] bool IsBusy() const noexcept { return busy_; }
  /// Raises AtRest unless a step runs.
  void Settle();

 Q_SIGNALS:
  /// The stack has moved, or a history on it has changed.
  void AtRest();

 private:
  explicit StackUse(QUndoStack& stack);

  bool busy_ = false;
};

}  // namespace qorvex::inline QorvexControls::detail
