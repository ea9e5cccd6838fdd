#pragma once

/// @file
/// Vectors of amounts from decimal text.
///
/// - Takes any range of text, views included: of std::string, std::string_view, const char*, or a
///   list in braces.
/// - Each text is converted as by Str2Currency and its siblings: exactly, rounded to the decimals
///   of the type, ties to even.
/// - EConvertError, which quotes the first text that cannot be converted: rsNotANumber or
///   rsNumberTooLarge. There is no result then.
/// - n = 0 gives an empty vector. O(length of all texts).

#include <concepts>
#include <initializer_list>
#include <ranges>
#include <string_view>

#include "qorvex/base/currency_text.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexFinVector {

/// @cond internal
namespace detail {
template <class Range>
concept TextRange = std::ranges::input_range<Range> &&
    std::convertible_to<std::ranges::range_reference_t<Range>, std::string_view>;

template <CurrencyElement T, class Texts>
TQorVector<T> AmountsOf(Texts&& texts, T (*amount_of)(std::string_view)) {
  TQorVector<T> amounts;
  // Not a std::string_view: the range may make each text when it is read.
  for (auto&& text : texts) amounts.Append(amount_of(text));
  return amounts;
}
}  // namespace detail
/// @endcond

/// @{
/// The amounts that the texts represent, as Currency.
template <detail::TextRange Range>
[[nodiscard]] TQorCurrencyVector Text2QorCurrencyVector(Range&& texts) {
  return detail::AmountsOf(texts, Str2Currency);
}
[[nodiscard]] inline TQorCurrencyVector Text2QorCurrencyVector(
    std::initializer_list<std::string_view> texts) {
  return detail::AmountsOf(texts, Str2Currency);
}
/// @}

/// @{
/// The amounts that the texts represent, as QorCurrency.
template <detail::TextRange Range>
[[nodiscard]] TQorCurrVector Text2QorCurrVector(Range&& texts) {
  return detail::AmountsOf(texts, Str2QorCurrency);
}
[[nodiscard]] inline TQorCurrVector Text2QorCurrVector(
    std::initializer_list<std::string_view> texts) {
  return detail::AmountsOf(texts, Str2QorCurrency);
}
/// @}

/// @{
/// The amounts that the texts represent, as QorLongCurrency.
template <detail::TextRange Range>
[[nodiscard]] TQorLongCurrVector Text2QorLongCurrVector(Range&& texts) {
  return detail::AmountsOf(texts, Str2QorLongCurrency);
}
[[nodiscard]] inline TQorLongCurrVector Text2QorLongCurrVector(
    std::initializer_list<std::string_view> texts) {
  return detail::AmountsOf(texts, Str2QorLongCurrency);
}
/// @}

}  // namespace qorvex::inline QorvexFinVector
