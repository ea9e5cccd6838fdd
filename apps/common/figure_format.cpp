#include "apps/common/figure_format.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <numbers>

#include "qorvex/base/currency_text.h"
#include "qorvex/base/elementary/functions.h"
#include "qorvex/base/errors.h"
#include "qorvex/base/fitted_text.h"
#include "qorvex/base/text.h"

namespace qorvex::apps {

namespace {

constexpr std::string_view kDecimalDigits = "0123456789";

std::string ScientificText(Extended figure, int digits) {
  return FloatText(figure, {.trim = true, .format = nfScientific, .significant = digits});
}

// The decimals that show so many digits of a figure from 0.0001 to below 1e19.
int DecimalsFor(Extended size, int digits) {
  if (size >= 1) {
    const auto whole = static_cast<int>(Int2EStr(static_cast<std::uint64_t>(size)).size());
    return std::max(digits - whole, 0);
  }
  constexpr std::array<Extended, 3> leading_zeros{0.1L, 0.01L, 0.001L};
  return digits + static_cast<int>(std::ranges::count_if(
                      leading_zeros, [size](Extended power) { return size < power; }));
}

std::string SignificantText(Extended figure, int digits) {
  constexpr Extended least = 1e-4L;
  constexpr Extended beyond = 1e19L;
  const Extended size = std::fabs(figure);
  if (size > 0 && (size < least || size >= beyond)) return ScientificText(figure, digits);
  return StripTChStr(Float2EStr(figure, DecimalsFor(size, digits)), '0');
}

// From 2^63 on, numbers have no decimals and their digits could fill lines.
std::string FixedText(Extended figure, int decimals) {
  return FloatText(figure, {.decimals = decimals});
}

// With a blank between groups of three digits, before the point and, of more than four digits,
// behind it.
std::string WithGroups(const std::string& text) {
  const std::size_t begin = text.starts_with('-') ? 1 : 0;
  const std::size_t point = std::min(text.find_first_not_of(kDecimalDigits, begin), text.size());
  const bool has_decimals = point < text.size() && text[point] == '.';
  const std::size_t end =
      has_decimals ? std::min(text.find_first_not_of(kDecimalDigits, point + 1), text.size())
                   : point;
  constexpr std::size_t alone = 4;
  const bool groups_decimals = end - point > alone + 1;
  std::string grouped;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool before_point = i > begin && i < point && (point - i) % 3 == 0;
    const bool behind_point = groups_decimals && i > point + 1 && i < end && (i - point) % 3 == 1;
    if (before_point || behind_point) grouped += ' ';
    grouped += text[i];
  }
  return grouped;
}

// A probability below the range of the format, with at most that many digits.
std::string FromLogarithm(Extended log_p, int digits) {
  if (log_p < -1e17L) return "exp(" + Float2Str(log_p) + ')';
  const Extended logarithm = log_p / std::numbers::ln10_v<Extended>;
  Extended exponent = std::floor(logarithm);
  // The last bits of a logarithm of ten thousand weigh as much as four decimals of the number.
  const int known = std::max(0, 17 - static_cast<int>(Log10(-log_p)));
  const int places = std::min(digits - 1, known);
  std::string text = Float2EStr(Pow(Extended{10}, logarithm - exponent), places);
  if (text.starts_with("10")) {
    text = Float2EStr(1, places);
    ++exponent;
  }
  return text + 'e' + Float2EStr(exponent, 0);
}

}  // namespace

std::string FigureFormat::Text(Extended figure) const {
  if (std::isnan(figure)) return MessageText(rsNA);
  const std::string text = kind == Kind::kAllBits  ? Float2Str(figure)
                           : kind == Kind::kDigits ? SignificantText(figure, count)
                                                   : FixedText(figure, count);
  return grouped ? WithGroups(text) : text;
}

std::string FigureFormat::Text(const Probability& probability) const {
  const auto [p, log_p] = probability;
  constexpr int all_digits = std::numeric_limits<Extended>::max_digits10;
  if (p < std::numeric_limits<Extended>::min() && std::isfinite(log_p)) {
    return FromLogarithm(log_p, kind == Kind::kAllBits  ? all_digits
                                : kind == Kind::kDigits ? count
                                                        : count + 1);
  }
  if (kind == Kind::kDecimals && p > 0 && p < Str2Float("1e-" + Int2EStr(count)))
    return FigureFormat{Kind::kDigits, count + 1, grouped}.Text(p);
  return Text(p);
}

std::string FigureFormat::Text(std::uint64_t number) const {
  const std::string text = Int2EStr(number);
  return grouped ? WithGroups(text) : text;
}

std::string FigureFormat::Text(Currency amount) const {
  const std::string text = Currency2EStr(amount);
  return grouped ? WithGroups(text) : text;
}

FigureFormat FormatFor(int significant_digits) {
  constexpr int least = 7;
  return {.kind = FigureFormat::Kind::kDigits, .count = std::max(least, significant_digits + 1)};
}

int SignificantDigits(Extended figure) {
  std::string text = Float2Str(std::fabs(figure));
  text.resize(std::min(text.find('e'), text.size()));
  std::erase(text, '.');
  text.erase(0, std::min(text.find_first_not_of('0'), text.size()));
  return static_cast<int>(text.size());
}

int SignificantDigits(const ColumnNumbers& numbers) {
  if (numbers.empty()) return 0;
  if (numbers.AreDecimal()) return static_cast<int>(Int2EStr(numbers.LargestInteger()).size());
  // Some of them tell, at no cost that could be measured.
  constexpr std::size_t enough = 50;
  const std::size_t step = numbers.size() / enough + 1;
  return numbers.Visit([step](const auto& vector) {
    int digits = 0;
    for (std::size_t i = 0; i < vector.size(); i += step)
      digits = std::max(digits, SignificantDigits(static_cast<Extended>(vector[i])));
    return digits;
  });
}

}  // namespace qorvex::apps
