#include "apps/qorvex-gallery/widgets/column_list.h"

#include <QSignalBlocker>
#include <algorithm>
#include <utility>

#include "apps/qorvex-gallery/model/sheet.h"

namespace qorvex::gallery {

namespace {

constexpr int kColumnRole = Qt::UserRole;

}  // namespace

ColumnList::ColumnList(const Sheet& sheet, QWidget* parent) : QListWidget(parent), sheet_(sheet) {
  connect(this, &QListWidget::itemChanged, this, &ColumnList::TakeTicks);
  connect(&sheet, &Sheet::columnsInserted, this,
          [this](const QModelIndex&, int first, int last) { Insert(first, last - first + 1); });
  connect(&sheet, &Sheet::columnsRemoved, this,
          [this](const QModelIndex&, int first, int last) { Remove(first, last - first + 1); });
  connect(&sheet, &Sheet::modelReset, this, [this] {
    if (!replaced_) replaced_ = Titles();
    ticked_.clear();
  });
  connect(&sheet, &Sheet::Changed, this, &ColumnList::Follow);
  Fill();
}

ColumnList::~ColumnList() = default;

void ColumnList::Insert(int first, int count) {
  for (int& column : ticked_)
    if (column >= first) column += count;
}

void ColumnList::Remove(int first, int count) {
  std::erase_if(ticked_, [=](int column) { return column >= first && column < first + count; });
  for (int& column : ticked_)
    if (column >= first) column -= count;
}

void ColumnList::Follow() {
  const std::vector<int> before = ticked_;
  if (replaced_) Tick(*std::exchange(replaced_, std::nullopt));
  Fill();
  if (ticked_ != before) Q_EMIT ColumnsChanged();
}

void ColumnList::Tick(const QStringList& titles) {
  ticked_.clear();
  QStringList wanted = titles;
  for (int column = 0; column < sheet_.columnCount(); ++column)
    if (wanted.removeOne(sheet_.Title(column))) ticked_.push_back(column);
}

// Columns that have become text are no longer ticked.
void ColumnList::Fill() {
  const QSignalBlocker blocker(this);
  const int current = currentRow();
  clear();
  std::erase_if(ticked_, [this](int column) {
    return column >= sheet_.columnCount() || !sheet_.IsNumeric(column);
  });
  for (int column = 0; column < sheet_.columnCount(); ++column) {
    if (!sheet_.IsNumeric(column)) continue;
    auto* const item = new QListWidgetItem(sheet_.Title(column), this);
    item->setData(kColumnRole, column);
    item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
    const bool is_ticked = std::ranges::find(ticked_, column) != ticked_.end();
    item->setCheckState(is_ticked ? Qt::Checked : Qt::Unchecked);
  }
  setCurrentRow(qBound(0, current, count() - 1));
}

void ColumnList::TakeTicks() {
  ticked_.clear();
  for (int row = 0; row < count(); ++row) {
    if (item(row)->checkState() == Qt::Checked)
      ticked_.push_back(item(row)->data(kColumnRole).toInt());
  }
  Q_EMIT ColumnsChanged();
}

// From the items: after a reset, the sheet has other names.
QStringList ColumnList::Titles() const {
  QStringList titles;
  for (int row = 0; row < count(); ++row)
    if (item(row)->checkState() == Qt::Checked) titles += item(row)->text();
  return titles;
}

void ColumnList::SetTitles(const QStringList& titles) {
  replaced_.reset();
  Tick(titles);
  Fill();
  Q_EMIT ColumnsChanged();
}

}  // namespace qorvex::gallery
