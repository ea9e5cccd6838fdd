#include "qorvex/stats/regression/anova.h"

#include <algorithm>
#include <map>

#include "qorvex/base/errors.h"
#include "qorvex/base/exact/rational.h"
#include "qorvex/stats/exact/exact_sum.h"
#include "qorvex/stats/regression/detail/figures.h"

namespace qorvex {

using exact::BigInteger;
using exact::Dyadic;
using exact::Rational;

namespace {

// The sums over a group, of the integers if it has decimal data.
struct Group {
  std::size_t count = 0;
  ExactSum sum;
  ExactSum sum_of_squares;
};

OneWayAnovaTable TableOf(const std::vector<Group>& groups, const std::vector<int>& decimals) {
  if (groups.size() < 2) RaiseMathError(rsValue2);
  for (const Group& group : groups) {
    if (group.count == 0) RaiseMathError(rsVectorIsEmpty);
  }
  // Fractions have few denominators if groups of one size are taken together.
  std::map<std::size_t, Dyadic> squares_of_sums;
  const int most = std::ranges::max(decimals);
  std::size_t count = 0;
  Dyadic sum;
  Dyadic sum_of_squares;
  for (std::size_t g = 0; g < groups.size(); ++g) {
    const Group& group = groups[g];
    if (!group.sum.IsFinite()) throw EInvalidOp();
    const Dyadic scale(BigInteger::PowerOfTen(static_cast<unsigned>(most - decimals[g])));
    const Dyadic group_sum = group.sum.Value() * scale;
    count += group.count;
    sum += group_sum;
    sum_of_squares += group.sum_of_squares.Value() * scale * scale;
    squares_of_sums[group.count] += group_sum * group_sum;
  }
  Rational of_groups;
  for (const auto& [size, squares] : squares_of_sums) of_groups += Rational(squares, size);

  const Rational unit = Rational::PowerOfTen(-2 * most);
  const Rational common(sum * sum, count);
  const Rational between = (of_groups - common) * unit;
  const Rational within = (sum_of_squares - of_groups) * unit;
  const Rational total = (sum_of_squares - common) * unit;
  const std::size_t between_df = groups.size() - 1;
  const std::size_t within_df = count - groups.size();
  const AnovaRow within_row = detail::RowOf(within, within_df);
  return {.between = detail::TestOf(between, between_df, within, within_df),
          .within = within_row,
          .total = detail::RowOf(total, count - 1),
          .determination = detail::RoundRatio(between, total),
          .residual_std_dev =
              within_df == 0 ? within_row.mean_square : (within / within_df).RoundRoot()};
}

template <class Label>
OneWayAnovaTable ByLabel(VectorView<Label> labels, const ColumnView& values) {
  if (labels.size() != values.Size()) RaiseMathError(rsSameDimensions);
  std::vector<Extended> buffer;
  const std::span<const Extended> elements = values.Read(0, values.Size(), buffer);
  std::map<Label, std::vector<Extended>> by_label;
  for (std::size_t i = 0; i < labels.size(); ++i) by_label[labels[i]].push_back(elements[i]);
  std::vector<Group> groups;
  for (const auto& [label, members] : by_label) {
    Group& group = groups.emplace_back();
    group.count = members.size();
    group.sum.Add(members);
    group.sum_of_squares.AddSquare(members);
  }
  return TableOf(groups, std::vector<int>(groups.size(), values.Decimals()));
}

}  // namespace

OneWayAnovaTable OneWayAnova(const Columns& groups) {
  std::vector<Group> sums;
  std::vector<int> decimals;
  std::vector<Extended> buffer;
  for (const ColumnView& column : groups) {
    const VectorView<Extended> members = column.Read(0, column.Size(), buffer);
    Group& group = sums.emplace_back();
    group.count = members.size();
    group.sum.Add(members);
    group.sum_of_squares.AddSquare(members);
    decimals.push_back(column.Decimals());
  }
  return TableOf(sums, decimals);
}

OneWayAnovaTable OneWayAnovaByLabel(VectorView<std::string> labels, const ColumnView& values) {
  return ByLabel(labels, values);
}

OneWayAnovaTable OneWayAnovaByLabel(VectorView<std::int64_t> labels, const ColumnView& values) {
  return ByLabel(labels, values);
}

}  // namespace qorvex
