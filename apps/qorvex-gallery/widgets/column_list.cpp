#include "apps/qorvex-gallery/widgets/column_list.h"

#include <QSignalBlocker>

#include "apps/qorvex-gallery/model/sheet.h"

namespace qorvex::gallery {

namespace {

constexpr int kColumnRole = Qt::UserRole;

}  // namespace

ColumnList::ColumnList(const Sheet& sheet, QWidget* parent) : QListWidget(parent), sheet_(sheet) {
  connect(this, &QListWidget::itemChanged, this, &ColumnList::ColumnsChanged);
  connect(&sheet, &Sheet::Changed, this, [this] {
    const std::vector<int> before = Columns();
    Fill(Titles());
    if (Columns() != before) Q_EMIT ColumnsChanged();
  });
  Fill({});
}

ColumnList::~ColumnList() = default;

void ColumnList::Fill(const QStringList& ticked) {
  const QSignalBlocker blocker(this);
  const int current = currentRow();
  clear();
  for (int column = 0; column < sheet_.columnCount(); ++column) {
    if (!sheet_.IsNumeric(column)) continue;
    auto* const item = new QListWidgetItem(sheet_.Title(column), this);
    item->setData(kColumnRole, column);
    item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
    item->setCheckState(ticked.contains(item->text()) ? Qt::Checked : Qt::Unchecked);
  }
  setCurrentRow(qBound(0, current, count() - 1));
}

std::vector<int> ColumnList::Columns() const {
  std::vector<int> columns;
  for (int row = 0; row < count(); ++row) {
    if (item(row)->checkState() == Qt::Checked)
      columns.push_back(item(row)->data(kColumnRole).toInt());
  }
  return columns;
}

QStringList ColumnList::Titles() const {
  QStringList titles;
  for (int row = 0; row < count(); ++row)
    if (item(row)->checkState() == Qt::Checked) titles += item(row)->text();
  return titles;
}

void ColumnList::SetTitles(const QStringList& titles) {
  Fill(titles);
  Q_EMIT ColumnsChanged();
}

}  // namespace qorvex::gallery
