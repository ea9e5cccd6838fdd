#include "apps/common/weighted_numbers.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <limits>
#include <utility>

#include "qorvex/stats/exact/exact_sum.h"
#include "qorvex/stats/exact/weighted_quantile.h"

namespace qorvex::apps {

namespace {

// The number with the greatest weight, if there is only one.
std::optional<Extended> ModeOf(const TQorFloatVector& sorted, const TQorFloatVector& weights) {
  std::optional<Extended> mode;
  // One occurrence makes a mode only where it is the only one.
  Extended greatest = sorted.size() == 1 ? 0 : 1;
  for (std::size_t i = 0; i < sorted.size();) {
    const Extended number = sorted[i];
    Extended weight = 0;
    for (; i < sorted.size() && sorted[i] == number; ++i) weight += weights[i];
    if (weight > greatest) {
      mode = number;
      greatest = weight;
    } else if (weight == greatest) {
      mode.reset();
    }
  }
  return mode;
}

}  // namespace

std::optional<WeightFault> FaultOf(std::span<const Extended> weights, WeightKind kind) {
  const bool are_counts = kind == WeightKind::kFrequency;
  const Extended most = are_counts ? 0x1p62L : std::numeric_limits<Extended>::max();
  Extended sum = 0;
  for (const Extended weight : weights) {
    if (weight < 0) return WeightFault{weight, "is negative"};
    if (are_counts && weight != std::floor(weight))
      return WeightFault{weight, "is not a whole number"};
    sum += weight;
    if (sum > most) return WeightFault{weight, "makes the sum too large"};
  }
  return std::nullopt;
}

WeightedNumbers::WeightedNumbers(const ColumnNumbers& numbers, std::span<const Extended> weights)
    : column_(numbers) {
  std::vector<std::pair<Extended, Extended>> pairs;
  numbers.Visit([&](const auto& vector) {
    for (std::size_t i = 0; i < vector.size(); ++i)
      if (weights[i] > 0) pairs.emplace_back(static_cast<Extended>(vector[i]), weights[i]);
  });
  std::ranges::sort(pairs);
  numbers_ = TQorFloatVector(pairs.size());
  weights_ = TQorFloatVector(pairs.size());
  std::ranges::transform(pairs, numbers_.begin(), [](const auto& pair) { return pair.first; });
  std::ranges::transform(pairs, weights_.begin(), [](const auto& pair) { return pair.second; });
}

Extended WeightedNumbers::Quantile(Extended probability, QuantileType type) const {
  return column_.ValueOf(WeightedQuantile(numbers_, weights_, probability, type));
}

OrderFigures WeightedNumbers::Order(QuantileType type) const {
  const auto quantile = [&](Extended probability) {
    return WeightedQuantile(numbers_, weights_, probability, type);
  };
  return {.minimum = numbers_[0],
          .maximum = numbers_[numbers_.size() - 1],
          .first_quartile = quantile(0.25L),
          .median = quantile(0.5L),
          .third_quartile = quantile(0.75L),
          .mode = ModeOf(numbers_, weights_)};
}

// Doubles the sample for each binary digit of the weights, and adds the numbers whose weight has
// this digit.
template <int kPowerSums>
ExactSample<kPowerSums> WeightedNumbers::FrequencySums() const {
  const auto greatest = static_cast<std::uint64_t>(*std::ranges::max_element(weights_));
  ExactSample<kPowerSums> sums;
  for (int digit = static_cast<int>(std::bit_width(greatest)) - 1; digit >= 0; --digit) {
    const ExactSample<kPowerSums> half = sums;
    sums.Merge(half);
    TQorInt64Vector integers;
    TQorFloatVector values;
    for (std::size_t i = 0; i < numbers_.size(); ++i) {
      if ((static_cast<std::uint64_t>(weights_[i]) >> digit & 1) == 0) continue;
      if (column_.AreDecimal()) {
        integers.Append(static_cast<std::int64_t>(numbers_[i]));
      } else {
        values.Append(numbers_[i]);
      }
    }
    sums.AddScaled(integers, column_.Decimals());
    sums.Add(values);
  }
  return sums;
}

template ExactSample<2> WeightedNumbers::FrequencySums<2>() const;
template ExactSample<4> WeightedNumbers::FrequencySums<4>() const;

SampleFigures WeightedNumbers::FrequencyFigures(bool population) const {
  return ExactFigures(FrequencySums<4>(), Order(QuantileType::kClassic), column_, population);
}

std::vector<ReportFigure> WeightedNumbers::ReliabilityLines(bool population) const {
  const OrderFigures order = Order(QuantileType::kAveragedInverse);
  const WeightKind kind = population ? WeightKind::kPopulation : WeightKind::kReliability;
  const auto line = [this](ReportTextId label, Extended units) {
    return ReportFigure{label, column_.ValueOf(units)};
  };
  std::vector<ReportFigure> lines = {
      {rsDSNoOfValues, static_cast<Extended>(numbers_.size())},
      line(rsDSMaximum, order.maximum),
      line(rsDSMinimum, order.minimum),
      line(rsDSRange, order.maximum - order.minimum),
      line(rsDSMean, WeightedMean(numbers_, weights_)),
      line(rsDSMedian, order.median),
  };
  if (population || numbers_.size() > 1) {
    const Extended variance = WeightedVariance(numbers_, weights_, kind);
    lines.push_back(line(rsDSVariance, column_.ValueOf(variance)));
    lines.push_back(line(rsDSStdDev, WeightedStdDev(numbers_, weights_, kind)));
  } else {
    lines.push_back({rsDSNEVariance});
    lines.push_back({rsDSNEStdDev});
  }
  lines.push_back(line(rsDSQtr1, order.first_quartile));
  lines.push_back(line(rsDSQtr3, order.third_quartile));
  lines.push_back(line(rsDSIQR, order.third_quartile - order.first_quartile));
  return lines;
}

Extended WeightedNumbers::SumOfWeights() const {
  ExactSum sum;
  sum.Add(weights_);
  return sum.Round();
}

}  // namespace qorvex::apps
