#pragma once

/// @file
/// PanelAxis, the rows or the columns of a panel of cells.

#include <QLatin1Char>
#include <QScrollBar>
#include <Qt>
#include <functional>
#include <memory>

#include "qorvex/controls/detail/edit_window.h"

namespace qorvex::inline QorvexControls::detail {

/// The heading of the spare line.
inline constexpr QLatin1Char kSpareMark('*');

/// The window of cells over one axis of a table, and the scroll bar that moves it. The columns of a
/// vector have no bar.
class PanelAxis {
 public:
  /// An axis without a bar. Its own place_bar replaces the one in the events.
  PanelAxis(CurrentRule rule, EditWindowEvents events);
  PanelAxis(const PanelAxis&) = delete;
  PanelAxis& operator=(const PanelAxis&) = delete;

  [[nodiscard]] EditWindow& Window() noexcept { return window_; }
  [[nodiscard]] const EditWindow& Window() const noexcept { return window_; }
  [[nodiscard]] QScrollBar* Bar() const noexcept { return bar_.get(); }
  /// Makes the bar, a child of the panel.
  void AddBar(Qt::Orientation orientation, QWidget& panel);

  /// @{
  /// The number of elements. A spare line may follow them in the window, where a new element can be
  /// typed.
  [[nodiscard]] quint32 Count() const noexcept { return count_; }
  [[nodiscard]] bool HasSpare() const noexcept { return has_spare_; }
  [[nodiscard]] static quint32 Lines(quint32 count, bool spare);
  void SetCount(quint32 count, bool spare);
  /// @}

  /// @{
  /// The number of edits that was asked for, which may differ from those that have room.
  [[nodiscard]] quint32 PreferredEdits() const noexcept { return preferred_edits_; }
  void SetPreferredEdits(quint32 edits) noexcept { preferred_edits_ = edits; }
  /// @}

  /// Scrolls. A form may set the top before the length of the axis: until Loaded, a top beyond the
  /// end is remembered.
  void SetTop(quint32 top);
  /// Scrolls to the remembered top as far as possible. Call after the axis has changed.
  void ReachWantedTop();
  /// @{
  /// Scroll without remembering anything: up by so many elements, or not at all if there are fewer;
  /// down by so many, at most to the last page; to the first element; to the last page.
  void ScrollUp(quint32 elements);
  void ScrollDown(quint32 elements);
  void ScrollToStart();
  void ScrollToEnd();
  /// @}
  /// The form is complete: nothing is remembered any more.
  void Loaded();

 private:
  EditWindowEvents WithBar(EditWindowEvents events);
  void PlaceBar();
  void BarActed(int action);
  void BarMoved(int position);

  EditWindow window_;
  std::unique_ptr<QScrollBar> bar_;
  quint32 count_ = 0;
  bool has_spare_ = false;
  quint32 preferred_edits_ = 0;
  quint32 wanted_top_ = 0;
  bool loaded_ = false;
  bool placing_bar_ = false;
};

}  // namespace qorvex::inline QorvexControls::detail
