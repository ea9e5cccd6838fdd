#include "apps/qorvex-gallery/widgets/column_box.h"

#include <QSignalBlocker>
#include <algorithm>

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
    const int before = id_;
    Remember();
    if (id_ != before) Q_EMIT ColumnChanged();
  });
  connect(&sheet_, &Sheet::modelReset, this, &ColumnBox::FindAgain);
  connect(&sheet_, &Sheet::Changed, this, &ColumnBox::Fill);
  Fill();
}

ColumnBox::~ColumnBox() = default;

int ColumnBox::Column() const {
  return sheet_.ColumnWith(id_);
}

void ColumnBox::SetColumn(int column) {
  const int index = findData(IdOf(column));
  if (index >= 0) setCurrentIndex(index);
}

void ColumnBox::SetState(const QVariantList& state) {
  SetColumn(sheet_.FindColumn(state.value(1).toString(), state.value(0).toInt()));
}

int ColumnBox::IdOf(int column) const {
  return column >= 0 && column < sheet_.columnCount() ? sheet_.ColumnId(column) : kNoId;
}

void ColumnBox::FindAgain() {
  if (Column() < 0) id_ = IdOf(sheet_.FindColumn(title_, column_));
}

void ColumnBox::Fill() {
  const QSignalBlocker blocker(this);
  clear();
  if (!none_.isEmpty()) addItem(none_, kNoId);
  for (int column = 0; column < sheet_.columnCount(); ++column) {
    if (columns_ == kAll || sheet_.IsNumeric(column))
      addItem(sheet_.Title(column), sheet_.ColumnId(column));
  }
  int index = findData(id_);
  if (index < 0 && none_.isEmpty()) index = findData(IdOf(column_));
  setCurrentIndex(std::max(index, std::min(count() - 1, 0)));
  Remember();
}

void ColumnBox::Remember() {
  id_ = currentIndex() < 0 ? kNoId : currentData().toInt();
  column_ = Column();
  title_ = column_ < 0 ? QString() : sheet_.Title(column_);
}

}  // namespace qorvex::gallery
