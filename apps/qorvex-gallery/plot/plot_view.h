#pragma once

/// @file
/// PlotView, a diagram with two axes.

#include <QPixmap>
#include <QPointF>
#include <QRectF>
#include <QString>
#include <QWidget>
#include <optional>
#include <vector>

#include "apps/qorvex-gallery/plot/plot_extent.h"
#include "apps/qorvex-gallery/plot/plot_layer.h"
#include "apps/qorvex-gallery/plot/plot_readout.h"

class QPainter;

namespace qorvex::gallery {

/// A diagram: layers on top of one another, axes with round numbers at their ticks, written as in
/// the locale, axis titles and a legend. Colours and fonts come from the palette and the widget.
/// Points that are not finite are left out. The accessible description says in words what the
/// diagram shows.
///
/// - The values next to the pointer are shown; the arrow keys go from point to point, and Up and
///   Down to the next layer. Escape hides the values.
/// - The wheel zooms about the pointer, with Shift only the horizontal axis and with Control only
///   the vertical one; dragging moves the diagram; a double click shows everything again. The keys
///   are + and -, Shift with the arrows, and 0.
/// - The menu copies, saves and prints a picture of what is shown; the keys are those of
///   QKeySequence::Copy, Ctrl+E and QKeySequence::Print.
class PlotView : public QWidget {
  Q_OBJECT

 public:
  explicit PlotView(QWidget* parent = nullptr);
  ~PlotView() override;

  /// Shows a diagram over the range of all its points; bars, areas and stems include zero. A part
  /// that the user has chosen stays chosen if the range is the same as before.
  void SetContent(PlotContent content);
  /// Replaces the layers of the diagram.
  void SetLayers(std::vector<PlotLayer> layers);
  /// Titles of the axes, including units.
  void SetAxisTitles(const QString& x, const QString& y);
  /// The text to show while there are no points.
  void SetPlaceholder(const QString& text);

  [[nodiscard]] bool IsEmpty() const { return all_.IsEmpty(); }
  /// The part that is shown.
  [[nodiscard]] const PlotExtent& Shown() const { return shown_; }
  void ShowAll();
  /// Shows a part of which the point stays where it is; a factor above 1 shows more detail. An
  /// axis keeps its range where doubles would no longer tell its values apart, and does not show
  /// less than a millionth of everything.
  void Zoom(double x_factor, double y_factor, const QPointF& about);
  /// Moves the diagram by a part of what is shown.
  void Move(double x_share, double y_share);

  /// The values that are shown next to a point, as lines of text; empty if none are.
  [[nodiscard]] QStringList ReadoutLines() const;
  /// Draws what is shown, in light colours and without the values of a point.
  void Draw(QPainter& painter, const QRectF& rect) const;

  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;

 private:
  void Redraw();
  void Describe();
  void DrawPicture();
  void DrawReadout(QPainter& painter) const;
  void SetReadout(std::optional<PlotReadout> readout);
  bool HandleKey(const QKeyEvent& event);
  void StepPoint(int step);
  void StepToEnd(bool last);
  void StepLayer(int step);
  void ReadOutFrom(std::size_t layer, std::ptrdiff_t point, int step);

  PlotContent content_;
  QString placeholder_;
  PlotExtent all_;
  PlotExtent shown_;
  // What the axes enclose in the picture, which is drawn again when it is null.
  QRectF area_;
  QPixmap picture_;
  std::optional<PlotReadout> readout_;
  std::optional<QPointF> drag_;
};

}  // namespace qorvex::gallery
