// What the steps of a history do with its table.

#include <algorithm>
#include <limits>
#include <new>
#include <utility>

#include "qorvex/base_controls/detail/same_element.h"
#include "qorvex/controls/panel/detail/change_history.h"

namespace qorvex::inline QorvexControls::detail {

namespace {

// No table has such a row.
constexpr CellPlace kNowhere{std::numeric_limits<quint32>::max(), 0};

}  // namespace

// Lines to insert again, and what they had beside the value of all.
struct ChangeHistory::RemovedLines {
  explicit RemovedLines(const LineInsertion& to_insert) : lines(to_insert) {}

  LineInsertion lines;
  ElementChanges elements;
  KeptLineData data;
};

ChangeHistory::Part ChangeHistory::Exchanging(const std::shared_ptr<ElementChanges>& changes) {
  return [this, changes](bool) {
    // A model may refuse a value that it had itself.
    if (!Exchange(changes)) Forget();
    return BytesOf(*changes);
  };
}

ChangeHistory::Part ChangeHistory::Moving(const LineInsertion& lines, bool undo_removes) {
  return [this, undo_removes, removed = std::make_shared<RemovedLines>(lines)](bool undo) {
    undo == undo_removes ? TakeOut(*removed) : PutBack(*removed);
    return BytesOf(removed->elements) + removed->data.bytes;
  };
}

void ChangeHistory::TakeOut(RemovedLines& removed) {
  const auto& [axis, first, count, value] = removed.lines;
  owner_.commit_lines(axis, first, std::numeric_limits<quint32>::max());
  removed.elements = ElementsOf(removed.lines);
  removed.data = table_.KeepLineData(axis, first, count);
  table_.RemoveLines(axis, first, count);
}

void ChangeHistory::PutBack(RemovedLines& removed) {
  Insert(removed.lines);
  for (const auto& [row, col, value] : removed.elements) {
    if (Has(row, col)) table_.Store(row, col, value);
  }
  if (removed.data.bring_back) removed.data.bring_back();
  removed.elements = {};
  removed.data = {};
}

std::optional<quint32> ChangeHistory::Insert(const LineInsertion& lines) {
  const bool rows = lines.axis == CellAxis::kRows;
  owner_.commit_lines(lines.axis, lines.first, rows ? table_.RowCount() : table_.ColCount());
  return table_.InsertLines(lines.axis, lines.first, lines.count, lines.value);
}

// The changes go to lines that were to be at `first` and are now at the place.
void ChangeHistory::MoveChanges(ElementChanges& changes, const LineInsertion& lines,
                                quint32 place) {
  if (place == lines.first) return;
  for (ElementChange& change : changes) {
    quint32& line = lines.axis == CellAxis::kRows ? change.row : change.col;
    if (line >= lines.first) {
      line = line - lines.first + place;
    } else if (line >= place) {
      line += lines.count;
    }
  }
}

ElementChanges ChangeHistory::ElementsOf(const LineInsertion& lines) const {
  const bool rows = lines.axis == CellAxis::kRows;
  const quint32 end = lines.first + lines.count;
  const quint32 row_end = rows ? std::min(end, table_.RowCount()) : table_.RowCount();
  const quint32 col_end = rows ? table_.ColCount() : std::min(end, table_.ColCount());
  ElementChanges elements;
  for (quint32 row = rows ? lines.first : 0; row < row_end; ++row) {
    for (quint32 col = rows ? 0 : lines.first; col < col_end; ++col) {
      const Extended value = table_.Value(row, col);
      // Others are there as soon as the lines are.
      if (!QorvexBaseControls::detail::SameElement(value, lines.value)) {
        elements.push_back({row, col, value});
      }
    }
  }
  // They may be kept for long.
  elements.shrink_to_fit();
  return elements;
}

bool ChangeHistory::Exchange(const std::shared_ptr<ElementChanges>& changes) {
  const ElementPlaces follow = owner_.follow(*changes);
  const auto place_of = [&](std::size_t i) {
    const ElementChange& change = (*changes)[i];
    return follow ? follow(i) : CellPlace{change.row, change.col};
  };
  const auto exchange = [&](std::size_t i) {
    const std::optional<CellPlace> place = place_of(i);
    if (!place || !Has(place->row, place->col)) return true;
    const Extended before = table_.Value(place->row, place->col);
    if (!table_.Store(place->row, place->col, (*changes)[i].value)) return false;
    (*changes)[i].value = before;
    return true;
  };
  std::size_t done = 0;
  const auto take_back = [&] {
    while (done > 0) exchange(--done);
  };
  try {
    while (done < changes->size() && exchange(done)) ++done;
  } catch (const std::bad_alloc&) {
    take_back();
    throw;
  }
  const bool complete = done == changes->size();
  if (!complete) take_back();
  for (std::size_t i = 0; follow && i < changes->size(); ++i) {
    const CellPlace place = place_of(i).value_or(kNowhere);
    (*changes)[i].row = place.row;
    (*changes)[i].col = place.col;
  }
  if (complete) events_.push_back(changes);
  return complete;
}

bool ChangeHistory::Has(quint32 row, quint32 col) const {
  return row < table_.RowCount() && col < table_.ColCount();
}

}  // namespace qorvex::inline QorvexControls::detail
