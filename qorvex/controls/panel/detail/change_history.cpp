#include "qorvex/controls/panel/detail/change_history.h"

#include <cmath>
#include <memory>
#include <new>
#include <utility>

namespace qorvex::inline QorvexControls::detail {

ChangeHistory::ChangeHistory(CellTable& table, Batch batch)
    : table_(table), batch_(std::move(batch)) {}

void ChangeHistory::Apply(ElementChanges changes) {
  const auto shared = std::make_shared<ElementChanges>(std::move(changes));
  Remember([this, shared] { Exchange(*shared); }, false);
  try {
    Exchange(*shared);
  } catch (const std::bad_alloc&) {
    Forget();
    throw;
  }
}

void ChangeHistory::Record(const ElementChange& before, Extended now) {
  const auto shared = std::make_shared<ElementChanges>(ElementChanges{before});
  Remember([this, shared] { Exchange(*shared); }, false);
  if (Has(before.row, before.col)) Notify(before.row, before.col, now);
}

void ChangeHistory::RecordCommand(std::function<void()> exchange) {
  Remember(std::move(exchange), true);
}

void ChangeHistory::ExtendCommand(std::function<void()> exchange) {
  RecordCommand([first = std::move(exchange_), second = std::move(exchange)] {
    first();
    second();
  });
}

void ChangeHistory::Forget() {
  exchange_ = nullptr;
}

void ChangeHistory::ForgetCommand() {
  if (is_command_) Forget();
}

bool ChangeHistory::Undo() {
  return CanUndo() && Run(true);
}

bool ChangeHistory::Redo() {
  return CanRedo() && Run(false);
}

bool ChangeHistory::Run(bool undo) {
  undone_ = undo;
  // A copy, since a handler may call Forget.
  const std::function<void()> exchange = exchange_;
  exchange();
  return true;
}

void ChangeHistory::Remember(std::function<void()> exchange, bool is_command) {
  exchange_ = std::move(exchange);
  is_command_ = is_command;
  undone_ = false;
}

void ChangeHistory::Exchange(ElementChanges& changes) {
  batch_([&] {
    for (auto& [row, col, value] : changes) {
      if (!Has(row, col)) continue;
      const Extended before = table_.Value(row, col);
      table_.Store(row, col, std::exchange(value, before));
    }
  });
  for (const auto& [row, col, before] : changes) {
    if (Has(row, col)) Notify(row, col, table_.Value(row, col));
  }
}

void ChangeHistory::Notify(quint32 row, quint32 col, Extended now) {
  if (std::isnan(now)) table_.Notify(CellEvent::kNull, row, col);
  table_.Notify(CellEvent::kChange, row, col);
}

bool ChangeHistory::Has(quint32 row, quint32 col) const {
  return row < table_.RowCount() && col < table_.ColCount();
}

}  // namespace qorvex::inline QorvexControls::detail
