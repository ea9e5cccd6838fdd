#pragma once

/// @file
/// The window of a few edits over one long axis of elements, the rows of a vector or the rows or
/// columns of a matrix. It does not depend on a screen: its owner supplies callbacks.

#include <cstdint>
#include <functional>

#include "qorvex/base/export.h"

namespace qorvex::inline QorvexControls::detail {

/// Events of a window, in the order in which they occur. Empty callbacks are skipped.
struct EditWindowEvents {
  /// The top is about to become the given one. While it runs, requests for another top or current
  /// element are ignored, so that two windows that follow each other do not call each other
  /// forever. The callback may change the axis: the top then becomes the nearest possible one.
  std::function<void(std::uint32_t)> before_top{};
  /// The top has changed: move the scroll bar.
  std::function<void()> place_bar{};
  /// The current element has changed, from the first to the second.
  std::function<void(std::uint32_t, std::uint32_t)> current_changed{};
  /// The elements in the window have changed.
  std::function<void()> redisplay{};
  /// The top is the given one, and it has been displayed.
  std::function<void(std::uint32_t)> after_top{};
};

/// Which element is the current one.
enum class CurrentRule {
  kFollowsTop,   ///< It stays under the focused edit whenever the top is set.
  kFollowsEntry  ///< It changes when an edit is entered, and when it is asked for.
};

/// Top, focus, current element, number of edits and number of elements of one axis. Edit k shows
/// element Top() + k. Every member function is O(1).
class QORVEX_EXPORT EditWindow {
 public:
  EditWindow(CurrentRule rule, EditWindowEvents events);
  // The callbacks belong to one owner.
  EditWindow(const EditWindow&) = delete;
  EditWindow& operator=(const EditWindow&) = delete;

  [[nodiscard]] std::uint32_t Top() const noexcept { return top_; }
  [[nodiscard]] std::uint32_t Focus() const noexcept { return focus_; }
  [[nodiscard]] std::uint32_t Current() const noexcept { return current_; }
  [[nodiscard]] std::uint32_t Edits() const noexcept { return edits_; }
  [[nodiscard]] std::uint32_t Count() const noexcept { return count_; }

  /// The number of edits that show an element: the first ones.
  [[nodiscard]] std::uint32_t UsedEdits() const noexcept;
  /// The top of the last page: Count() - Edits(), or 0 if all elements fit. Without edits it is
  /// Count().
  [[nodiscard]] std::uint32_t LargestTop() const noexcept;
  /// The nearest top from which an element shows.
  [[nodiscard]] std::uint32_t TopShowing(std::uint32_t element) const noexcept;

  /// Scrolls to the top, clamped to LargestTop(). Does nothing if it is already the top. Otherwise
  /// before_top, place_bar, current_changed (kFollowsTop, where it differs), redisplay, after_top.
  /// If only the clamp makes it the current top, nothing changes, but with kFollowsEntry the bar is
  /// placed and the elements are redisplayed.
  void SetTop(std::uint32_t top);
  /// Scrolls up, or does nothing if there are fewer elements above.
  void ScrollUp(std::uint32_t elements);
  /// Scrolls down, at most to the last page.
  void ScrollDown(std::uint32_t elements);

  /// The scroll bar has moved: the top follows its position, from 0 to BarMaximum(). Other
  /// positions are ignored. Neither the bar nor the current element moves: before_top, redisplay,
  /// after_top. If before_top shortens the axis, both are kept within it.
  void SetTopFromBar(int position);
  /// An arrow of the scroll bar has been pressed: the same by one element, which may be less than
  /// one position of the bar.
  void StepFromBar(bool forward);
  /// The largest position of a bar over this axis. A bar counts in int, an axis reaches 2^32 - 1;
  /// if LargestTop() is beyond 2^31 - 1, a position stands for two elements.
  [[nodiscard]] int BarMaximum() const noexcept;
  /// The length of a page in positions of the bar, at least one.
  [[nodiscard]] int BarPageStep() const noexcept;
  /// The position of the bar for the current top; for the last page it is BarMaximum().
  [[nodiscard]] int BarPosition() const noexcept;

  /// Requests another current element: scrolls until it shows in the focused edit, or in the first
  /// edit if there are too few elements above it. The focus stays and the top is clamped, so near
  /// both ends the current element becomes the one under the focus, not the requested one. With
  /// kFollowsTop it changes only if the top does, which matters after SetTopFromBar; with
  /// kFollowsEntry it always becomes the one under the focus.
  void SetCurrent(std::uint32_t element);

  /// An edit has received the focus: it and its element become the current ones. An edit without an
  /// element is ignored.
  void Enter(std::uint32_t edit);

  /// Sets the number of edits or elements. A top beyond the new last page is moved there with the
  /// events of SetTop; otherwise the bar is placed and the elements are redisplayed. The focus
  /// stays within the used edits, and is 0 without any. If it has to move, or the current element
  /// is no longer on the axis, the element under the focus becomes the current one.
  void SetEdits(std::uint32_t edits);
  void SetCount(std::uint32_t count);

 private:
  void Announce(std::uint32_t top);
  void MoveTop(std::uint32_t top);
  void FollowBar(std::uint32_t top);
  void FollowFocus();
  void Show(bool follow_focus);
  bool FitFocus();
  void Refit();

  CurrentRule rule_;
  EditWindowEvents events_;
  std::uint32_t top_ = 0;
  std::uint32_t focus_ = 0;
  std::uint32_t current_ = 0;
  std::uint32_t edits_ = 0;
  std::uint32_t count_ = 0;
  bool announcing_ = false;
};

}  // namespace qorvex::inline QorvexControls::detail
