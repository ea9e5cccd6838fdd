#pragma once

/// @file
/// Amounts as arguments of libfmt, for programs that have it: fmt::format("{:>14}", amount).
///
/// The text is that of Currency2EStr. Fill, alignment and width are those of strings, so amounts
/// stand on the left unless told otherwise. A precision is refused, since cutting the text would
/// change the amount, and so is '?', which would put it in quotes. The library itself neither
/// includes this header nor needs libfmt.

#include <fmt/format.h>
#include <string_view>

#include "qorvex/base/currency_text.h"

namespace fmt {

/// Formats amounts.
template <class Stored, std::int64_t Scale>
struct formatter<qorvex::BasicCurrency<Stored, Scale>> {
  /// Reads the format specification; raises fmt::format_error for what it refuses.
  constexpr auto parse(format_parse_context& context) {
    const auto* const first = context.begin();
    const auto* const last = text_.parse(context);
    const std::string_view specification(first, static_cast<std::size_t>(last - first));
    // A point in front of the alignment is the fill.
    const bool filled = specification.size() > 1 &&
                        std::string_view("<>^").find(specification[1]) != std::string_view::npos;
    if (specification.find('.', filled ? 1 : 0) != std::string_view::npos)
      throw format_error("an amount takes no precision");
    if (specification.ends_with('?')) throw format_error("an amount takes no quotes");
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
