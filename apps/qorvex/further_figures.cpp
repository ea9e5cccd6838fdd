#include "apps/qorvex/further_figures.h"

#include <limits>
#include <optional>
#include <string>

#include "apps/common/means.h"
#include "apps/common/sample_figures.h"
#include "qorvex/base/text.h"

namespace qorvex::apps {

namespace {

constexpr Extended kNone = std::numeric_limits<Extended>::quiet_NaN();

// The standard deviation over the root of n, rounded once.
std::optional<Extended> StandardErrorOf(const ColumnNumbers& numbers) {
  if (numbers.size() < 2) return std::nullopt;
  const ExactSample<2> sums = ExactSumsOf<2>(numbers);
  const exact::Rational divisor = exact::Rational(sums.Count()) * exact::Rational(sums.Count() - 1);
  return (sums.ExactSumOfSquaredDeviations() / divisor).RoundRoot();
}

Extended MedianDeviationOf(const ColumnNumbers& sorted) {
  return sorted.ValueOf(
      sorted.Visit([](const auto& vector) { return MedianAbsoluteDeviation(vector); }));
}

std::vector<Figure> DecilesOf(const ColumnNumbers& sorted, const std::string& label) {
  std::vector<Figure> deciles;
  for (int i = 1; i <= 9; ++i) {
    const std::string number = Int2EStr(i);
    const Extended probability = static_cast<Extended>(i) / 10;
    deciles.push_back(
        {"decile_" + number, label + number + ':',
         sorted.empty() ? kNone : QuantileOf(sorted, probability, QuantileType::kClassic)});
  }
  return deciles;
}

// Only for figures of at least one number.
std::optional<Extended> ValueOf(const FigureName& figure, const ColumnNumbers& numbers,
                                const DescribeOptions& options) {
  if (figure.key == "standard_error") return StandardErrorOf(numbers);
  if (figure.key == "median_absolute_deviation") return MedianDeviationOf(numbers);
  if (figure.key == "trimmed_mean") return TrimmedMeanOf(numbers, options.trim.value);
  if (figure.key == "geometric_mean") return GeometricMeanOf(numbers);
  return HarmonicMeanOf(numbers);
}

}  // namespace

std::vector<Figure> FurtherFigures(const ColumnNumbers& numbers, const DescribeOptions& options) {
  std::vector<Figure> figures;
  for (const FigureName* const figure : options.figures) {
    if (figure->label.empty()) continue;
    if (figure->key == "deciles") {
      const std::vector<Figure> deciles = DecilesOf(numbers, figure->label);
      figures.insert(figures.end(), deciles.begin(), deciles.end());
    } else {
      const std::optional<Extended> value =
          numbers.empty() ? std::nullopt : ValueOf(*figure, numbers, options);
      figures.push_back({figure->key, figure->label, value.value_or(kNone)});
    }
  }
  return figures;
}

}  // namespace qorvex::apps
