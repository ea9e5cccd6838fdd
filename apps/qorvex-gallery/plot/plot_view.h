#pragma once

/// @file
/// PlotView, a small diagram with two axes.

#include <QString>
#include <QWidget>
#include <vector>

#include "apps/qorvex-gallery/plot/plot_layer.h"

namespace qorvex::gallery {

/// A diagram: layers on top of one another, axes with round numbers at their ticks, written as in
/// the locale, axis titles and a legend. Colours and fonts come from the palette and the widget.
/// Points that are not finite are left out. The accessible description says in words what the
/// diagram shows.
class PlotView : public QWidget {
  Q_OBJECT

 public:
  explicit PlotView(QWidget* parent = nullptr);
  ~PlotView() override;

  /// Shows these layers, the first one at the bottom, over the range of all their points; bars,
  /// areas and stems include zero.
  void SetLayers(std::vector<PlotLayer> layers);
  /// Titles of the axes, including units.
  void SetAxisTitles(const QString& x, const QString& y);
  /// The text to show while there are no points.
  void SetPlaceholder(const QString& text);

  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  std::vector<PlotLayer> layers_;
  QString x_title_;
  QString y_title_;
  QString placeholder_;
};

}  // namespace qorvex::gallery
