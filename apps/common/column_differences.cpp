#include "apps/common/column_differences.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <utility>

namespace qorvex::apps {

namespace {

__extension__ typedef __int128 Int128;

// The number in units of 10^-decimals, which are no larger than its own.
std::optional<Int128> UnitsOf(DecimalNumber number, std::int64_t decimals) {
  if (number.integer == 0) return 0;
  Int128 units = number.integer;
  for (std::int64_t i = -number.exponent; i < decimals; ++i)
    if (__builtin_mul_overflow(units, 10, &units)) return std::nullopt;
  return units;
}

// Calls subtrahend(i) for the number to take from x[i].
template <class Subtrahend>
std::optional<ColumnNumbers> Differences(const ColumnNumbers& x, std::int64_t decimals,
                                         Subtrahend subtrahend) {
  if (!x.AreDecimal()) return std::nullopt;
  decimals = std::max<std::int64_t>(decimals, x.Decimals());
  ColumnNumbers differences;
  for (std::size_t i = 0; i < x.size(); ++i) {
    const std::optional<Int128> a = UnitsOf({x.Integers()[i], -x.Decimals()}, decimals);
    const std::optional<Int128> b = UnitsOf(subtrahend(i), decimals);
    Int128 difference = 0;
    if (!a || !b || __builtin_sub_overflow(*a, *b, &difference)) return std::nullopt;
    const auto integer = static_cast<std::int64_t>(difference);
    if (integer != difference || !differences.TryAppend({integer, -decimals})) return std::nullopt;
  }
  return differences;
}

}  // namespace

std::optional<ColumnNumbers> ExactDifferences(const ColumnNumbers& x, DecimalNumber constant) {
  return Differences(x, -constant.exponent, [constant](std::size_t) { return constant; });
}

std::optional<ColumnNumbers> ExactDifferences(const ColumnNumbers& x, const ColumnNumbers& y) {
  if (!y.AreDecimal()) return std::nullopt;
  return Differences(x, y.Decimals(), [&y](std::size_t i) {
    return DecimalNumber{y.Integers()[i], -y.Decimals()};
  });
}

ColumnNumbers DifferencesOf(const ColumnNumbers& x, const ColumnNumbers& y) {
  if (std::optional<ColumnNumbers> exact = ExactDifferences(x, y)) return *std::move(exact);
  const TQorFloatVector x_values = x.Values();
  const TQorFloatVector y_values = y.Values();
  ColumnNumbers differences;
  for (std::size_t i = 0; i < x.size(); ++i) differences.Append(x_values[i] - y_values[i]);
  return differences;
}

}  // namespace qorvex::apps
