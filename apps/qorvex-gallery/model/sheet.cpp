#include "apps/qorvex-gallery/model/sheet.h"

#include <QLocale>
#include <QTimer>
#include <algorithm>
#include <limits>
#include <numeric>
#include <unordered_map>
#include <utility>

#include "qorvex/base/errors.h"
#include "qorvex/base/text.h"
#include "qorvex/base_controls/detail/number_text.h"
#include "qorvex/controls/detail/model_number.h"

namespace qorvex::gallery {

namespace {

constexpr Extended kNull = std::numeric_limits<Extended>::quiet_NaN();

QString FromUtf8(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

// A number as a program writes it.
std::optional<Extended> PlainNumber(const std::string& text) {
  try {
    return Str2Float(text);
  } catch (const EConvertError&) {
    return std::nullopt;
  }
}

std::size_t Index(int number) {
  return static_cast<std::size_t>(number);
}

bool CanInsert(int first, int count, int all) {
  return first >= 0 && first <= all && count > 0 && count <= std::numeric_limits<int>::max() - all;
}

bool CanRemove(int first, int count, int all) {
  return first >= 0 && count > 0 && first <= all && count <= all - first;
}

}  // namespace

Sheet::Sheet(QObject* parent) : QAbstractTableModel(parent) {}

Sheet::~Sheet() = default;

QString Sheet::Title(int column) const {
  const std::string& name = data_.Name(Index(column));
  return name.empty() ? tr("Column %1").arg(column + 1) : FromUtf8(name);
}

bool Sheet::IsNumeric(int column) const {
  return data_.IsNumeric(Index(column));
}

int Sheet::ColumnWith(int id) const {
  const auto found = std::ranges::find(ids_, id);
  return found == ids_.end() ? -1 : static_cast<int>(found - ids_.begin());
}

int Sheet::FindColumn(const QString& title, int column) const {
  if (column >= 0 && column < columnCount() && Title(column) == title) return column;
  for (int other = 0; other < columnCount(); ++other)
    if (Title(other) == title) return other;
  return -1;
}

void Sheet::InsertIds(int column, std::size_t count) {
  const auto first = ids_.insert(ids_.begin() + column, count, 0);
  std::iota(first, first + static_cast<std::ptrdiff_t>(count), next_id_);
  next_id_ += static_cast<int>(count);
}

TQorFloatVector Sheet::Numbers(int column) const {
  std::optional<TQorFloatVector>& kept = numbers_[Index(column)];
  if (!kept) {
    kept = TQorFloatVector::ForOverwrite(data_.Rows());
    for (std::size_t row = 0; row < data_.Rows(); ++row) {
      const std::string_view cell = data_.Cell(row, Index(column));
      const bool counts = data_.KindOf(cell) == CellKind::kNumber;
      (*kept)[row] = counts ? *data_.NumberIn(cell) : kNull;
    }
  }
  return *kept;
}

QStringList Sheet::Labels(int column) const {
  QStringList labels;
  labels.reserve(rowCount());
  for (std::size_t row = 0; row < data_.Rows(); ++row) {
    const std::string_view cell = data_.Cell(row, Index(column));
    labels.append(data_.KindOf(cell) == CellKind::kMissing ? QString() : FromUtf8(cell));
  }
  return labels;
}

SheetGroups Sheet::Groups(int column) const {
  SheetGroups groups;
  groups.group_of_row.reserve(data_.Rows());
  std::unordered_map<std::string_view, int> known;
  for (std::size_t row = 0; row < data_.Rows(); ++row) {
    const std::string_view cell = data_.Cell(row, Index(column));
    if (data_.KindOf(cell) == CellKind::kMissing) {
      groups.group_of_row.push_back(-1);
      continue;
    }
    const auto [group, is_new] = known.try_emplace(cell, static_cast<int>(groups.names.size()));
    if (is_new) groups.names.append(FromUtf8(cell));
    groups.group_of_row.push_back(group->second);
  }
  return groups;
}

QString Sheet::Text(int row, int column) const {
  return FromUtf8(data_.Cell(Index(row), Index(column)));
}

int Sheet::FirstText(int column) const {
  for (std::size_t row = 0; row < data_.Rows(); ++row) {
    if (data_.KindOf(data_.Cell(row, Index(column))) == CellKind::kText)
      return static_cast<int>(row);
  }
  return -1;
}

void Sheet::SetData(SheetData data) {
  beginResetModel();
  data_ = std::move(data);
  numbers_.assign(data_.Columns(), std::nullopt);
  ids_.clear();
  InsertIds(0, data_.Columns());
  endResetModel();
  Q_EMIT Changed();
}

void Sheet::TakeNamesFromFirstRow() {
  if (rowCount() == 0) return;
  for (int column = 0; column < columnCount(); ++column)
    data_.SetName(Index(column), std::string(data_.Cell(0, Index(column))));
  removeRows(0, 1);
  Q_EMIT headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
}

void Sheet::SetMissingWords(const apps::MissingWords& words) {
  apps::TableFormat format = data_.Format();
  format.missing = words;
  beginResetModel();
  data_.SetFormat(format);
  numbers_.assign(data_.Columns(), std::nullopt);
  endResetModel();
  ChangedSoon();
}

void Sheet::SetSaved(const apps::TableFormat& format) {
  data_.SetSaved();
  data_.SetFormat(format);
  ChangedSoon();
}

int Sheet::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(data_.Rows());
}

int Sheet::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(data_.Columns());
}

QVariant Sheet::data(const QModelIndex& index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
  if (role != Qt::DisplayRole && role != Qt::EditRole) return {};
  const std::string_view cell = data_.Cell(Index(index.row()), Index(index.column()));
  if (cell.empty()) return {};
  if (role == Qt::EditRole && IsNumeric(index.column()) &&
      data_.KindOf(cell) == CellKind::kNumber) {
    return QVariant::fromValue(*data_.NumberIn(cell));
  }
  return FromUtf8(cell);
}

QVariant Sheet::headerData(int section, Qt::Orientation orientation, int role) const {
  if (role != Qt::DisplayRole && role != Qt::EditRole) return {};
  if (orientation == Qt::Vertical) return section + 1;
  return section < columnCount() ? Title(section) : QString();
}

Qt::ItemFlags Sheet::flags(const QModelIndex& index) const {
  const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
  return index.isValid() ? flags | Qt::ItemIsEditable : flags;
}

std::string Sheet::TextFor(const QVariant& value) const {
  if (!value.isValid()) return {};
  if (value.metaType().id() != QMetaType::QString)
    return data_.TextOf(QorvexControls::detail::NumberOf(value, QLocale()).value_or(kNull));
  const QString typed = value.toString().trimmed();
  const std::string text = typed.toStdString();
  if (text.empty() || data_.NumberIn(text)) return text;
  std::optional<Extended> number = PlainNumber(text);
  if (!number) number = QorvexBaseControls::detail::ParseLocalNumber(typed, QLocale());
  return number && std::isfinite(*number) ? data_.TextOf(*number) : text;
}

void Sheet::Store(std::size_t row, std::size_t column, const std::string& text) {
  data_.SetCell(row, column, text);
  std::optional<TQorFloatVector>& kept = numbers_[column];
  if (!kept) return;
  // Others may hold the vector.
  if (kept->IsShared()) kept->reserve(kept->size());
  const std::string_view cell = data_.Cell(row, column);
  (*kept)[row] = data_.KindOf(cell) == CellKind::kNumber ? *data_.NumberIn(cell) : kNull;
}

bool Sheet::setData(const QModelIndex& index, const QVariant& value, int role) {
  if (role != Qt::EditRole || !checkIndex(index, CheckIndexOption::IndexIsValid)) return false;
  const bool was_numeric = IsNumeric(index.column());
  Store(Index(index.row()), Index(index.column()), TextFor(value));
  if (IsNumeric(index.column()) == was_numeric) {
    Q_EMIT dataChanged(index, index);
  } else {
    // Numbers become texts, or texts numbers.
    Q_EMIT dataChanged(this->index(0, index.column()), this->index(rowCount() - 1, index.column()));
  }
  ChangedSoon();
  return true;
}

bool Sheet::setHeaderData(int section, Qt::Orientation orientation, const QVariant& value,
                          int role) {
  if (role != Qt::EditRole || orientation != Qt::Horizontal || section < 0 ||
      section >= columnCount()) {
    return false;
  }
  data_.SetName(Index(section), value.toString().trimmed().toStdString());
  Q_EMIT headerDataChanged(orientation, section, section);
  ChangedSoon();
  return true;
}

void Sheet::ChangeLines(const SheetData::Lines& lines, const std::function<void()>& change) {
  const int first = static_cast<int>(lines.first);
  const int last = static_cast<int>(lines.first + lines.count) - 1;
  if (lines.are_rows) {
    const bool appends = lines.were_inserted && first == rowCount();
    lines.were_inserted ? beginInsertRows({}, first, last) : beginRemoveRows({}, first, last);
    change();
    for (auto& kept : numbers_) {
      if (appends && kept) {
        kept->resize(data_.Rows(), kNull);
      } else {
        kept.reset();
      }
    }
    lines.were_inserted ? endInsertRows() : endRemoveRows();
  } else {
    lines.were_inserted ? beginInsertColumns({}, first, last) : beginRemoveColumns({}, first, last);
    change();
    const auto at = numbers_.begin() + first;
    if (lines.were_inserted) {
      numbers_.insert(at, lines.count, std::nullopt);
      InsertIds(first, lines.count);
    } else {
      numbers_.erase(at, numbers_.begin() + last + 1);
      ids_.erase(ids_.begin() + first, ids_.begin() + last + 1);
    }
    lines.were_inserted ? endInsertColumns() : endRemoveColumns();
  }
  ChangedSoon();
}

void Sheet::UndoLines() {
  std::optional<SheetData::Lines> lines = data_.LastLines();
  if (!lines) return;
  lines->were_inserted = !lines->were_inserted;
  ChangeLines(*lines, [this] { data_.UndoLines(); });
}

bool Sheet::insertRows(int row, int count, const QModelIndex& parent) {
  if (parent.isValid() || !CanInsert(row, count, rowCount())) return false;
  ChangeLines({true, true, Index(row), Index(count)},
              [=, this] { data_.InsertRows(Index(row), Index(count)); });
  return true;
}

bool Sheet::removeRows(int row, int count, const QModelIndex& parent) {
  if (parent.isValid() || !CanRemove(row, count, rowCount())) return false;
  ChangeLines({true, false, Index(row), Index(count)},
              [=, this] { data_.RemoveRows(Index(row), Index(count)); });
  return true;
}

bool Sheet::insertColumns(int column, int count, const QModelIndex& parent) {
  if (parent.isValid() || !CanInsert(column, count, columnCount())) return false;
  ChangeLines({false, true, Index(column), Index(count)},
              [=, this] { data_.InsertColumns(Index(column), Index(count)); });
  return true;
}

bool Sheet::removeColumns(int column, int count, const QModelIndex& parent) {
  if (parent.isValid() || !CanRemove(column, count, columnCount())) return false;
  ChangeLines({false, false, Index(column), Index(count)},
              [=, this] { data_.RemoveColumns(Index(column), Index(count)); });
  return true;
}

void Sheet::ChangedSoon() {
  if (std::exchange(change_is_due_, true)) return;
  QTimer::singleShot(0, this, [this] {
    change_is_due_ = false;
    Q_EMIT Changed();
  });
}

}  // namespace qorvex::gallery
