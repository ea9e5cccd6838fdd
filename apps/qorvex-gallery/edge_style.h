#pragma once

/// @file
/// EdgeStyle, which draws the edges of fields that can be seen in dark palettes.

#include <QProxyStyle>

namespace qorvex::gallery {

/// The style of the application with a light edge around boxes and fields where the style's own
/// edge, which it derives from the colour of the window by darkening, is as dark as the field.
/// Cells draw theirs themselves.
class EdgeStyle : public QProxyStyle {
 public:
  using QProxyStyle::QProxyStyle;

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                          QPainter* painter, const QWidget* widget) const override;
};

}  // namespace qorvex::gallery
