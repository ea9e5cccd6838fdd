#include "apps/common/means.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <numbers>
#include <span>
#include <type_traits>

#include "qorvex/base/elementary/functions.h"
#include "qorvex/stats/exact/exact_sample.h"
#include "qorvex/stats/exact/exact_sum.h"
#include "qorvex/stats/quantiles.h"

namespace qorvex::apps {

namespace {

bool ArePositive(const ColumnNumbers& numbers) {
  return !numbers.empty() && numbers.Visit([](const auto& vector) {
    return std::ranges::all_of(vector, [](auto x) { return x > 0; });
  });
}

}  // namespace

std::optional<Extended> GeometricMeanOf(const ColumnNumbers& numbers) {
  if (!ArePositive(numbers)) return std::nullopt;
  // Powers of two are added apart, so that the logarithms, and their errors, are small.
  const TQorFloatVector values = numbers.Values();
  auto logarithms = TQorFloatVector::ForOverwrite(values.size());
  std::int64_t exponents = 0;
  std::ranges::transform(values, logarithms.begin(), [&exponents](Extended x) {
    const int exponent = std::ilogb(x);
    exponents += exponent;
    return std::scalbn(x, -exponent);
  });
  Log(logarithms, logarithms);
  const auto count = static_cast<std::int64_t>(values.size());
  ExactSum sum;
  sum.Add(logarithms);
  sum.AddProduct(static_cast<Extended>(exponents % count), std::numbers::ln2_v<Extended>);
  return std::scalbn(Exp(sum.Round() / static_cast<Extended>(count)),
                     static_cast<int>(exponents / count));
}

std::optional<Extended> HarmonicMeanOf(const ColumnNumbers& numbers) {
  if (!ArePositive(numbers)) return std::nullopt;
  const TQorFloatVector values = numbers.Values();
  // In units of the minimum, so that no reciprocal overflows.
  const Extended minimum = *std::ranges::min_element(values);
  auto reciprocals = TQorFloatVector::ForOverwrite(values.size());
  std::ranges::transform(values, reciprocals.begin(),
                         [minimum](Extended x) { return minimum / x; });
  ExactSum sum;
  sum.Add(reciprocals);
  return minimum * (static_cast<Extended>(values.size()) / sum.Round());
}

Extended TrimmedMeanOf(const ColumnNumbers& sorted, Extended share) {
  const std::size_t count = sorted.size();
  const auto cut = static_cast<std::size_t>(static_cast<Extended>(count) * share);
  return sorted.Visit([&](const auto& vector) {
    if (2 * cut >= count) return sorted.ValueOf(GetQuantile(vector, 0.5L, QuantileType::kClassic));
    const auto middle = std::span(vector.data(), count).subspan(cut, count - 2 * cut);
    ExactSample<2> sums;
    if constexpr (std::is_same_v<decltype(middle), const std::span<const std::int64_t>>) {
      sums.AddScaled(middle, sorted.Decimals());
    } else {
      sums.Add(middle);
    }
    return sums.Mean();
  });
}

}  // namespace qorvex::apps
