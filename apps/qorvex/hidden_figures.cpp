#include "apps/qorvex/hidden_figures.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "qorvex/base/text.h"

namespace qorvex::cli {

namespace {

bool ShowsADigit(Extended figure, int decimals) {
  return Float2EStr(figure, decimals).find_first_of("123456789") != std::string::npos;
}

}  // namespace

HiddenFigures HiddenBy(const DescriptiveResults& results, std::size_t n, int decimals) {
  constexpr Extended epsilon = std::numeric_limits<Extended>::epsilon();
  const Extended mean_square = results.sum_sq / static_cast<Extended>(n);
  const Extended noise = static_cast<Extended>(n) * epsilon * std::sqrt(mean_square);
  const Extended noise_of_squares = static_cast<Extended>(n) * epsilon * mean_square;

  HiddenFigures hidden;
  const auto look_at = [&](Extended figure, Extended negligible) {
    const Extended size = std::fabs(figure);
    if (!(size > negligible) || ShowsADigit(size, decimals)) return;
    ++hidden.count;
    const int enough = 3 - static_cast<int>(std::floor(std::log10(size)));
    hidden.enough_decimals = std::max(hidden.enough_decimals, enough);
  };
  const Extended mode = results.mode_exists ? results.mode : 0;
  for (const Extended figure :
       {results.sum, results.mean, results.std_dev, results.median, mode, results.minimum,
        results.maximum, results.maximum - results.minimum, results.quartile_1st,
        results.quartile_3rd, results.inter_quartile_range}) {
    look_at(figure, noise);
  }
  for (const Extended figure : {results.sum_sq, results.variance})
    look_at(figure, noise_of_squares);
  return hidden;
}

}  // namespace qorvex::cli
