#include "apps/common/hidden_figures.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "qorvex/base/text.h"

namespace qorvex::apps {

namespace {

bool ShowsADigit(Extended figure, int decimals) {
  return Float2EStr(figure, decimals).find_first_of("123456789") != std::string::npos;
}

}  // namespace

HiddenFigures HiddenBy(const DescriptiveResults& results, std::size_t n, int decimals) {
  constexpr Extended epsilon = std::numeric_limits<Extended>::epsilon();
  const auto count = static_cast<Extended>(n);
  // The error that rounding in the sum can cause in the mean and in deviations from it.
  const Extended noise = count * epsilon * std::sqrt(results.sum_sq / count);

  HiddenFigures hidden;
  const auto look_at = [&](Extended figure, Extended negligible) {
    const Extended size = std::fabs(figure);
    if (!(size > negligible) || ShowsADigit(size, decimals)) return;
    ++hidden.count;
    const int enough = 3 - static_cast<int>(std::floor(std::log10(size)));
    hidden.enough_decimals = std::max(hidden.enough_decimals, enough);
  };
  look_at(results.sum, count * noise);
  look_at(results.mean, noise);
  look_at(results.std_dev, noise);
  look_at(results.variance, noise * noise);
  // These are not computed from sums in which terms could cancel.
  const Extended mode = results.mode_exists ? results.mode : 0;
  for (const Extended figure :
       {results.sum_sq, results.median, mode, results.minimum, results.maximum,
        results.maximum - results.minimum, results.quartile_1st, results.quartile_3rd,
        results.inter_quartile_range}) {
    look_at(figure, 0);
  }
  return hidden;
}

}  // namespace qorvex::apps
