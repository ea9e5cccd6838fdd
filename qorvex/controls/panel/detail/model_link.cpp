#include "qorvex/controls/panel/detail/model_link.h"

#include <QScopedValueRollback>
#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "qorvex/controls/detail/model_number.h"

namespace qorvex::inline QorvexControls::detail {

namespace {

constexpr Extended kNull = std::numeric_limits<Extended>::quiet_NaN();
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
  texts_.Clear();
  if (model == nullptr) return;
  connect(model, &QAbstractItemModel::dataChanged, this, &ModelLink::Changed);
  connect(model, &QAbstractItemModel::headerDataChanged, this, owner_.headings_changed);
  connect(model, &QAbstractItemModel::modelReset, this, [this] { Moved(false); });
  connect(model, &QObject::destroyed, this, [this] { owner_.deleted(); });
  ConnectMoves();
}

void ModelLink::ConnectMoves() {
  using Model = QAbstractItemModel;
  // Items below other items belong to no cell.
  const auto hold = [this](const QModelIndex& parent) {
    if (!parent.isValid()) HoldTyped();
  };
  for (const auto signal : {&Model::rowsAboutToBeInserted, &Model::rowsAboutToBeRemoved,
                            &Model::columnsAboutToBeInserted, &Model::columnsAboutToBeRemoved}) {
    connect(model_, signal, this, hold);
  }
  connect(model_, &Model::rowsRemoved, this, [this](const QModelIndex& parent) {
    if (!parent.isValid()) Moved(false);
  });
  connect(model_, &Model::columnsRemoved, this,
          [this](const QModelIndex& parent, int first, int last) {
            if (parent.isValid()) return;
            const int shown = std::max(first, first_col_);
            Moved(false, {CountFrom(first_col_, shown), CountFrom(shown, last + 1), 0});
          });
  connect(model_, &Model::rowsInserted, this,
          [this](const QModelIndex& parent, int first, int last) {
            if (parent.isValid()) return;
            Inserted(first, last);
            Moved(last == model_->rowCount() - 1);
          });
  connect(model_, &Model::columnsInserted, this,
          [this](const QModelIndex& parent, int first, int last) {
            if (parent.isValid()) return;
            Inserted(first, last);
            const int shown = std::max(first, first_col_);
            Moved(last == model_->columnCount() - 1,
                  {CountFrom(first_col_, shown), 0, CountFrom(shown, last + 1)});
          });
  for (const auto signal : {&Model::rowsAboutToBeMoved, &Model::columnsAboutToBeMoved}) {
    connect(model_, signal, this, &ModelLink::HoldTyped);
  }
  for (const auto signal : {&Model::rowsMoved, &Model::columnsMoved}) {
    connect(model_, signal, this, [this] { Moved(false); });
  }
  connect(model_, &Model::layoutAboutToBeChanged, this, &ModelLink::HoldTyped);
  connect(model_, &Model::layoutChanged, this, [this] { Moved(false); });
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
  if (index.model() != model_ || !index.isValid() || index.column() < first_col_) {
    return std::nullopt;
  }
  return CellPlace{static_cast<quint32>(index.row()),
                   static_cast<quint32>(index.column() - first_col_)};
}

int ModelLink::First(CellAxis axis) const {
  return axis == CellAxis::kCols ? first_col_ : 0;
}

quint32 ModelLink::Count(CellAxis axis) const {
  if (!model_) return 0;
  const bool rows = axis == CellAxis::kRows;
  return CountFrom(First(axis), rows ? model_->rowCount() : model_->columnCount());
}

Extended ModelLink::Value(quint32 row, quint32 col) {
  // An index that does not exist has no data, which is null.
  const QVariant item = Index(row, col).data(Qt::EditRole);
  if (has_texts_ && HoldsText(item)) return texts_.ElementOf(item.toString());
  const Extended number = NumberOf(item, owner_.locale()).value_or(kNull);
  return std::isnan(number) ? kNull : number;
}

bool ModelLink::Store(quint32 row, quint32 col, Extended value) {
  const QModelIndex index = Index(row, col);
  const QScopedValueRollback stores(stores_, true);
  if (!index.isValid()) return false;
  const QVariant held = index.data(Qt::EditRole);
  const auto text = texts_.TextOf(value);
  return model_->setData(index,
                         text ? ItemOfText(*text, held, owner_.locale()) : ItemOf(value, held));
}

bool ModelLink::IsReadOnly(quint32 row, quint32 col) const {
  return model_ && !Index(row, col).flags().testFlag(Qt::ItemIsEditable);
}

QString ModelLink::Heading(CellAxis axis, quint32 line) const {
  const bool rows = axis == CellAxis::kRows;
  return model_
      ->headerData(First(axis) + static_cast<int>(line), rows ? Qt::Vertical : Qt::Horizontal)
      .toString();
}

std::optional<quint32> ModelLink::InsertLines(CellAxis axis, quint32 first, quint32 count,
                                              Extended value) {
  if (quint64{Count(axis)} + static_cast<quint32>(First(axis)) + count > kMaxCount) return {};
  const int at = First(axis) + static_cast<int>(first);
  const int lines = static_cast<int>(count);
  const bool rows = axis == CellAxis::kRows;
  const QPointer<QAbstractItemModel> asked = model_;
  // A model that only tells of a reset has them where they were asked for.
  Insertion told{.first = at, .count = lines};
  {
    const QScopedValueRollback insertion(insertion_, &told);
    if (!(rows ? asked->insertRows(at, lines) : asked->insertColumns(at, lines))) return {};
  }
  // A handler may have set another model.
  if (!asked || asked != model_) return {};
  if (told.signals_seen > 1 || told.count != lines || told.first < First(axis)) return {};
  const auto place = static_cast<quint32>(told.first - First(axis));
  return std::isnan(value) ? place : FillLines(axis, place, count, value);
}

std::optional<quint32> ModelLink::FillLines(CellAxis axis, quint32 first, quint32 count,
                                            Extended value) {
  const bool rows = axis == CellAxis::kRows;
  const quint32 across = Count(rows ? CellAxis::kCols : CellAxis::kRows);
  // A model that sorts may move each line as soon as it has its value.
  std::vector<Element> elements;
  for (quint32 line = first; line < first + count; ++line) {
    for (quint32 i = 0; i < across; ++i) {
      elements.emplace_back(*this, rows ? CellPlace{line, i} : CellPlace{i, line});
    }
  }
  for (const Element& element : elements) {
    if (const auto place = element.Place()) Store(place->row, place->col, value);
  }
  if (elements.empty()) return first;
  quint32 least = kMaxCount;
  quint32 most = 0;
  for (const Element& element : elements) {
    const auto place = element.Place();
    if (!place) return {};
    least = std::min(least, rows ? place->row : place->col);
    most = std::max(most, rows ? place->row : place->col);
  }
  return most - least == count - 1 ? std::optional(least) : std::nullopt;
}

void ModelLink::Inserted(int first, int last) {
  if (insertion_ == nullptr) return;
  insertion_->first = first;
  insertion_->count = last - first + 1;
  ++insertion_->signals_seen;
}

bool ModelLink::RemoveLines(CellAxis axis, quint32 first, quint32 count) {
  const int at = First(axis) + static_cast<int>(first);
  const int lines = static_cast<int>(count);
  return axis == CellAxis::kRows ? model_->removeRows(at, lines) : model_->removeColumns(at, lines);
}

bool ModelLink::SetCount(CellAxis axis, quint32 count) {
  const quint32 now = Count(axis);
  if (count > now) {
    InsertLines(axis, now, count - now, kNull);
    return Count(axis) == count;
  }
  return count == now || RemoveLines(axis, count, now - count);
}

void ModelLink::FetchRow(quint32 row) {
  if (!model_ || row < Count(CellAxis::kRows) || !model_->canFetchMore({})) return;
  // Later, since the model may be telling of a change, which the next one must not overtake.
  if (!std::exchange(fetches_, true)) {
    QMetaObject::invokeMethod(
        this,
        [this] {
          fetches_ = false;
          if (model_) model_->fetchMore({});
        },
        Qt::QueuedConnection);
  }
}

ElementPlaces ModelLink::Follow(const ElementChanges& changes) const {
  if (!model_) return {};
  std::vector<Element> elements;
  elements.reserve(changes.size());
  for (const auto& [row, col, value] : changes) elements.emplace_back(*this, CellPlace{row, col});
  return [elements = std::move(elements)](std::size_t change) { return elements[change].Place(); };
}

void ModelLink::HoldTyped() {
  typed_.reset();
  const std::optional<CellPlace> place = owner_.typed();
  if (place && Index(place->row, place->col).isValid()) typed_.emplace(*this, *place);
}

void ModelLink::Changed(const QModelIndex& first, const QModelIndex& last,
                        const QList<int>& roles) const {
  if (first.parent().isValid() || last.column() < first_col_) return;
  if (!roles.isEmpty() && !roles.contains(Qt::EditRole) && !roles.contains(Qt::DisplayRole)) return;
  const int first_col = std::max(first.column(), first_col_);
  owner_.changed({static_cast<quint32>(first.row()), CountFrom(first.row(), last.row() + 1),
                  static_cast<quint32>(first_col - first_col_),
                  CountFrom(first_col, last.column() + 1)});
}

void ModelLink::Moved(bool is_append, const ReplacedCols& cols) {
  ModelMove move;
  move.cols = cols;
  move.is_append = is_append;
  move.is_stored = stores_;
  if (typed_) {
    const std::optional<CellPlace> place = typed_->Place();
    move.typed_is_gone = !place;
    if (place != typed_->Origin()) move.typed_to = place;
    typed_.reset();
  }
  owner_.moved(move);
}

}  // namespace qorvex::inline QorvexControls::detail
