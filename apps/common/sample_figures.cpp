#include "apps/common/sample_figures.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <future>
#include <span>
#include <type_traits>
#include <utility>
#include <vector>

#include "apps/common/hidden_figures.h"
#include "apps/common/input_error.h"
#include "qorvex/base/comparisons.h"

namespace qorvex::apps {

namespace {

template <int kPowerSums, class T>
ExactSample<kPowerSums> SumsOfPart(std::span<const T> part, int decimals) {
  ExactSample<kPowerSums> sums;
  if constexpr (std::is_same_v<T, std::int64_t>) {
    sums.AddScaled(part, decimals);
  } else {
    sums.Add(part);
  }
  return sums;
}

template <class Vector>
std::optional<Extended> ModeOf(const Vector& sorted) {
  std::optional<Extended> mode;
  std::ptrdiff_t longest = sorted.size() == 1 ? 0 : 1;
  for (auto run = sorted.begin(); run != sorted.end();) {
    const auto end = std::find_if(run, sorted.end(), [run](auto x) { return x != *run; });
    if (end - run > longest) {
      mode = static_cast<Extended>(*run);
      longest = end - run;
    } else if (end - run == longest) {
      mode.reset();
    }
    run = end;
  }
  return mode;
}

// Near to 1 rounding errors of the standard deviation are below the tolerance of the classic
// routines, unless there are very many values, and differences between values are above it.
TQorFloatVector BroughtNearToOne(const TQorFloatVector& values, const DescriptiveResults& results) {
  const int exponent = std::ilogb(std::max(std::fabs(results.minimum), std::fabs(results.maximum)));
  auto scaled = TQorFloatVector::ForOverwrite(values.size());
  std::ranges::transform(values, scaled.begin(),
                         [exponent](Extended x) { return std::scalbn(x, -exponent); });
  return scaled;
}

}  // namespace

std::vector<ReportFigure> SampleFigures::Lines(bool population) const {
  std::vector<ReportFigure> lines = DescriptiveFigures(results, count, population, has_spread);
  // The difference of the extremes before they are rounded.
  std::ranges::find(lines, rsDSRange, &ReportFigure::label)->value = range;
  return lines;
}

void RequireFinite(const std::vector<ReportFigure>& lines, const std::string& input,
                   const std::string& column) {
  for (const ReportFigure& line : lines) {
    if (!line.value || std::isfinite(*line.value)) continue;
    throw InputError(InputFault::kOutOfRange, input,
                     column +
                         ": the values are too large; their statistics are beyond the range of "
                         "extended precision");
  }
}

template <int kPowerSums>
ExactSample<kPowerSums> ExactSumsOf(const ColumnNumbers& numbers, unsigned threads) {
  return numbers.Visit([&](const auto& vector) {
    const std::span all(vector.data(), vector.size());
    constexpr std::size_t least_per_thread = 10'000;
    const std::size_t parts =
        std::clamp<std::size_t>(all.size() / least_per_thread, 1, std::max(threads, 1U));
    const auto sums_of_part = [&](std::size_t i) {
      const std::size_t length = all.size() / parts;
      const std::size_t begin = length * i;
      return SumsOfPart<kPowerSums>(all.subspan(begin, i + 1 < parts ? length : all.size() - begin),
                                    numbers.Decimals());
    };
    std::vector<std::future<ExactSample<kPowerSums>>> others;
    for (std::size_t i = 1; i < parts; ++i)
      others.push_back(std::async(std::launch::async, sums_of_part, i));
    ExactSample<kPowerSums> sums = sums_of_part(0);
    for (auto& other : others) sums.Merge(other.get());
    return sums;
  });
}

template ExactSample<2> ExactSumsOf<2>(const ColumnNumbers&, unsigned);
template ExactSample<4> ExactSumsOf<4>(const ColumnNumbers&, unsigned);

Extended QuantileOf(const ColumnNumbers& sorted, Extended probability, QuantileType type) {
  return sorted.ValueOf(
      sorted.Visit([&](const auto& vector) { return GetQuantile(vector, probability, type); }));
}

OrderFigures OrderFiguresOf(const ColumnNumbers& sorted) {
  return sorted.Visit([](const auto& vector) {
    const auto quantile = [&](Extended probability) {
      return GetQuantile(vector, probability, QuantileType::kClassic);
    };
    return OrderFigures{.minimum = static_cast<Extended>(vector[0]),
                        .maximum = static_cast<Extended>(vector[vector.size() - 1]),
                        .first_quartile = quantile(0.25L),
                        .median = quantile(0.5L),
                        .third_quartile = quantile(0.75L),
                        .mode = ModeOf(vector)};
  });
}

OrderFigures ExtremesOf(const ColumnNumbers& numbers) {
  return numbers.Visit([](const auto& vector) {
    const auto [minimum, maximum] = std::ranges::minmax_element(vector);
    return OrderFigures{.minimum = static_cast<Extended>(*minimum),
                        .maximum = static_cast<Extended>(*maximum)};
  });
}

template <int kPowerSums>
SampleFigures ExactFigures(const ExactSample<kPowerSums>& sums, const OrderFigures& order,
                           const ColumnNumbers& numbers, bool population) {
  SampleFigures figures{.count = sums.Count(), .has_spread = order.minimum != order.maximum};
  DescriptiveResults& r = figures.results;
  r.sum = sums.Sum();
  r.sum_sq = sums.SumOfSquares();
  r.mean = sums.Mean();
  if (population) {
    r.variance = sums.PopulationVariance();
    r.std_dev = sums.PopulationStdDev();
  } else if (figures.count > 1) {
    r.variance = sums.SampleVariance();
    r.std_dev = sums.SampleStdDev();
  }
  if constexpr (kPowerSums == 4) {
    if (figures.has_spread && figures.count > 2)
      r.skew = population ? sums.PopulationSkewness() : sums.SampleSkewness();
    if (figures.has_spread && figures.count > 3)
      r.kurtosis = population ? sums.PopulationKurtosis() : sums.SampleKurtosis();
  }

  r.minimum = numbers.ValueOf(order.minimum);
  r.maximum = numbers.ValueOf(order.maximum);
  figures.range = numbers.ValueOf(order.maximum - order.minimum);
  r.median = numbers.ValueOf(order.median);
  r.mode_exists = order.mode.has_value();
  r.mode = numbers.ValueOf(order.mode.value_or(0));
  r.quartile_1st = numbers.ValueOf(order.first_quartile);
  r.quartile_3rd = numbers.ValueOf(order.third_quartile);
  r.inter_quartile_range = numbers.ValueOf(order.third_quartile - order.first_quartile);
  return figures;
}

template SampleFigures ExactFigures(const ExactSample<2>&, const OrderFigures&,
                                    const ColumnNumbers&, bool);
template SampleFigures ExactFigures(const ExactSample<4>&, const OrderFigures&,
                                    const ColumnNumbers&, bool);

SampleFigures ClassicFigures(TQorFloatVector values, bool population) {
  DescriptiveStats statistics;
  statistics.SetPopulation(population);
  statistics.SetValues(std::move(values));
  SampleFigures figures{.count = statistics.NoOfValues(), .results = statistics.Results()};
  DescriptiveResults& results = figures.results;
  figures.range = results.maximum - results.minimum;
  figures.has_spread = FloatIsNotZero(results.std_dev);
  if (!figures.has_spread && results.std_dev > MeanNoise(results, figures.count)) {
    statistics.SetValues(BroughtNearToOne(statistics.Values(), results));
    figures.has_spread = FloatIsNotZero(statistics.Results().std_dev);
    results.skew = statistics.Results().skew;
    results.kurtosis = statistics.Results().kurtosis;
  }
  return figures;
}

}  // namespace qorvex::apps
