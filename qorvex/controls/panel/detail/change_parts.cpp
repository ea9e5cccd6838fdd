// What the steps of a history do with its table.

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

ChangeHistory::Part ChangeHistory::Exchanging(const std::shared_ptr<ElementChanges>& changes) {
  return [this, changes](bool) {
    // A model may refuse a value that it had itself.
    if (!Exchange(changes)) Forget();
  };
}

ChangeHistory::Part ChangeHistory::Insertion(const LineInsertion& lines) {
  return [this, lines](bool undo) {
    if (undo) {
      table_.RemoveLines(lines.axis, lines.first, lines.count);
    } else {
      table_.InsertLines(lines.axis, lines.first, lines.count, lines.value);
    }
  };
}

ChangeHistory::Part ChangeHistory::Removal(CellAxis axis, quint32 first, quint32 count,
                                           const std::shared_ptr<const ElementChanges>& elements) {
  const auto keep = table_.KeepLineData(axis, first, count);
  return [=, this](bool undo) {
    if (!undo) {
      table_.RemoveLines(axis, first, count);
      return;
    }
    table_.InsertLines(axis, first, count, 0);
    for (const auto& [row, col, value] : *elements) {
      if (Has(row, col)) table_.Store(row, col, value);
    }
    if (keep) keep();
  };
}

ElementChanges ChangeHistory::ElementsOf(CellAxis axis, quint32 first, quint32 count) const {
  const bool rows = axis == CellAxis::kRows;
  const quint32 row_end = rows ? first + count : table_.RowCount();
  const quint32 col_end = rows ? table_.ColCount() : first + count;
  ElementChanges elements;
  for (quint32 row = rows ? first : 0; row < row_end; ++row) {
    for (quint32 col = rows ? 0 : first; col < col_end; ++col) {
      const Extended value = table_.Value(row, col);
      // Lines are inserted with zeros.
      if (!QorvexBaseControls::detail::SameElement(value, 0)) elements.push_back({row, col, value});
    }
  }
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
