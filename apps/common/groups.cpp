#include "apps/common/groups.h"

#include <algorithm>
#include <unordered_map>
#include <utility>

namespace qorvex::apps {

namespace {

Groups Divide(const Groups& groups, const Labels& labels) {
  // A group and the code of a label make a key. Keys in ascending order keep that of the groups.
  const auto key_of = [&](std::size_t row) {
    return std::uint64_t{groups.of_row[row]} << 32 | labels.Codes()[row];
  };
  std::unordered_map<std::uint64_t, std::uint32_t> part_of;
  for (std::size_t row = 0; row < labels.size(); ++row) part_of.try_emplace(key_of(row));
  std::vector<std::uint64_t> keys;
  for (const auto& part : part_of) keys.push_back(part.first);
  std::ranges::sort(keys);
  Groups parts;
  for (const std::uint64_t key : keys) {
    part_of[key] = static_cast<std::uint32_t>(parts.labels.size());
    parts.labels.push_back(groups.labels[key >> 32]);
    parts.labels.back().push_back(labels.Texts()[key & 0xFFFF'FFFF]);
  }
  parts.of_row.reserve(labels.size());
  for (std::size_t row = 0; row < labels.size(); ++row)
    parts.of_row.push_back(part_of.find(key_of(row))->second);
  return parts;
}

// Calls the function with each row that has a number, and its index among the numbers.
template <class Function>
void ForEachNumber(const TableColumn& column, Function function) {
  auto gap = column.gaps.begin();
  for (std::size_t row = 0, i = 0; i < column.numbers.size(); ++row) {
    if (gap != column.gaps.end() && *gap == row) {
      ++gap;
    } else {
      function(row, i++);
    }
  }
}

}  // namespace

Groups GroupsOf(std::span<const TableColumn> label_columns) {
  const Labels& first = label_columns[0].labels;
  Groups groups;
  groups.of_row.assign(first.Codes().begin(), first.Codes().end());
  for (const std::string& text : first.Texts()) groups.labels.push_back({text});
  for (const TableColumn& column : label_columns.subspan(1)) groups = Divide(groups, column.labels);
  return groups;
}

std::vector<GroupNumbers> Split(const TableColumn& column, const Groups& groups) {
  std::vector<std::size_t> sizes(groups.labels.size());
  for (const std::uint32_t group : groups.of_row) ++sizes[group];
  std::vector<GroupNumbers> parts(sizes.size());
  for (const std::size_t row : column.gaps) ++parts[groups.of_row[row]].missing;
  for (std::size_t i = 0; i < parts.size(); ++i)
    parts[i].numbers.Reserve(sizes[i] - parts[i].missing);
  if (column.numbers.AreDecimal()) {
    const TQorInt64Vector& integers = column.numbers.Integers();
    const std::int64_t exponent = -column.numbers.Decimals();
    ForEachNumber(column, [&](std::size_t row, std::size_t i) {
      // An integer that fits into the column fits into a part of it.
      static_cast<void>(parts[groups.of_row[row]].numbers.TryAppend({integers[i], exponent}));
    });
  } else {
    const TQorFloatVector values = column.numbers.Values();
    ForEachNumber(column, [&](std::size_t row, std::size_t i) {
      parts[groups.of_row[row]].numbers.Append(values[i]);
    });
  }
  return parts;
}

}  // namespace qorvex::apps
