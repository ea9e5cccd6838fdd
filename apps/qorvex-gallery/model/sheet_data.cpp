#include "apps/qorvex-gallery/model/sheet_data.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <stdexcept>
#include <utility>

#include "apps/common/cells.h"
#include "qorvex/base/text.h"

namespace qorvex::gallery {

namespace {

constexpr std::size_t kLongestText = (std::size_t{1} << 38) - 1;
constexpr std::size_t kLongestCell = (std::size_t{1} << 26) - 1;

template <class Vector>
auto At(Vector& vector, std::size_t index) {
  return vector.begin() + static_cast<std::ptrdiff_t>(index);
}

}  // namespace

SheetData::SheetData(apps::TableFormat format, const std::vector<std::string>& names)
    : format_(std::move(format)) {
  for (const std::string& name : names) columns_.push_back({.name = name});
}

void SheetData::SetFormat(const apps::TableFormat& format) {
  const bool counts_alike = format.decimal_sign == format_.decimal_sign &&
                            format.missing.Words() == format_.missing.Words();
  format_ = format;
  if (counts_alike) return;
  for (Column& column : columns_) {
    column.numbers = column.texts = 0;
    for (const CellText cell : column.cells) Count(column, KindOf(TextAt(cell)), true);
  }
}

bool SheetData::HasNames() const {
  return std::ranges::any_of(columns_, [](const Column& column) { return !column.name.empty(); });
}

void SheetData::SetName(std::size_t column, std::string name) {
  if (std::exchange(columns_[column].name, std::move(name)) != columns_[column].name) SetChanged();
}

std::string_view SheetData::TextAt(CellText cell) const {
  return std::string_view(text_).substr(cell.Offset(), cell.Size());
}

std::string_view SheetData::Cell(std::size_t row, std::size_t column) const {
  return TextAt(columns_[column].cells[row]);
}

SheetData::CellText SheetData::Keep(std::string_view text) {
  if (text.empty()) return {};
  if (text.size() > kLongestCell || text.size() > kLongestText - text_.size())
    throw std::length_error("The text is too long for a sheet");
  const CellText cell(text_.size(), text.size());
  text_ += text;
  return cell;
}

void SheetData::Append(Column& column, std::string_view text) {
  column.cells.push_back(Keep(text));
  Count(column, KindOf(text), true);
}

void SheetData::SetCell(std::size_t row, std::size_t column, std::string_view text) {
  Column& in = columns_[column];
  CellText& cell = in.cells[row];
  const auto changed = originals_.find(cell.Offset());
  const CellText original = changed == originals_.end() ? cell : changed->second;
  const bool is_original = IsSame(text, TextAt(original));
  Count(in, KindOf(TextAt(cell)), false);
  if (changed != originals_.end()) originals_.erase(changed);
  if (is_original) {
    cell = original;
  } else {
    // Cells without text would otherwise share their place.
    text_ += '\0';
    cell = text.empty() ? CellText(text_.size() - 1, 0) : Keep(text);
    originals_.emplace(cell.Offset(), original);
  }
  Count(in, KindOf(TextAt(cell)), true);
}

bool SheetData::IsSame(std::string_view a, std::string_view b) const {
  if (a == b) return true;
  const auto x = NumberIn(a);
  const auto y = NumberIn(b);
  return x && y && *x == *y && std::signbit(*x) == std::signbit(*y);
}

CellKind SheetData::KindOf(std::string_view cell) const {
  if (cell.empty() || format_.missing.Contains(cell)) return CellKind::kMissing;
  return NumberIn(cell) ? CellKind::kNumber : CellKind::kText;
}

std::optional<Extended> SheetData::NumberIn(std::string_view cell) const {
  return apps::FindNumber(cell, format_.decimal_sign.value_or('.'));
}

std::string SheetData::TextOf(Extended number) const {
  if (std::isnan(number)) return {};
  std::string text = Float2Str(number);
  if (format_.decimal_sign == ',') std::ranges::replace(text, '.', ',');
  return text;
}

std::size_t* SheetData::Column::CountOf(CellKind kind) {
  return kind == CellKind::kNumber ? &numbers : kind == CellKind::kText ? &texts : nullptr;
}

void SheetData::Count(Column& column, CellKind kind, bool more) const {
  if (std::size_t* const count = column.CountOf(kind)) more ? ++*count : --*count;
}

bool SheetData::IsNumeric(std::size_t column) const {
  return columns_[column].numbers > 0 && columns_[column].texts == 0;
}

bool SheetData::IsMixed(std::size_t column) const {
  return columns_[column].numbers > 0 && columns_[column].texts > 0;
}

std::size_t SheetData::Missing(std::size_t column) const {
  return rows_ - columns_[column].numbers - columns_[column].texts;
}

void SheetData::ShrinkToFit() {
  text_.shrink_to_fit();
  for (Column& column : columns_) column.cells.shrink_to_fit();
}

void SheetData::PutRows(std::size_t row, std::size_t count, const std::vector<Column>& removed) {
  for (std::size_t i = 0; i < columns_.size(); ++i) {
    Column& column = columns_[i];
    if (i < removed.size()) {
      const std::vector<CellText>& cells = removed[i].cells;
      column.cells.insert(At(column.cells, row), cells.begin(), cells.end());
      for (const CellText cell : cells) Count(column, KindOf(TextAt(cell)), true);
    } else {
      column.cells.insert(At(column.cells, row), count, CellText());
    }
  }
  rows_ += count;
  SetChanged();
}

std::vector<SheetData::Column> SheetData::TakeRows(std::size_t row, std::size_t count) {
  std::vector<Column> removed;
  for (Column& column : columns_) {
    const auto first = At(column.cells, row);
    const auto last = At(column.cells, row + count);
    removed.push_back({.cells = {first, last}});
    column.cells.erase(first, last);
    for (const CellText cell : removed.back().cells) Count(column, KindOf(TextAt(cell)), false);
  }
  rows_ -= count;
  SetChanged();
  return removed;
}

void SheetData::InsertRows(std::size_t row, std::size_t count) {
  const bool appends = row == rows_;
  PutRows(row, count, {});
  Lines* const last = steps_.empty() ? nullptr : &steps_.back().lines;
  if (appends && last && last->are_rows && last->were_inserted &&
      last->first + last->count == row) {
    last->count += count;
  } else {
    steps_.push_back({.lines = {true, true, row, count}});
  }
}

void SheetData::RemoveRows(std::size_t row, std::size_t count) {
  steps_.push_back({{true, false, row, count}, TakeRows(row, count)});
}

void SheetData::InsertColumns(std::size_t column, std::size_t count) {
  columns_.insert(At(columns_, column), count, Column{.cells = std::vector(rows_, CellText())});
  steps_.push_back({.lines = {false, true, column, count}});
  SetChanged();
}

void SheetData::RemoveColumns(std::size_t column, std::size_t count) {
  const auto first = At(columns_, column);
  const auto last = At(columns_, column + count);
  steps_.push_back(
      {{false, false, column, count}, {std::move_iterator(first), std::move_iterator(last)}});
  columns_.erase(first, last);
  SetChanged();
}

std::optional<SheetData::Lines> SheetData::LastLines() const {
  return steps_.empty() ? std::nullopt : std::optional(steps_.back().lines);
}

void SheetData::UndoLines() {
  const Step step = std::move(steps_.back());
  steps_.pop_back();
  const auto& [are_rows, were_inserted, first, count] = step.lines;
  if (are_rows) {
    were_inserted ? static_cast<void>(TakeRows(first, count)) : PutRows(first, count, step.removed);
  } else if (were_inserted) {
    columns_.erase(At(columns_, first), At(columns_, first + count));
  } else {
    columns_.insert(At(columns_, first), step.removed.begin(), step.removed.end());
  }
  SetChanged();
}

void SheetData::SetSaved() {
  originals_.clear();
  rearranged_ = false;
}

}  // namespace qorvex::gallery
