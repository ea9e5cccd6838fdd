#pragma once

/// @file
/// The values of a diagram at a place or at a point.

#include <QCoreApplication>
#include <QLocale>
#include <QPointF>
#include <QRectF>
#include <QStringList>
#include <cstddef>
#include <optional>

#include "apps/qorvex-gallery/plot/plot_extent.h"
#include "apps/qorvex-gallery/plot/plot_layer.h"

namespace qorvex::gallery {

/// What a diagram says about a point.
struct PlotReadout {
  std::size_t layer = 0;
  std::size_t point = 0;
  QPointF at;         ///< Where, in values of the axes.
  QStringList lines;  ///< The name of the layer and the values, with the titles of the axes.
};

/// A diagram that is asked for its values, which are written in a locale with enough digits to tell
/// places in the extent apart.
class PlotReader {
  Q_DECLARE_TR_FUNCTIONS(PlotReader)

 public:
  PlotReader(const PlotContent& content, const PlotExtent& extent, const QLocale& locale)
      : content_(content), extent_(extent), locale_(locale) {}

  /// The point, line, bar or area at a place in a picture in which the axes enclose the area, or
  /// none. Points come before lines, and lines before what is filled. Bars are found above them,
  /// too, because they may be very low. O(n).
  [[nodiscard]] std::optional<PlotReadout> Near(const QPointF& place, const QRectF& area) const;
  /// A point of a layer that has it; none if the point is not finite or the layer is a band.
  [[nodiscard]] std::optional<PlotReadout> At(std::size_t layer, std::size_t point) const;

 private:
  struct Candidate;

  [[nodiscard]] PlotReadout ReadoutOf(std::size_t layer, std::size_t point,
                                      const QPointF& at) const;
  [[nodiscard]] QString Number(double value, const AxisRange& range) const;
  [[nodiscard]] QString Named(const PlotAxis& axis, const QString& fallback,
                              const QString& value) const;
  [[nodiscard]] QString CategoryAt(double y) const;
  void SearchVertices(std::size_t layer, Candidate& best) const;
  void SearchLine(std::size_t layer, Candidate& best) const;
  void SearchFilled(std::size_t layer, Candidate& best) const;

  const PlotContent& content_;
  const PlotExtent& extent_;
  QLocale locale_;
};

}  // namespace qorvex::gallery
