#include "apps/qorvex-gallery/plot/axis_ticks.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "qorvex/base/elementary/functions.h"

namespace qorvex::gallery {

namespace {

QString Label(double value, double largest, const RoundStep& step, const QLocale& locale) {
  constexpr double plain_below = 1e7;
  constexpr int plain_decimals = 5;
  if (largest < plain_below && step.exponent >= -plain_decimals) {
    QLocale plain = locale;
    // No group separators in years.
    if (largest < 10000) plain.setNumberOptions(QLocale::OmitGroupSeparator);
    return plain.toString(value, 'f', std::max(0, -step.exponent));
  }
  if (value == 0) return locale.toString(0);
  const int digits = static_cast<int>(std::floor(Log10(std::fabs(value)))) - step.exponent;
  return locale.toString(value, 'e', std::max(0, digits));
}

}  // namespace

AxisTicks TicksBetween(double low, double high, int most, const QLocale& locale) {
  AxisTicks ticks;
  if (!std::isfinite(low) || !std::isfinite(high) || !(low < high)) return ticks;
  const Extended range = static_cast<Extended>(high) - low;
  const double largest = std::max(std::fabs(low), std::fabs(high));
  constexpr Extended distinct = 64 * std::numeric_limits<double>::epsilon();
  if (range < distinct * largest) return ticks;

  const RoundStep step = RoundStep::AtLeast(range / static_cast<Extended>(std::max(2, most)));
  // Compared as doubles, because the ends may be round numbers that were rounded to doubles.
  for (Extended i = std::floor(low / step.Times(1));; ++i) {
    const auto value = static_cast<double>(step.Times(i));
    if (value < low) continue;
    if (value > high) break;
    ticks.values.push_back(value);
    ticks.labels.append(Label(value, largest, step, locale));
  }
  return ticks;
}

}  // namespace qorvex::gallery
