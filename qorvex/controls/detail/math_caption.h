#pragma once

/// @file
/// Captions in which a caret stands before each mathematical symbol.

#include <string>
#include <string_view>
#include <vector>

#include "qorvex/base/export.h"

namespace qorvex::inline QorvexControls::detail {

/// Neighbouring characters of a caption that are drawn in the same font.
struct CaptionRun {
  std::u32string text;  ///< The characters to draw, at least one.
  bool symbol = false;  ///< Drawn in the symbols' font instead of the text's.

  friend bool operator==(const CaptionRun&, const CaptionRun&) = default;
};

/// The runs of a caption. A caret is not drawn; it turns the character after it into a symbol:
/// letters become the Greek letters of the Symbol character set, signs and digits become operators,
/// and any other character becomes a space in the symbols' font. Two carets stand for one caret in
/// the text's font. A caret at the end is ignored. O(length).
[[nodiscard]] QORVEX_EXPORT std::vector<CaptionRun> ParseCaption(std::u32string_view caption);

/// The text of all runs: the caption as it reads.
[[nodiscard]] QORVEX_EXPORT std::u32string CaptionText(std::u32string_view caption);

}  // namespace qorvex::inline QorvexControls::detail
