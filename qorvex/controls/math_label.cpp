#include "qorvex/controls/math_label.h"

#include <QFontMetrics>
#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <limits>
#include <span>

#include "qorvex/controls/detail/caption_layout.h"
#include "qorvex/controls/detail/math_caption.h"

namespace qorvex::inline QorvexMathLabel {

using QorvexControls::detail::CaptionCharacter;
using QorvexControls::detail::CaptionCharacters;
using QorvexControls::detail::CaptionLine;
using QorvexControls::detail::CaptionLines;
using QorvexControls::detail::CaptionText;

TQorMathLabel::TQorMathLabel(QWidget* parent) : TQorCustomLabel(parent) {}
TQorMathLabel::~TQorMathLabel() = default;

void TQorMathLabel::setSymbolFamily(const QString& family) {
  if (family == symbol_family_) return;
  symbol_family_ = family;
  TextSizeChanged();
}

QFont TQorMathLabel::SymbolFont() const {
  QFont symbol_font = font();
  if (!symbol_family_.isEmpty()) symbol_font.setFamily(symbol_family_);
  return symbol_font;
}

QString TQorMathLabel::DisplayText() const {
  return QString::fromStdU32String(CaptionText(Caption().toStdU32String()));
}

void TQorMathLabel::DoDrawLabel(QPainter& painter, QRect& rectangle, int flags) const {
  const QFont fonts[] = {font(), SymbolFont()};
  const QFontMetrics metrics[] = {fontMetrics(), QFontMetrics(fonts[1], this)};
  const int ascent = std::max(metrics[0].ascent(), metrics[1].ascent());
  const int descent = std::max(metrics[0].descent(), metrics[1].descent());
  const int line_height = std::max(metrics[0].lineSpacing(), metrics[1].lineSpacing());

  const auto characters =
      CaptionCharacters(TextFor(Caption(), flags).toStdU32String(), ShowAccelChar(),
                        QFontMetricsF(fonts[0], this), QFontMetricsF(fonts[1], this));
  const bool wraps = (flags & Qt::TextWordWrap) != 0;
  const auto lines =
      CaptionLines(characters, wraps ? rectangle.width() : std::numeric_limits<qreal>::infinity());

  if ((flags & kMeasureOnly) != 0) {
    const qreal width = std::ranges::max(lines, {}, &CaptionLine::width).width;
    const int lines_below = static_cast<int>(lines.size()) - 1;
    rectangle.setSize(
        {static_cast<int>(std::ceil(width)), ascent + descent + lines_below * line_height});
    return;
  }

  const QList<TextLayer> layers = TextLayers();
  const bool underlines = (AddAccelerator(flags) & Qt::TextShowMnemonic) != 0;
  const qreal right = rectangle.left() + rectangle.width();
  qreal baseline = rectangle.top() + ascent;
  for (const CaptionLine& line : lines) {
    const qreal slack = std::max(rectangle.width() - line.width, 0.0);
    qreal left = rectangle.left();
    if ((flags & Qt::AlignRight) != 0) left += slack;
    if ((flags & Qt::AlignHCenter) != 0) left += slack / 2;
    for (std::size_t i = line.begin; i < line.end && left <= right; ++i) {
      const CaptionCharacter& character = characters[i];
      QFont character_font = fonts[character.symbol ? 1 : 0];
      if (underlines && character.underlined) character_font.setUnderline(true);
      painter.setFont(character_font);
      for (const auto& [offset, color] : layers) {
        painter.setPen(color);
        painter.drawText(QPointF(left + offset, baseline + offset), character.text);
      }
      left += character.width;
    }
    baseline += line_height;
  }
}

}  // namespace qorvex::inline QorvexMathLabel
