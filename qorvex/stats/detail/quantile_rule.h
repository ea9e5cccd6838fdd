#pragma once

// What quantiles of plain and of weighted values share.

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>

#include "qorvex/base/errors.h"
#include "qorvex/base/exact/dyadic.h"
#include "qorvex/stats/quantiles.h"

namespace qorvex::inline QorvexStatistics::detail {

inline void RequireQuantile(Extended p, QuantileType type) {
  if (!(p >= 0 && p <= 1)) RaiseMathError(rsValue01Inc);
  if (type < QuantileType::k1 || type > QuantileType::k9) RaiseMathError(rsInvalidValue);
}

/// The nearest multiple of 1/2 if the value is no more than 4 units in the last place from it,
/// otherwise the value.
inline Extended NearHalf(Extended value) {
  const Extended half = std::rint(2 * value) / 2;
  const Extended tolerance = 4 * std::numeric_limits<Extended>::epsilon() * value;
  return std::fabs(value - half) <= tolerance ? half : value;
}

/// The one-based position of a quantile among n elements, as QuantileType describes it, before the
/// types 1 to 3 round it.
inline Extended QuantilePosition(Extended n, Extended p, QuantileType type) {
  // (p (factor n + shift) + offset) / divisor, so that only the product and the sum are rounded.
  struct Rule {
    Extended factor, shift, offset, divisor;
  };
  static constexpr Rule kRules[] = {{1, 0, 0, 1},  {1, 0, 0, 1}, {1, 0, 0, 1},
                                    {1, 0, 0, 1},  {2, 0, 1, 2}, {1, 1, 0, 1},
                                    {1, -1, 1, 1}, {3, 1, 1, 3}, {8, 2, 3, 8}};
  const Rule& rule = kRules[static_cast<std::size_t>(type) - 1];
  return NearHalf((p * (rule.factor * n + rule.shift) + rule.offset) / rule.divisor);
}

/// a + fraction (b - a), rounded once.
inline Extended InterpolateExactly(Extended a, Extended b, Extended fraction) {
  if (fraction == 0 || a == b) return a;
  if (!std::isfinite(a) || !std::isfinite(b)) return (1 - fraction) * a + fraction * b;
  const exact::Dyadic first(a);
  return (first + exact::Dyadic(fraction) * (exact::Dyadic(b) - first)).Round();
}

/// The quantile of n sorted elements, of which element(k) is the one with the one-based number k.
template <class ElementAt>
[[nodiscard]] Extended QuantileOf(std::uint64_t n, Extended p, QuantileType type,
                                  ElementAt element) {
  const auto count = static_cast<Extended>(n);
  Extended position = QuantilePosition(count, p, type);
  if (type == QuantileType::k3) {
    position = std::rint(position);
  } else if (type == QuantileType::k2 && position == std::floor(position)) {
    position += 0.5L;
  } else if (type <= QuantileType::k2) {
    position = std::ceil(position);
  }
  position = std::clamp<Extended>(position, 1, count);
  const Extended below = std::floor(position);
  const auto k = static_cast<std::uint64_t>(below);
  const Extended fraction = position - below;
  return fraction == 0 ? element(k) : InterpolateExactly(element(k), element(k + 1), fraction);
}

}  // namespace qorvex::inline QorvexStatistics::detail
