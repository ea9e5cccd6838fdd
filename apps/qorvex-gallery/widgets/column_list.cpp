#include "apps/qorvex-gallery/widgets/column_list.h"

#include <QSignalBlocker>
#include <algorithm>

#include "apps/qorvex-gallery/model/sheet.h"

namespace qorvex::gallery {

namespace {

constexpr int kIdRole = Qt::UserRole;
constexpr int kColumnRole = Qt::UserRole + 1;

}  // namespace

ColumnList::ColumnList(const Sheet& sheet, QWidget* parent) : QListWidget(parent), sheet_(sheet) {
  connect(this, &QListWidget::itemChanged, this, &ColumnList::ColumnsChanged);
  connect(&sheet, &Sheet::modelReset, this, &ColumnList::FindAgain);
  connect(&sheet, &Sheet::Changed, this, [this] { Fill(Columns()); });
  Fill({});
}

ColumnList::~ColumnList() = default;

void ColumnList::FindAgain() {
  std::vector<int> found;
  for (const QListWidgetItem* const item : Ticked()) {
    const int column = sheet_.ColumnWith(item->data(kIdRole).toInt());
    found.push_back(column >= 0 ? column
                                : sheet_.FindColumn(item->text(), item->data(kColumnRole).toInt()));
  }
  Fill(found);
}

void ColumnList::Fill(const std::vector<int>& ticked) {
  const QSignalBlocker blocker(this);
  const int current = currentRow();
  clear();
  for (int column = 0; column < sheet_.columnCount(); ++column) {
    if (!sheet_.IsNumeric(column)) continue;
    auto* const item = new QListWidgetItem(sheet_.Title(column), this);
    item->setData(kIdRole, sheet_.ColumnId(column));
    item->setData(kColumnRole, column);
    item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
    const bool is_ticked = std::ranges::find(ticked, column) != ticked.end();
    item->setCheckState(is_ticked ? Qt::Checked : Qt::Unchecked);
  }
  setCurrentRow(qBound(0, current, count() - 1));
}

QList<const QListWidgetItem*> ColumnList::Ticked() const {
  QList<const QListWidgetItem*> items;
  for (int row = 0; row < count(); ++row)
    if (item(row)->checkState() == Qt::Checked) items.append(item(row));
  return items;
}

std::vector<int> ColumnList::Columns() const {
  std::vector<int> columns;
  for (const QListWidgetItem* const item : Ticked()) {
    const int column = sheet_.ColumnWith(item->data(kIdRole).toInt());
    if (column >= 0) columns.push_back(column);
  }
  return columns;
}

void ColumnList::SetColumns(const std::vector<int>& columns) {
  Fill(columns);
  Q_EMIT ColumnsChanged();
}

QVariantList ColumnList::State() const {
  QVariantList state;
  for (const int column : Columns()) state += {column, sheet_.Title(column)};
  return state;
}

void ColumnList::SetState(const QVariantList& state) {
  std::vector<int> columns;
  for (qsizetype i = 0; i + 1 < state.size(); i += 2)
    columns.push_back(sheet_.FindColumn(state[i + 1].toString(), state[i].toInt()));
  SetColumns(columns);
}

}  // namespace qorvex::gallery
