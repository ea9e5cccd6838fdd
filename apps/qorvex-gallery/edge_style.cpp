#include "apps/qorvex-gallery/edge_style.h"

#include <QPainter>
#include <QStyleOption>
#include <cstdlib>

#include "qorvex/base_controls/text_cell.h"

namespace qorvex::gallery {

namespace {

bool LosesEdges(const QPalette& palette) {
  constexpr int kLeastDifference = 24;
  const int edge = palette.color(QPalette::Window).darker(140).lightness();
  return std::abs(edge - palette.color(QPalette::Base).lightness()) < kLeastDifference;
}

void PrepareEdge(QPainter& painter, const QPalette& palette) {
  QColor edge = palette.color(QPalette::WindowText);
  edge.setAlphaF(0.3F);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(edge);
}

}  // namespace

void EdgeStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                              QPainter* painter, const QWidget* widget) const {
  QProxyStyle::drawPrimitive(element, option, painter, widget);
  const bool is_round = element == PE_IndicatorRadioButton;
  const bool has_edge = is_round || element == PE_IndicatorCheckBox ||
                        element == PE_IndicatorItemViewItemCheck || element == PE_FrameLineEdit;
  if (!has_edge || !LosesEdges(option->palette)) return;
  if (qobject_cast<const TextCell*>(widget) != nullptr) return;
  painter->save();
  PrepareEdge(*painter, option->palette);
  const QRectF edge = QRectF(option->rect).adjusted(0.5, 0.5, -0.5, -0.5);
  is_round ? painter->drawEllipse(edge) : painter->drawRoundedRect(edge, 2, 2);
  painter->restore();
}

void EdgeStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                   QPainter* painter, const QWidget* widget) const {
  QProxyStyle::drawComplexControl(control, option, painter, widget);
  const bool has_focus = (option->state & State_HasFocus) != 0;
  if (control != CC_SpinBox || has_focus || !LosesEdges(option->palette)) return;
  painter->save();
  PrepareEdge(*painter, option->palette);
  painter->drawRoundedRect(QRectF(option->rect).adjusted(0.5, 0.5, -0.5, -0.5), 2, 2);
  painter->restore();
}

}  // namespace qorvex::gallery
