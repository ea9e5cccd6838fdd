#pragma once

/// @file
/// PanelAxis, the rows or the columns of a panel of cells.

#include <QScrollBar>
#include <Qt>
#include <functional>
#include <memory>

#include "qorvex/controls/detail/edit_window.h"

namespace qorvex::inline QorvexControls::detail {

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
  /// The number of edits that was asked for, which may differ from those that have room.
  [[nodiscard]] quint32 PreferredEdits() const noexcept { return preferred_edits_; }
  void SetPreferredEdits(quint32 edits) noexcept { preferred_edits_ = edits; }
  /// @}

  /// Scrolls. A form may set the top before the length of the axis: until Loaded, a top beyond the
  /// end is remembered.
  void SetTop(quint32 top);
  /// Scrolls to the remembered top as far as possible. Call after the axis has changed.
  void ReachWantedTop();
  /// The form is complete: nothing is remembered any more.
  void Loaded();

 private:
  EditWindowEvents WithBar(EditWindowEvents events);
  void PlaceBar();
  void BarActed(int action);
  void BarMoved(int position);

  EditWindow window_;
  std::unique_ptr<QScrollBar> bar_;
  quint32 preferred_edits_ = 0;
  quint32 wanted_top_ = 0;
  bool loaded_ = false;
  bool placing_bar_ = false;
};

}  // namespace qorvex::inline QorvexControls::detail
