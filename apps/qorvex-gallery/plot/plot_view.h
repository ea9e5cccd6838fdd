#pragma once

/// @file
/// PlotView, a small diagram with two axes.

#include <QColor>
#include <QList>
#include <QPointF>
#include <QString>
#include <QWidget>
#include <vector>

namespace qorvex::gallery {

/// What a layer of a diagram is: its colour follows from it, in light and dark themes.
enum class PlotRole { kData, kModel, kSecondModel, kTail, kGuide };

/// How the points of a layer are drawn.
enum class PlotShape {
  kPoints,  ///< A dot each.
  kLine,    ///< A line through them; a NaN interrupts it.
  kArea,    ///< The area between the line through them and zero.
  kBars,    ///< Bars from zero: each point is the upper right corner of one, the first but a left
            ///< edge.
  kStems    ///< A vertical line from zero to each, with a dot.
};

/// One set of points.
struct PlotLayer {
  PlotShape shape = PlotShape::kLine;
  PlotRole role = PlotRole::kData;
  QString name;  ///< In the legend; empty for none.
  std::vector<QPointF> points;
};

/// A diagram: layers above one another, axes with round numbers at their ticks in the numbers of
/// the locale, titles and a legend. It takes its colours and fonts from the palette and the widget.
/// Points that are not finite are left out. What it shows, in words, is its accessible description.
class PlotView : public QWidget {
  Q_OBJECT

 public:
  explicit PlotView(QWidget* parent = nullptr);
  ~PlotView() override;

  /// Shows these layers, the first one lowest, over the range of all their points; bars, areas and
  /// stems include zero.
  void SetLayers(std::vector<PlotLayer> layers);
  /// What the axes show, units included.
  void SetAxisTitles(const QString& x, const QString& y);
  /// What is shown in the middle while there are no points.
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
