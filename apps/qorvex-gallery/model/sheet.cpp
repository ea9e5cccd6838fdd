#include "apps/qorvex-gallery/model/sheet.h"

namespace qorvex::gallery {

Sheet::Sheet(QObject* parent) : QAbstractTableModel(parent) {}

Sheet::~Sheet() = default;

QString Sheet::Title(int column) const {
  return tr("Column %1").arg(column + 1);
}

bool Sheet::IsNumeric(int /*column*/) const {
  return true;
}

TQorFloatVector Sheet::Numbers(int /*column*/) const {
  return {};
}

QStringList Sheet::Labels(int /*column*/) const {
  return {};
}

SheetGroups Sheet::Groups(int /*column*/) const {
  return {};
}

int Sheet::rowCount(const QModelIndex& /*parent*/) const {
  return 0;
}

int Sheet::columnCount(const QModelIndex& /*parent*/) const {
  return 0;
}

QVariant Sheet::data(const QModelIndex& /*index*/, int /*role*/) const {
  return {};
}

}  // namespace qorvex::gallery
