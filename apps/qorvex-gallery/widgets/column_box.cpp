#include "apps/qorvex-gallery/widgets/column_box.h"

#include <QSignalBlocker>
#include <algorithm>
#include <utility>

#include "apps/qorvex-gallery/model/sheet.h"

namespace qorvex::gallery {

namespace {

// In characters.
constexpr int kNarrowest = 10;
constexpr int kWidest = 40;

}  // namespace

ColumnBox::ColumnBox(const Sheet& sheet, Columns columns, const QString& none, QWidget* parent)
    : QComboBox(parent), sheet_(sheet), columns_(columns), none_(none) {
  setSizeAdjustPolicy(QComboBox::AdjustToContents);
  setMinimumWidth(kNarrowest * fontMetrics().averageCharWidth());
  setMaximumWidth(kWidest * fontMetrics().averageCharWidth());
  connect(this, &QComboBox::currentIndexChanged, this, [this] {
    const int column = Column();
    title_ = column < 0 ? QString() : sheet_.Title(column);
    if (std::exchange(column_, column) != column) Q_EMIT ColumnChanged();
  });
  connect(&sheet_, &Sheet::Changed, this, &ColumnBox::Fill);
  Fill();
}

ColumnBox::~ColumnBox() = default;

int ColumnBox::Column() const {
  return currentIndex() < 0 ? -1 : currentData().toInt();
}

void ColumnBox::SetColumn(int column) {
  const int index = findData(column);
  if (index >= 0) setCurrentIndex(index);
}

void ColumnBox::Fill() {
  const QString title = title_;
  const int before = column_;
  {
    const QSignalBlocker blocker(this);
    clear();
    if (!none_.isEmpty()) addItem(none_, -1);
    for (int column = 0; column < sheet_.columnCount(); ++column)
      if (columns_ == kAll || sheet_.IsNumeric(column)) addItem(sheet_.Title(column), column);
    const int named =
        title.isEmpty() ? -1 : findText(title, Qt::MatchExactly | Qt::MatchCaseSensitive);
    const int otherwise = none_.isEmpty() ? findData(before) : 0;
    setCurrentIndex(named >= 0 ? named : std::max(otherwise, std::min(count() - 1, 0)));
  }
  column_ = Column();
  title_ = column_ < 0 ? QString() : sheet_.Title(column_);
  if (column_ != before || title_ != title) Q_EMIT ColumnChanged();
}

}  // namespace qorvex::gallery
