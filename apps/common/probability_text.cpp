#include "apps/common/probability_text.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <numbers>

#include "qorvex/base/elementary/functions.h"
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
  if (log_p < -1e17L) return "exp(" + Float2Str(log_p) + ')';
  const Extended logarithm = log_p / std::numbers::ln10_v<Extended>;
  Extended exponent = std::floor(logarithm);
  // The last bits of a logarithm of ten thousand weigh as much as four decimals of the number.
  const int known = std::max(0, 17 - static_cast<int>(Log10(-log_p)));
  const int places = std::min(decimals.value_or(known), known);
  std::string digits = Float2EStr(Pow(Extended{10}, logarithm - exponent), places);
  if (digits.starts_with("10")) {
    digits = Float2EStr(1, places);
    ++exponent;
  }
  return digits + 'e' + Float2EStr(exponent, 0);
}

bool IsBelowRange(Extended p, Extended log_p) {
  return p < std::numeric_limits<Extended>::min() && std::isfinite(log_p);
}

}  // namespace

std::string ProbabilityText(Extended p, Extended log_p, std::optional<int> decimals) {
  if (IsBelowRange(p, log_p)) return FromLogarithm(log_p, decimals);
  if (!decimals) return Float2Str(p);
  const bool below_reach = p > 0 && p < Str2Float("1e-" + Int2EStr(*decimals));
  return below_reach ? Scientific(p, *decimals) : Float2EStr(p, *decimals);
}

std::string RoundedProbabilityText(Extended p, Extended log_p) {
  constexpr int digits = 4;
  if (IsBelowRange(p, log_p)) return FromLogarithm(log_p, digits - 1);
  if (!(p > 0)) return Float2Str(p);
  if (p < 1e-4L) return Scientific(p, digits - 1);
  const int leading_zeros = -static_cast<int>(std::floor(Log10(p))) - 1;
  return Float2EStr(p, digits + std::max(leading_zeros, -1));
}

}  // namespace qorvex::apps
