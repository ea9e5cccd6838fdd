#include "apps/common/class_table.h"

#include <cmath>
#include <optional>

#include "apps/common/round_step.h"
#include "apps/common/sample_figures.h"
#include "qorvex/base/elementary/functions.h"
#include "qorvex/base/text.h"
#include "qorvex/stats/class_frequencies.h"

namespace qorvex::apps {

namespace {

void Append(ColumnNumbers& numbers, const std::string& text) {
  const std::optional<DecimalNumber> decimal = ParseDecimal(text);
  if (!decimal || !numbers.TryAppend(*decimal)) numbers.Append(Str2Float(text));
}

}  // namespace

ClassBounds::ClassBounds(const std::string& lower, const std::string& width) {
  Append(numbers_, lower);
  Append(numbers_, width);
}

ClassBounds::ClassBounds(const ColumnNumbers& numbers, const std::string& width) {
  ColumnNumbers step;
  Append(step, width);
  const Extended minimum = numbers.ValueOf(ExtremesOf(numbers).minimum);
  const Extended steps = std::floor(minimum / step.Values()[0]);
  // A multiple of an integer, unless it is too large for one.
  std::int64_t units = 0;
  const bool fits =
      step.AreDecimal() && std::fabs(steps) < 0x1p62L &&
      !__builtin_mul_overflow(static_cast<std::int64_t>(steps), step.Integers()[0], &units) &&
      numbers_.TryAppend({units, -step.Decimals()});
  if (!fits) numbers_.Append(steps * step.Values()[0]);
  Append(numbers_, width);
}

Extended ClassBounds::operator[](std::size_t index) const {
  return numbers_.Visit([&](const auto& vector) {
    return numbers_.ValueOf(static_cast<Extended>(vector[0]) +
                            static_cast<Extended>(index) * static_cast<Extended>(vector[1]));
  });
}

Extended ClassBounds::Width() const {
  return numbers_.Values()[1];
}

std::string UsualWidth(const ColumnNumbers& numbers) {
  const OrderFigures order = ExtremesOf(numbers);
  const Extended range = numbers.ValueOf(order.maximum - order.minimum);
  if (range == 0) return "1";
  const Extended classes = 1 + Log2(static_cast<Extended>(numbers.size()));
  const RoundStep step = RoundStep::AtLeast(range / classes);
  return Int2EStr(step.digit) + 'e' + Int2EStr(step.exponent);
}

TQorLWordVector CountsIn(const ClassBounds& bounds, const ColumnNumbers& numbers) {
  const Extended maximum = numbers.ValueOf(ExtremesOf(numbers).maximum);
  // A number next below a bound may count as the bound, and needs one more class.
  const Extended last = std::floor((maximum - bounds[0]) / bounds.Width()) + 1;
  OutsideClasses outside;
  TQorLWordVector counts = ClassFrequencies(numbers.Values(), bounds[0], bounds.Width(),
                                            static_cast<std::uint32_t>(last + 1), outside);
  if (counts[counts.size() - 1] == 0) counts.SetLength(counts.size() - 1);
  return counts;
}

}  // namespace qorvex::apps
