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
  std::u32string text;  ///< What is drawn: never empty.
  bool symbol = false;  ///< In the font of the symbols, not in the one of the text.

  friend bool operator==(const CaptionRun&, const CaptionRun&) = default;
};

/// The runs of a caption. A caret draws nothing and makes a symbol of the character after it:
/// letters are the Greek ones of the Symbol character set, signs and digits are operators, and what
/// stands for no symbol is a space in the symbols' font. Two carets are a caret of the text. A
/// caret at the end is left out. O(length).
[[nodiscard]] QORVEX_EXPORT std::vector<CaptionRun> ParseCaption(std::u32string_view caption);

/// The text of all runs: the caption as it reads.
[[nodiscard]] QORVEX_EXPORT std::u32string CaptionText(std::u32string_view caption);

}  // namespace qorvex::inline QorvexControls::detail
