#include "qorvex/stats/regression/anova.h"

#include <algorithm>
#include <map>

#include "qorvex/base/errors.h"
#include "qorvex/base/exact/rational.h"
#include "qorvex/stats/exact/exact_sample.h"
#include "qorvex/stats/regression/detail/figures.h"

namespace qorvex {

using exact::BigInteger;
using exact::Dyadic;
using exact::Rational;

namespace {

// A group: of decimal data the integers.
using Group = ExactSample<2>;

OneWayAnovaTable TableOf(const std::vector<Group>& groups, const std::vector<int>& decimals) {
  if (groups.size() < 2) RaiseMathError(rsValue2);
  for (const Group& group : groups) {
    if (group.Count() == 0) RaiseMathError(rsVectorIsEmpty);
  }
  // Fractions have few denominators if groups of one size are taken together.
  std::map<std::size_t, Dyadic> squares_of_sums;
  const int most = std::ranges::max(decimals);
  std::size_t count = 0;
  Dyadic sum;
  Dyadic sum_of_squares;
  for (std::size_t g = 0; g < groups.size(); ++g) {
    const Group& group = groups[g];
    const Dyadic scale(BigInteger::PowerOfTen(static_cast<unsigned>(most - decimals[g])));
    const Dyadic group_sum = group.PowerSum(1).Numerator() * scale;
    count += group.Count();
    sum += group_sum;
    sum_of_squares += group.PowerSum(2).Numerator() * scale * scale;
    squares_of_sums[group.Count()] += group_sum * group_sum;
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
  const AnovaRow within_row = regression::RowOf(within, within_df);
  return {.between = regression::TestOf(between, between_df, within, within_df),
          .within = within_row,
          .total = regression::RowOf(total, count - 1),
          .determination = regression::RoundRatio(between, total),
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
    groups.emplace_back().Add(members);
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
    sums.emplace_back().Add(members);
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
