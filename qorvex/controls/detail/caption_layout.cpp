#include "qorvex/controls/detail/caption_layout.h"

#include <QTextBoundaryFinder>
#include <utility>

#include "qorvex/controls/detail/math_caption.h"

namespace qorvex::inline QorvexControls::detail {

namespace {

bool EndsLine(const CaptionCharacter& character) {
  return character.text.endsWith(u'\n') || character.text == u"\u2028";
}

bool IsSpace(const CaptionCharacter& character) {
  return character.text.front().isSpace();
}

// Whether a line may begin with each character.
std::vector<bool> LineStarts(const std::vector<CaptionCharacter>& characters) {
  QString text;
  for (const CaptionCharacter& character : characters) text += character.text;
  QTextBoundaryFinder finder(QTextBoundaryFinder::Line, text);
  std::vector<bool> starts;
  starts.reserve(characters.size());
  qsizetype position = 0;
  for (const CaptionCharacter& character : characters) {
    finder.setPosition(position);
    starts.push_back(finder.isAtBoundary());
    position += character.text.size();
  }
  return starts;
}

}  // namespace

std::vector<CaptionCharacter> CaptionCharacters(std::u32string_view caption, bool accelerators,
                                                const QFontMetricsF& text_metrics,
                                                const QFontMetricsF& symbol_metrics) {
  std::vector<CaptionCharacter> characters;
  bool marked = false;
  for (const CaptionRun& run : ParseCaption(caption)) {
    const QFontMetricsF& metrics = run.symbol ? symbol_metrics : text_metrics;
    const QString text = QString::fromStdU32String(run.text);
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    for (qsizetype begin = 0; begin < text.size(); begin = finder.position()) {
      finder.setPosition(begin);
      finder.toNextBoundary();
      CaptionCharacter character{.text = text.sliced(begin, finder.position() - begin),
                                 .symbol = run.symbol};
      if (accelerators && character.text == u"&") {
        marked = !marked;
        if (marked) continue;
      }
      if (!EndsLine(character)) character.width = metrics.horizontalAdvance(character.text);
      character.underlined = std::exchange(marked, false);
      characters.push_back(std::move(character));
    }
  }
  return characters;
}

std::vector<CaptionLine> CaptionLines(const std::vector<CaptionCharacter>& characters,
                                      qreal largest_width) {
  const std::vector<bool> starts = LineStarts(characters);
  std::vector<CaptionLine> lines;
  CaptionLine line;
  CaptionLine trimmed;    // The line without spaces at its end,
  CaptionLine broken;     // and as it is when the last word goes to the next line.
  std::size_t word = 0;   // Where this word begins,
  qreal before_word = 0;  // and how far right.
  for (std::size_t i = 0; i < characters.size(); ++i) {
    if (EndsLine(characters[i])) {
      lines.push_back(line);
      line = trimmed = {.begin = i + 1, .end = i + 1};
      continue;
    }
    if (starts[i]) {
      word = i;
      before_word = line.width;
      broken = trimmed;
    }
    const bool space = IsSpace(characters[i]);
    if (!space && word > line.begin && line.width + characters[i].width > largest_width) {
      lines.push_back(broken);
      line = {.begin = word, .width = line.width - before_word};
    }
    line.end = i + 1;
    line.width += characters[i].width;
    if (!space) trimmed = line;
  }
  lines.push_back(line);
  return lines;
}

}  // namespace qorvex::inline QorvexControls::detail
