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
         "--digits 4 shows all";
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

}  // namespace qorvex::apps
