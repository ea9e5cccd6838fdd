#include "apps/common/probability_text.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <numbers>

#include "qorvex/base/text.h"

namespace qorvex::apps {

namespace {

std::string Scientific(Extended value, int decimals) {
  std::string text(static_cast<std::size_t>(decimals) + 16, '\0');
  const auto done = std::to_chars(text.data(), text.data() + text.size(), value,
                                  std::chars_format::scientific, decimals);
  text.resize(static_cast<std::size_t>(done.ptr - text.data()));
  return text;
}

std::string FromLogarithm(Extended log_p, std::optional<int> decimals) {
  const Extended logarithm = log_p / std::numbers::ln10_v<Extended>;
  Extended exponent = std::floor(logarithm);
  // The last bits of a logarithm of ten thousand weigh as much as four decimals of the number.
  const int known = std::max(0, 17 - static_cast<int>(std::log10(-log_p)));
  const int places = std::min(decimals.value_or(known), known);
  std::string digits = Float2EStr(std::pow(Extended{10}, logarithm - exponent), places);
  if (digits.starts_with("10")) {
    digits = Float2EStr(1, places);
    ++exponent;
  }
  return digits + 'e' + Float2EStr(exponent, 0);
}

}  // namespace

std::string ProbabilityText(Extended p, Extended log_p, std::optional<int> decimals) {
  const bool below_range = p < std::numeric_limits<Extended>::min() && std::isfinite(log_p);
  if (below_range) return FromLogarithm(log_p, decimals);
  if (!decimals) return Float2Str(p);
  const bool below_reach = p > 0 && p < Str2Float("1e-" + Int2EStr(*decimals));
  return below_reach ? Scientific(p, *decimals) : Float2EStr(p, *decimals);
}

}  // namespace qorvex::apps
