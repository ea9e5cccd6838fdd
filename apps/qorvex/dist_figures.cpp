#include "apps/qorvex/dist_figures.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>

#include "qorvex/base/errors.h"

namespace qorvex::apps {

namespace {

template <class Routine>
Routine Existing(Routine routine) {
  if (routine != nullptr) return routine;
  throw CLI::ValidationError("--classic", "there is no such routine in QorvexStatistics");
}

}  // namespace

DistFigures::DistFigures(const Family& family, const std::vector<Extended>& parameters,
                         DistOptions options)
    : family_(family),
      parameters_(parameters),
      options_(options),
      distribution_(options.classic ? nullptr : family.make(parameters)) {}

Extended DistFigures::Classic(Routine routine, std::initializer_list<Extended> numbers) const {
  std::vector<Extended> all = parameters_;
  all.insert(all.end(), numbers);
  const Extended figure = Existing(routine)(all);
  if (std::isnan(figure)) throw EOverflow();
  return figure;
}

// Rounding can raise a classic sum above 1, and so 1 minus it below 0.
Extended DistFigures::ClassicProbability(Routine routine,
                                         std::initializer_list<Extended> numbers) const {
  return std::clamp<Extended>(Classic(routine, numbers), 0, 1);
}

// At an end of the support and beyond it, a logarithm or a density can be infinite.
Extended DistFigures::InRange(Extended figure, Extended point) const {
  if (std::isnan(figure)) throw EOverflow();
  if (!std::isinf(figure) || family_.is_discrete) return figure;
  const auto [least, greatest] =
      distribution_ ? distribution_->Support() : family_.make(parameters_)->Support();
  if (point > least && point < greatest) throw EOverflow();
  return figure;
}

Extended DistFigures::LowerTail(Extended point) const {
  return InRange(options_.log ? LogLower(*distribution_, point) : Lower(*distribution_, point),
                 point);
}

Extended DistFigures::UpperTail(Extended point) const {
  return InRange(options_.log ? LogUpper(*distribution_, point) : Upper(*distribution_, point),
                 point);
}

Extended DistFigures::Less(Extended point) const {
  if (options_.classic) return ClassicProbability(family_.classic.less, {point});
  return LowerTail(point - Step());
}

Extended DistFigures::Greater(Extended point) const {
  if (options_.classic) return ClassicProbability(family_.classic.greater, {point});
  return UpperTail(point);
}

Extended DistFigures::AtMost(Extended point) const {
  return LowerTail(point);
}

Extended DistFigures::AtLeast(Extended point) const {
  return UpperTail(point - Step());
}

Extended DistFigures::Between(Extended a, Extended b) const {
  if (options_.classic) return ClassicProbability(family_.classic.between, {a, b});
  return InRange(distribution_->ProbabilityBetween(a, b), a);
}

Extended DistFigures::Density(Extended point) const {
  return InRange(
      options_.classic ? Classic(family_.classic.density, {point}) : distribution_->Pdf(point),
      point);
}

Extended DistFigures::Quantile(Extended probability) const {
  const ClassicRoutines& classic = family_.classic;
  const Extended quantile =
      options_.classic
          ? Classic(options_.upper ? classic.upper_quantile : classic.quantile, {probability})
          : distribution_->Quantile(options_.upper ? Tail::kUpper : Tail::kLower, probability);
  if (!std::isfinite(quantile)) throw EOverflow();
  return quantile;
}

DensityTable<Extended> DistFigures::ClassicTable(Extended first, Extended last,
                                                 Extended steps) const {
  std::vector<Extended> numbers = parameters_;
  numbers.insert(numbers.end(), {first, last});
  DensityTable<Extended> table;
  Existing(family_.classic.table)(numbers, static_cast<std::int32_t>(steps), table.points,
                                  table.densities);
  for (std::size_t i = 0; i < table.points.size(); ++i)
    static_cast<void>(InRange(table.densities[i], table.points[i]));
  return table;
}

}  // namespace qorvex::apps
