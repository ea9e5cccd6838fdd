#pragma once

/// @file
/// The characters of a caption with their widths, and the lines that they make.

#include <QFontMetricsF>
#include <QString>
#include <QtGlobal>
#include <cstddef>
#include <string_view>
#include <vector>

namespace qorvex::inline QorvexControls::detail {

/// A unit of drawing: a character with its combining marks.
struct CaptionCharacter {
  QString text;
  qreal width = 0;          ///< Its advance; 0 for an end of line.
  bool symbol = false;      ///< In the symbols' font.
  bool underlined = false;  ///< It is an accelerator.
};

/// Characters that stand in one line, without the end of line or the spaces at which it was broken.
struct CaptionLine {
  std::size_t begin = 0;
  std::size_t end = 0;
  qreal width = 0;
};

/// The drawn characters of a caption (ParseCaption). With accelerators, an ampersand of the text is
/// not drawn but underlines the character after it; two ampersands stand for one. O(length).
[[nodiscard]] std::vector<CaptionCharacter> CaptionCharacters(std::u32string_view caption,
                                                              bool accelerators,
                                                              const QFontMetricsF& text_metrics,
                                                              const QFontMetricsF& symbol_metrics);

/// The lines of characters, at least one. They end at line ends, and where the next word would pass
/// the largest width; a wider word has its own line. O(length).
[[nodiscard]] std::vector<CaptionLine> CaptionLines(const std::vector<CaptionCharacter>& characters,
                                                    qreal largest_width);

}  // namespace qorvex::inline QorvexControls::detail
