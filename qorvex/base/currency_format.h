#pragma once

/// @file
/// Amounts as arguments of libfmt, for programs that use it: fmt::format("{:>14}", amount).
///
/// - The text is that of Currency2EStr. Fill, alignment and width are those of strings, so amounts
///   are left-aligned by default.
/// - A precision is rejected, because truncating the text would change the amount. '?', which would
///   add quotes, is rejected too.
/// - The library itself neither includes this header nor needs libfmt.

#include <fmt/format.h>
#include <string_view>

#include "qorvex/base/currency_text.h"

namespace fmt {

/// Formats amounts.
template <class Stored, std::int64_t Scale>
struct formatter<qorvex::BasicCurrency<Stored, Scale>> {
  /// Parses the format specification; throws fmt::format_error if it is not valid for amounts.
  constexpr auto parse(format_parse_context& context) {
    const auto* const first = context.begin();
    const auto* const last = text_.parse(context);
    const std::string_view specification(first, static_cast<std::size_t>(last - first));
    // A point before the alignment is the fill character.
    const bool filled = specification.size() > 1 &&
                        std::string_view("<>^").find(specification[1]) != std::string_view::npos;
    if (specification.find('.', filled ? 1 : 0) != std::string_view::npos)
      throw format_error("an amount has no precision");
    if (specification.ends_with('?')) throw format_error("an amount has no quoted form");
    return last;
  }

  /// Writes the amount.
  template <class Context>
  auto format(qorvex::BasicCurrency<Stored, Scale> amount, Context& context) const {
    return text_.format(qorvex::Currency2EStr(amount), context);
  }

 private:
  formatter<std::string_view> text_;
};

}  // namespace fmt
