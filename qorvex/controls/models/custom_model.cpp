#include "qorvex/controls/models/custom_model.h"

#include <cmath>

#include "qorvex/base/fitted_text.h"
#include "qorvex/base/text.h"
#include "qorvex/base_controls/detail/digit_groups.h"
#include "qorvex/base_controls/detail/number_text.h"
#include "qorvex/controls/detail/model_number.h"
#include "qorvex/vector/detail/sort_keys.h"

namespace qorvex::inline QorvexControls {

namespace {

using QorvexBaseControls::detail::LocalNumber;
using QorvexBaseControls::detail::WithGroups;

QString ShortestText(Extended value) {
  return QString::fromStdString(Float2Str(value));
}

QString SortText(Extended value) {
  const auto key = QorvexVector::detail::SortKey<Extended>::Read(&value);
  constexpr int low_digits = 16;
  return QStringLiteral("%1%2")
      .arg(static_cast<quint64>(key >> 64), 4, 16, QLatin1Char('0'))
      .arg(static_cast<quint64>(key), low_digits, 16, QLatin1Char('0'));
}

}  // namespace

TQorCustomModel::TQorCustomModel(QObject* parent) : QAbstractTableModel(parent) {}

TQorCustomModel::~TQorCustomModel() = default;

void TQorCustomModel::setLocale(const QLocale& locale) {
  locale_ = locale;
  AllChanged();
}

void TQorCustomModel::setDisplayFormat(const std::optional<NumberSettings>& format) {
  format_ = format;
  AllChanged();
}

QVariant TQorCustomModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  if (role == Qt::TextAlignmentRole) {
    return static_cast<int>(format_.value_or(NumberSettings()).alignment);
  }
  if (role != Qt::EditRole && role != Qt::DisplayRole && role != SortRole) return {};
  const Extended value = Value(index.row(), index.column());
  if (std::isnan(value)) return {};
  if (role == Qt::DisplayRole) return Display(value);
  return role == SortRole ? SortText(value) : ShortestText(value);
}

QVariant TQorCustomModel::Display(Extended value) const {
  if (format_) {
    const QString text = LocalNumber(FloatText(value, format_->Digits()), locale_);
    return format_->grouping ? WithGroups(text, locale_) : text;
  }
  const auto nearest = static_cast<double>(value);
  if (value == 0 || std::isinf(value) || std::isnormal(nearest)) return nearest;
  return ShortestText(value);
}

bool TQorCustomModel::setData(const QModelIndex& index, const QVariant& value, int role) {
  if (!index.isValid()) return false;
  if (role != Qt::EditRole && role != Qt::DisplayRole) return false;
  const std::optional<Extended> number = detail::NumberOf(value, locale_);
  if (!number) return false;
  Change(index.row(), index.column(), *number);
  return true;
}

Qt::ItemFlags TQorCustomModel::flags(const QModelIndex& index) const {
  const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
  return index.isValid() ? flags | Qt::ItemIsEditable : flags;
}

void TQorCustomModel::Change(int row, int col, Extended value) {
  Store(row, col, value);
  const QModelIndex changed = index(row, col);
  Q_EMIT dataChanged(changed, changed);
}

void TQorCustomModel::AllChanged() {
  if (rowCount() == 0 || columnCount() == 0) return;
  Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
}

}  // namespace qorvex::inline QorvexControls
