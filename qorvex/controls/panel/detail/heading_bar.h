#pragma once

/// @file
/// HeadingBar, the headings in front of the rows or above the columns of a panel.

#include <QBasicTimer>
#include <QPainter>
#include <QStyleOptionHeader>
#include <QWidget>
#include <functional>
#include <optional>

#include "qorvex/controls/panel/detail/grid_geometry.h"

namespace qorvex::inline QorvexControls::detail {

/// What a bar of headings shows, and what a mouse does with it.
struct HeadingEvents {
  /// The text of an element's heading.
  std::function<QString(quint32 element)> text;
  /// Whether the heading is marked as selected.
  std::function<bool(quint32 element)> is_selected;
  /// The heading has been pressed. Pressed with Shift, or reached by dragging, it extends what the
  /// last press has selected.
  std::function<void(quint32 element, bool extend)> select;
  /// The mouse is dragging beyond the last heading, or before the first: scroll by one element.
  std::function<void(bool forward)> scroll;
  /// The edge of the heading has been dragged; empty if the sizes are fixed.
  std::function<void(quint32 element, int size)> resize;
  /// The edge of the heading has been clicked twice: fit the size to what is in sight. The heading
  /// itself needs this size.
  std::function<void(quint32 element, int size)> fit;
  /// The menu of the heading has been asked for at a place on the screen.
  std::function<void(quint32 element, const QPoint& place)> menu;
};

/// The headings of the elements that a window shows, painted as the style paints those of tables.
class HeadingBar : public QWidget {
 public:
  /// A vertical bar is in front of the rows, a horizontal one above the columns.
  HeadingBar(QWidget& panel, Qt::Orientation orientation, const EditWindow& window,
             const GridGeometry& geometry, HeadingEvents events);
  ~HeadingBar() override;

  /// Covers the room that the geometry has for it.
  void Arrange();
  /// The width that the texts in sight need, but at most that of forty characters.
  [[nodiscard]] int TextWidth() const;
  /// The width that a text needs.
  [[nodiscard]] int WidthOf(const QString& text) const;

 protected:
  /// @{
  /// Qt's events.
  void contextMenuEvent(QContextMenuEvent* event) override;
  bool event(QEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void timerEvent(QTimerEvent* event) override;
  /// @}

 private:
  [[nodiscard]] QRect Section(quint32 edit) const;
  // The edit whose heading is at a place, or the nearest one.
  [[nodiscard]] std::optional<quint32> EditAt(const QPoint& place) const;
  // -1 before the first heading, 1 behind the last one, 0 between them.
  [[nodiscard]] int SideOf(const QPoint& place) const;
  void SelectTo(const QPoint& place);
  void Release();
  // The edit whose trailing edge is at a place and can be dragged.
  [[nodiscard]] std::optional<quint32> EdgeAt(const QPoint& place) const;
  [[nodiscard]] QString TextOf(quint32 edit) const;
  [[nodiscard]] QStyleOptionHeader Option(quint32 edit) const;

  Qt::Orientation orientation_;
  const EditWindow& window_;
  const GridGeometry& geometry_;
  HeadingEvents events_;
  // The element whose size is being dragged, and what its size and the mouse's place were at first.
  struct Drag {
    quint32 element;
    int size;
    int start;
  };
  std::optional<Drag> drag_;
  bool selecting_ = false;
  // Where the mouse is while it selects, and what scrolls while that is beyond the headings.
  QPoint place_;
  QBasicTimer scrolling_;
};

/// The heading where both bars meet. A click calls the function.
class HeadingCorner : public QWidget {
 public:
  HeadingCorner(QWidget& panel, std::function<void()> clicked);
  ~HeadingCorner() override;

 protected:
  /// @{
  /// Qt's events.
  void mousePressEvent(QMouseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  /// @}

 private:
  std::function<void()> clicked_;
};

}  // namespace qorvex::inline QorvexControls::detail
