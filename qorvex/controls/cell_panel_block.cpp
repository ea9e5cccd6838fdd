// Copying and pasting blocks of cells, and taking back changes.

#include <QApplication>
#include <QClipboard>
#include <QCoreApplication>
#include <QMenu>
#include <QToolTip>
#include <algorithm>
#include <cmath>
#include <memory>
#include <utility>

#include "qorvex/base_controls/detail/same_element.h"
#include "qorvex/base_controls/detail/tool_tip.h"
#include "qorvex/controls/cell_panel.h"
#include "qorvex/controls/detail/block_text.h"
#include "qorvex/controls/detail/edit_window.h"

namespace qorvex::inline QorvexControls {

QString CellPanel::BlockText(quint32 row, quint32 rows, quint32 col, quint32 cols) const {
  const TQorCustomEdit& cell = *Cell(0, 0);
  std::string text;
  detail::TextBlock line(1, std::vector<std::string>(cols));
  for (quint32 r = 0; r < rows; ++r) {
    for (quint32 c = 0; c < cols; ++c) {
      line[0][c] = cell.ExactText(Value(row + r, col + c)).toStdString();
    }
    text += detail::FormatBlock(line);
  }
  return QString::fromStdString(text);
}

void CellPanel::CopyBlock(quint32 row, quint32 rows, quint32 col, quint32 cols) {
  constexpr quint64 most = 10'000'000;
  CommitPending();
  if (cells_.empty() || cells_.front().empty()) return;
  if (quint64{rows} * cols > most) {
    RefuseBlock(QCoreApplication::translate("CellPanel", "Too many values to copy: %1.")
                    .arg(quint64{rows} * cols));
    return;
  }
  QApplication::clipboard()->setText(BlockText(row, rows, col, cols));
}

void CellPanel::CopyAll() {
  CopyBlock(0, Rows().Count(), 0, Cols().Count());
}

void CellPanel::RefuseBlock(const QString& message) {
  if (entered_ != nullptr && isVisible()) {
    QToolTip::showText(entered_->mapToGlobal(entered_->rect().bottomLeft()),
                       QorvexBaseControls::detail::AsToolTip(message), entered_);
  }
  Q_EMIT OnBlockRefused(message);
}

void CellPanel::RefuseText(quint32 row, quint32 col, const QString& text) {
  Q_EMIT OnTextRefused(QCoreApplication::translate("CellPanel",
                                                   "%1: \"%2\" is not a number. The value stays.",
                                                   "name of a cell, its text")
                           .arg(CellName(row, col), text));
}

bool CellPanel::PasteBlock(const QString& text) {
  CommitPending();
  const detail::TextBlock block = detail::ParseBlock(text.toStdString());
  const quint32 first_row = Rows().Top() + Rows().Focus();
  const quint32 first_col = Cols().Top() + Cols().Focus();
  std::size_t width = 0;
  for (const auto& row : block) width = std::max(width, row.size());
  const std::size_t room_below = Rows().Count() - std::min(first_row, Rows().Count());
  const std::size_t room_beside = Cols().Count() - std::min(first_col, Cols().Count());
  if (EffectiveSettings().read_only) {
    RefuseBlock(QCoreApplication::translate("CellPanel", "These values cannot be changed."));
    return false;
  }
  const bool has_cells = !cells_.empty() && !cells_.front().empty();
  if (block.size() > room_below || !has_cells) {
    RefuseBlock(QCoreApplication::translate(
                    "CellPanel", "The block does not fit. Its rows: %1, rows from here on: %2.")
                    .arg(block.size())
                    .arg(has_cells ? room_below : 0));
    return false;
  }
  if (width > room_beside) {
    RefuseBlock(
        QCoreApplication::translate(
            "CellPanel", "The block does not fit. Its columns: %1, columns from here on: %2.")
            .arg(width)
            .arg(room_beside));
    return false;
  }

  ElementChanges changes;
  for (std::size_t r = 0; r < block.size(); ++r) {
    for (std::size_t c = 0; c < block[r].size(); ++c) {
      const QString cell_text = QString::fromStdString(block[r][c]);
      const auto value = Cell(0, 0)->Parsed(cell_text);
      const quint32 row = first_row + static_cast<quint32>(r);
      const quint32 col = first_col + static_cast<quint32>(c);
      if (!value) {
        RefuseBlock(QCoreApplication::translate("CellPanel", "%1: \"%2\" is not a number.",
                                                "name of a cell, its text")
                        .arg(CellName(row, col), cell_text));
        return false;
      }
      if (!QorvexBaseControls::detail::SameElement(Value(row, col), *value)) {
        changes.push_back({row, col, *value});
      }
    }
  }
  if (changes.empty()) return true;
  const auto shared = std::make_shared<ElementChanges>(std::move(changes));
  RememberElements(shared);
  try {
    ExchangeElements(*shared);
  } catch (const std::bad_alloc&) {
    Forget();
    RefuseBlock(OutOfMemory());
    return false;
  }
  return true;
}

QString CellPanel::OutOfMemory() {
  return QCoreApplication::translate("CellPanel", "There is not enough memory for these values.");
}

void CellPanel::ExchangeElements(ElementChanges& changes) {
  {
    const Update update(*this);
    for (ElementChange& change : changes) {
      // A handler may have shortened the table.
      if (change.row >= Rows().Count() || change.col >= Cols().Count()) continue;
      const Extended before = Value(change.row, change.col);
      Store(change.row, change.col, std::exchange(change.value, before));
    }
  }
  NotifyChanges(changes);
}

void CellPanel::NotifyChanges(const ElementChanges& changes) {
  for (const auto& [row, col, before] : changes) {
    if (row >= Rows().Count() || col >= Cols().Count()) continue;
    if (std::isnan(Value(row, col))) Notify(CellEvent::kNull, row, col);
    Notify(CellEvent::kChange, row, col);
  }
}

void CellPanel::RememberElements(const std::shared_ptr<ElementChanges>& changes) {
  Remember([this, changes] { ExchangeElements(*changes); });
  exchanges_command_ = false;
}

void CellPanel::Remember(std::function<void()> exchange) {
  exchange_ = std::move(exchange);
  exchanges_command_ = true;
  undone_ = false;
}

void CellPanel::AlsoExchange(std::function<void()> exchange) {
  Remember([first = std::move(exchange_), second = std::move(exchange)] {
    first();
    second();
  });
}

void CellPanel::Forget() {
  exchange_ = nullptr;
}

void CellPanel::ForgetCommand() {
  if (exchanges_command_) Forget();
}

void CellPanel::Undo() {
  CommitPending();
  if (CanUndo()) Exchange(true);
}

void CellPanel::Redo() {
  CommitPending();
  if (CanRedo()) Exchange(false);
}

void CellPanel::Exchange(bool undone) {
  undone_ = undone;
  // A copy, since a handler may make the panel forget what it is doing.
  const std::function<void()> exchange = exchange_;
  exchange();
  Q_EMIT OnUndo();
}

void CellPanel::Command(const std::function<void()>& command) {
  CommitPending();
  const Update update(*this);
  if (!VirtualMode()) command();
}

void CellPanel::AddToMenu(QMenu* menu) {
  menu->addSeparator();
  menu->addAction(QCoreApplication::translate("CellPanel", "Copy All Values"), this,
                  &CellPanel::CopyAll);
  if (EffectiveSettings().read_only) return;
  menu->addAction(QCoreApplication::translate("CellPanel", "Undo Last Change"), this,
                  &CellPanel::Undo)
      ->setEnabled(CanUndo());
  menu->addAction(QCoreApplication::translate("CellPanel", "Redo Last Change"), this,
                  &CellPanel::Redo)
      ->setEnabled(CanRedo());
}

}  // namespace qorvex::inline QorvexControls
