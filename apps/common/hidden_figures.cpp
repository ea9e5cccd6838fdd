#include "apps/common/hidden_figures.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "apps/common/cells.h"
#include "qorvex/base/elementary/functions.h"
#include "qorvex/base/text.h"

namespace qorvex::apps {

namespace {

bool ShowsADigit(Extended figure, int decimals) {
  return Float2EStr(figure, decimals).find_first_of("123456789") != std::string::npos;
}

}  // namespace

std::string HiddenFigures::Remark(int decimals, int most_decimals) const {
  const std::string enough =
      enough_decimals <= most_decimals ? "--decimals " + Int2EStr(enough_decimals) + " or " : "";
  return Cardinal(count, "figure") + (count == 1 ? " is" : " are") + " too small for " +
         Cardinal(static_cast<std::size_t>(decimals), "decimal") + "; " + enough +
         "--json shows all";
}

void UnderflowedFigures::Check(Extended figure, Extended witness) {
  if (figure == 0 && std::fabs(witness) > 0) ++count;
}

void UnderflowedFigures::CheckLines(std::span<const ReportFigure> lines) {
  const Extended none = std::numeric_limits<Extended>::quiet_NaN();
  const auto value = [lines, none](ReportTextId label) {
    const auto line = std::ranges::find(lines, label, &ReportFigure::label);
    return line == lines.end() ? none : line->value.value_or(none);
  };
  Check(value(rsDSSumSQ), std::max(std::fabs(value(rsDSMinimum)), std::fabs(value(rsDSMaximum))));
  Check(value(rsDSVariance), value(rsDSRange));
  Check(value(rsDSStdDev), value(rsDSRange));
}

std::string UnderflowedFigures::Remark() const {
  return Cardinal(count, "figure") + (count == 1 ? " is" : " are") +
         " below the range of the format (shown as 0)";
}

bool HasUnit(const ReportFigure& figure) {
  return figure.value && figure.label != rsDSSkew && figure.label != rsDSKurtosis;
}

HiddenFigures HiddenAmong(std::span<const Extended> figures, int decimals) {
  HiddenFigures hidden;
  for (const Extended figure : figures) {
    const Extended size = std::fabs(figure);
    if (!(size > 0) || ShowsADigit(size, decimals)) continue;
    ++hidden.count;
    const int enough = 3 - static_cast<int>(std::floor(Log10(size)));
    hidden.enough_decimals = std::max(hidden.enough_decimals, enough);
  }
  return hidden;
}

Extended MeanNoise(const DescriptiveResults& results, std::size_t n) {
  constexpr Extended epsilon = std::numeric_limits<Extended>::epsilon();
  const auto count = static_cast<Extended>(n);
  return count * epsilon * std::sqrt(results.sum_sq / count);
}

HiddenFigures HiddenBy(const DescriptiveResults& results, std::size_t n, int decimals) {
  const Extended noise = MeanNoise(results, n);
  const auto unless_noise = [](Extended figure, Extended negligible) {
    return std::fabs(figure) > negligible ? figure : 0;
  };
  const Extended figures[] = {
      unless_noise(results.sum, static_cast<Extended>(n) * noise),
      unless_noise(results.mean, noise), unless_noise(results.std_dev, noise),
      unless_noise(results.variance, noise * noise),
      // These are not computed from sums in which terms could cancel.
      results.sum_sq, results.median, results.mode_exists ? results.mode : 0, results.minimum,
      results.maximum, results.maximum - results.minimum, results.quartile_1st,
      results.quartile_3rd, results.inter_quartile_range};
  return HiddenAmong(figures, decimals);
}

}  // namespace qorvex::apps
