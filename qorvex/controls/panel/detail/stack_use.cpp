#include "qorvex/controls/panel/detail/stack_use.h"

namespace qorvex::inline QorvexControls::detail {

StackUse& StackUse::Of(QUndoStack& stack) {
  auto* const use = stack.findChild<StackUse*>(QString(), Qt::FindDirectChildrenOnly);
  return use != nullptr ? *use : *new StackUse(stack);
}

StackUse::StackUse(QUndoStack& stack) : QObject(&stack) {
  connect(&stack, &QUndoStack::indexChanged, this, &StackUse::Settle);
}

void StackUse::Settle() {
  if (!busy_) Q_EMIT AtRest();
}

}  // namespace qorvex::inline QorvexControls::detail
