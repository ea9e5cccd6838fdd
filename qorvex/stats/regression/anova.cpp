#include "qorvex/stats/regression/anova.h"

#include <algorithm>
#include <map>

#include "qorvex/base/errors.h"
#include "qorvex/base/exact/rational.h"
#include "qorvex/stats/exact/exact_sample.h"
#include "qorvex/stats/regression/detail/figures.h"

namespace qorvex {

using exact::Dyadic;
using exact::Rational;

namespace {

// A group: of decimal data as the integers.
struct Group {
  ExactSample<2> sample;
  int decimals = 0;

  // Over a power of ten.
  [[nodiscard]] Rational PowerSum(int k) const {
    return sample.PowerSum(k) * Rational::PowerOfTen(-k * decimals);
  }
};

// The numerator for a denominator that is a multiple of the fraction's.
Dyadic NumeratorOver(const Dyadic& denominator, const Rational& fraction) {
  const Dyadic& divisor = fraction.Denominator();
  return fraction.Numerator() * Dyadic(denominator.Mantissa() / divisor.Mantissa(),
                                       denominator.Exponent() - divisor.Exponent());
}

OneWayAnovaTable TableOf(const std::vector<Group>& groups) {
  if (groups.size() < 2) RaiseMathError(rsValue2);
  for (const Group& group : groups) {
    if (group.sample.Count() == 0) RaiseMathError(rsVectorIsEmpty);
  }
  Dyadic unit = 1;
  for (const Group& group : groups) unit = std::max(unit, group.PowerSum(1).Denominator());
  // Fractions have few denominators if groups of one size are taken together.
  std::map<std::uint64_t, Dyadic> squares_of_sums;
  std::uint64_t count = 0;
  Dyadic sum;
  Dyadic sum_of_squares;
  for (const Group& group : groups) {
    const Dyadic group_sum = NumeratorOver(unit, group.PowerSum(1));
    count += group.sample.Count();
    sum += group_sum;
    sum_of_squares += NumeratorOver(unit * unit, group.PowerSum(2));
    squares_of_sums[group.sample.Count()] += group_sum * group_sum;
  }
  Rational of_groups;
  for (const auto& [size, squares] : squares_of_sums) of_groups += Rational(squares, size);

  const Rational common(sum * sum, count);
  const Rational between = (of_groups - common) / (unit * unit);
  const Rational within = (sum_of_squares - of_groups) / (unit * unit);
  const Rational total = (sum_of_squares - common) / (unit * unit);
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
    groups.push_back({.sample = {}, .decimals = values.Decimals()});
    groups.back().sample.Add(members);
  }
  return TableOf(groups);
}

}  // namespace

OneWayAnovaTable OneWayAnova(const Columns& columns) {
  std::vector<Group> groups;
  std::vector<Extended> buffer;
  for (const ColumnView& column : columns) {
    groups.push_back({.sample = {}, .decimals = column.Decimals()});
    groups.back().sample.Add(column.Read(0, column.Size(), buffer));
  }
  return TableOf(groups);
}

OneWayAnovaTable OneWayAnova(VectorView<ExactSample<2>> samples) {
  std::vector<Group> groups;
  for (const ExactSample<2>& sample : samples) groups.push_back({.sample = sample});
  return TableOf(groups);
}

OneWayAnovaTable OneWayAnovaByLabel(VectorView<std::string> labels, const ColumnView& values) {
  return ByLabel(labels, values);
}

OneWayAnovaTable OneWayAnovaByLabel(VectorView<std::int64_t> labels, const ColumnView& values) {
  return ByLabel(labels, values);
}

}  // namespace qorvex
