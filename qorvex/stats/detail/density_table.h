#pragma once

// Tables of densities over an interval, for all families.

#include <cstddef>
#include <cstdint>
#include <utility>

#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexStatistics::detail {

/// The arguments that all tabulations share.
struct DensityTable {
  Extended x_low;
  Extended x_high;
  std::int32_t n;
  TQorFloatVector& x_values;
  TQorFloatVector& y_values;
};

/// Releases both vectors, then fills them with n + 1 points and their densities. prepare() checks
/// the parameters of the family and returns the density as a function of the point. If it or a
/// density raises an error, both vectors stay empty.
template <class Prepare>
void FillDensityTable(const DensityTable& table, Prepare prepare) {
  table.x_values = TQorFloatVector();
  table.y_values = TQorFloatVector();
  const auto density = prepare();
  const Extended step =
      table.n >= 1 ? (table.x_high - table.x_low) / static_cast<Extended>(table.n) : 0;
  const std::size_t length = table.n >= 0 ? static_cast<std::size_t>(table.n) + 1 : 0;
  auto x_values = TQorFloatVector::ForOverwrite(length);
  auto y_values = TQorFloatVector::ForOverwrite(length);
  for (std::size_t i = 0; i < length; ++i) {
    const Extended x = static_cast<Extended>(i) * step + table.x_low;
    x_values[i] = x;
    y_values[i] = density(x);
  }
  table.x_values = std::move(x_values);
  table.y_values = std::move(y_values);
}

}  // namespace qorvex::inline QorvexStatistics::detail
