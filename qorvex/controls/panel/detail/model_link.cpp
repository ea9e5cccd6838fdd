#include "qorvex/controls/panel/detail/model_link.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "qorvex/controls/detail/model_number.h"

namespace qorvex::inline QorvexControls::detail {

namespace {

constexpr quint32 kMaxCount = std::numeric_limits<int>::max();

quint32 CountFrom(int first, int count) {
  return static_cast<quint32>(std::max(count - first, 0));
}

}  // namespace

ModelLink::ModelLink(Owner owner) : owner_(std::move(owner)) {}

void ModelLink::Link(QAbstractItemModel* model) {
  if (model_) model_->disconnect(this);
  model_ = model;
  typed_.reset();
  if (model == nullptr) return;
  connect(model, &QAbstractItemModel::dataChanged, this, &ModelLink::Changed);
  connect(model, &QAbstractItemModel::headerDataChanged, this, owner_.headings_changed);
  connect(model, &QAbstractItemModel::modelReset, this, &ModelLink::Moved);
  connect(model, &QObject::destroyed, this, [this] { owner_.deleted(); });
  ConnectMoves();
}

void ModelLink::ConnectMoves() {
  using Model = QAbstractItemModel;
  // Items below other items belong to no cell.
  const auto hold = [this](const QModelIndex& parent) {
    if (!parent.isValid()) HoldTyped();
  };
  const auto moved = [this](const QModelIndex& parent) {
    if (!parent.isValid()) Moved();
  };
  for (const auto signal : {&Model::rowsAboutToBeInserted, &Model::rowsAboutToBeRemoved,
                            &Model::columnsAboutToBeInserted, &Model::columnsAboutToBeRemoved}) {
    connect(model_, signal, this, hold);
  }
  for (const auto signal : {&Model::rowsInserted, &Model::rowsRemoved, &Model::columnsInserted,
                            &Model::columnsRemoved}) {
    connect(model_, signal, this, moved);
  }
  for (const auto signal : {&Model::rowsAboutToBeMoved, &Model::columnsAboutToBeMoved}) {
    connect(model_, signal, this, &ModelLink::HoldTyped);
  }
  for (const auto signal : {&Model::rowsMoved, &Model::columnsMoved}) {
    connect(model_, signal, this, &ModelLink::Moved);
  }
  connect(model_, &Model::layoutAboutToBeChanged, this, &ModelLink::HoldTyped);
  connect(model_, &Model::layoutChanged, this, &ModelLink::Moved);
}

QModelIndex ModelLink::Index(quint32 row, quint32 col) const {
  const quint64 model_col = quint64{col} + static_cast<quint32>(first_col_);
  if (!model_ || row > kMaxCount || model_col > kMaxCount) return {};
  const int model_row = static_cast<int>(row);
  return model_->hasIndex(model_row, static_cast<int>(model_col))
             ? model_->index(model_row, static_cast<int>(model_col))
             : QModelIndex();
}

std::optional<CellPlace> ModelLink::PlaceOf(const QPersistentModelIndex& index) const {
  if (!index.isValid() || index.column() < first_col_) return std::nullopt;
  return CellPlace{static_cast<quint32>(index.row()),
                   static_cast<quint32>(index.column() - first_col_)};
}

quint32 ModelLink::RowCount() const {
  return CountFrom(0, model_->rowCount());
}

quint32 ModelLink::ColCount() const {
  return CountFrom(first_col_, model_->columnCount());
}

Extended ModelLink::Value(quint32 row, quint32 col) const {
  // An index that does not exist has no data, which is null.
  return NumberOf(Index(row, col).data(Qt::EditRole), owner_.locale())
      .value_or(std::numeric_limits<Extended>::quiet_NaN());
}

bool ModelLink::Store(quint32 row, quint32 col, Extended value) {
  const QModelIndex index = Index(row, col);
  return index.isValid() && model_->setData(index, ItemOf(value, index.data(Qt::EditRole)));
}

bool ModelLink::IsReadOnly(quint32 row, quint32 col) const {
  return model_ && !Index(row, col).flags().testFlag(Qt::ItemIsEditable);
}

QString ModelLink::Heading(quint32 section, Qt::Orientation orientation) const {
  const int first = orientation == Qt::Horizontal ? first_col_ : 0;
  return model_->headerData(first + static_cast<int>(section), orientation).toString();
}

bool ModelLink::InsertRows(quint32 row, quint32 count) {
  if (quint64{RowCount()} + count > kMaxCount) return false;
  return model_->insertRows(static_cast<int>(row), static_cast<int>(count));
}

bool ModelLink::RemoveRows(quint32 row, quint32 count) {
  return model_->removeRows(static_cast<int>(row), static_cast<int>(count));
}

bool ModelLink::InsertCols(quint32 col, quint32 count) {
  if (quint64{ColCount()} + static_cast<quint32>(first_col_) + count > kMaxCount) return false;
  return model_->insertColumns(first_col_ + static_cast<int>(col), static_cast<int>(count));
}

bool ModelLink::RemoveCols(quint32 col, quint32 count) {
  return model_->removeColumns(first_col_ + static_cast<int>(col), static_cast<int>(count));
}

bool ModelLink::SetRowCount(quint32 rows) {
  const quint32 now = RowCount();
  return rows > now ? InsertRows(now, rows - now) : rows == now || RemoveRows(rows, now - rows);
}

bool ModelLink::SetColCount(quint32 cols) {
  const quint32 now = ColCount();
  return cols > now ? InsertCols(now, cols - now) : cols == now || RemoveCols(cols, now - cols);
}

void ModelLink::FetchRow(quint32 row) {
  if (!model_) return;
  for (quint32 rows = RowCount(); rows <= row && model_->canFetchMore({});) {
    model_->fetchMore({});
    if (std::exchange(rows, RowCount()) == rows) return;
  }
}

void ModelLink::HoldTyped() {
  typed_.reset();
  if (const std::optional<CellPlace> place = owner_.typed()) typed_.emplace(*this, *place);
}

void ModelLink::Changed(const QModelIndex& first, const QModelIndex& last,
                        const QList<int>& roles) const {
  if (first.parent().isValid() || last.column() < first_col_) return;
  if (!roles.isEmpty() && !roles.contains(Qt::EditRole)) return;
  const int first_col = std::max(first.column(), first_col_);
  owner_.changed({static_cast<quint32>(first.row()), CountFrom(first.row(), last.row() + 1),
                  static_cast<quint32>(first_col - first_col_),
                  CountFrom(first_col, last.column() + 1)});
}

void ModelLink::Moved() {
  TypedMove move;
  if (typed_) {
    const std::optional<CellPlace> place = typed_->Place();
    move.is_gone = !place;
    if (place != typed_->Origin()) move.to = place;
    typed_.reset();
  }
  owner_.moved(move);
}

}  // namespace qorvex::inline QorvexControls::detail
