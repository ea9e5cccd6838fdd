#include "qorvex/base_controls/detail/text_elements.h"

#include <cmath>
#include <cstring>
#include <limits>

namespace qorvex::inline QorvexBaseControls::detail {

namespace {

// The bits of the mantissa behind the two that make a quiet NaN.
constexpr quint64 kCarried = (quint64{1} << 62) - 1;

}  // namespace

quint64 NumberCarriedBy(Extended element) {
  if (!std::isnan(element)) return 0;
  quint64 mantissa = 0;
  std::memcpy(&mantissa, &element, sizeof mantissa);
  return mantissa & kCarried;
}

Extended TextElements::ElementOf(const QString& text) {
  auto element = std::numeric_limits<Extended>::quiet_NaN();
  if (text.isEmpty()) return element;
  quint64& number = numbers_[text];
  if (number == 0) {
    texts_.append(text);
    number = static_cast<quint64>(texts_.size());
  }
  quint64 mantissa = 0;
  std::memcpy(&mantissa, &element, sizeof mantissa);
  mantissa = (mantissa & ~kCarried) | number;
  std::memcpy(&element, &mantissa, sizeof mantissa);
  return element;
}

std::optional<QString> TextElements::TextOf(Extended element) const {
  const quint64 number = NumberCarriedBy(element);
  if (number == 0 || number > static_cast<quint64>(texts_.size())) return std::nullopt;
  return texts_[static_cast<qsizetype>(number) - 1];
}

void TextElements::Clear() {
  texts_.clear();
  numbers_.clear();
}

}  // namespace qorvex::inline QorvexBaseControls::detail
