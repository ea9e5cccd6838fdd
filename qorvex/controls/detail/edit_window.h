#pragma once

/// @file
/// The window of a few edits over one long axis of elements, the rows of a vector or the rows or
/// columns of a matrix. It knows no screen: who owns it says through callbacks what is to happen.

#include <cstdint>
#include <functional>

#include "qorvex/base/export.h"

namespace qorvex::inline QorvexControls::detail {

/// What a window tells its owner, in the order in which it happens. Empty callbacks are passed
/// over.
struct EditWindowEvents {
  /// The top is about to become the given one. While it runs, requests for another top or current
  /// element are ignored, so two windows that follow each other do not call each other for ever.
  /// It may change the axis: the top is then the nearest one to the given one.
  std::function<void(std::uint32_t)> before_top{};
  /// The top has changed: a scroll bar is to be moved.
  std::function<void()> place_bar{};
  /// The current element has changed, from the first to the second.
  std::function<void(std::uint32_t, std::uint32_t)> current_changed{};
  /// The elements in the window are others now.
  std::function<void()> redisplay{};
  /// The top has become the given one, and everything shows it.
  std::function<void(std::uint32_t)> after_top{};
};

/// Which element is the current one.
enum class CurrentRule {
  kFollowsTop,   ///< It stays under the focused edit whenever the top is set.
  kFollowsEntry  ///< It changes when an edit is entered, and when it is asked for.
};

/// Top, focus, current element, number of edits and number of elements of one axis. Edit k shows
/// element Top() + k. Every member costs O(1), however long the axis is.
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

  /// How many edits show an element: they are the first ones.
  [[nodiscard]] std::uint32_t UsedEdits() const noexcept;
  /// The top of the last page: Count() - Edits(), or 0 where all elements fit. Without edits it is
  /// Count().
  [[nodiscard]] std::uint32_t LargestTop() const noexcept;

  /// Scrolls to the top, clamped to LargestTop(). Nothing happens when it is the top already.
  /// Otherwise before_top, place_bar, current_changed (kFollowsTop, where it differs), redisplay,
  /// after_top. A top that only the clamp makes the present one changes nothing either, but with
  /// kFollowsEntry it still places the bar and redisplays.
  void SetTop(std::uint32_t top);
  /// Scrolls up, or does nothing when there are not as many elements above.
  void ScrollUp(std::uint32_t elements);
  /// Scrolls down, at most to the last page.
  void ScrollDown(std::uint32_t elements);

  /// What the scroll bar does: the top follows a position of the bar between 0 and BarMaximum().
  /// Other positions are ignored. Neither the bar nor the current element is moved: before_top,
  /// redisplay, after_top. Only where before_top shortens the axis, both are kept within it.
  void SetTopFromBar(int position);
  /// What an arrow of the scroll bar does: the same by one element, which a bar may be too coarse
  /// to name.
  void StepFromBar(bool forward);
  /// The largest position of a bar over this axis. A bar counts in int, an axis reaches 2^32 - 1;
  /// where LargestTop() is beyond 2^31 - 1, a position stands for two elements.
  [[nodiscard]] int BarMaximum() const noexcept;
  /// How many positions of the bar a page is, at least one.
  [[nodiscard]] int BarPageStep() const noexcept;
  /// Where the bar stands for the present top; the last page is always BarMaximum().
  [[nodiscard]] int BarPosition() const noexcept;

  /// Asks for a current element other than the present one: scrolls so that it shows in the focused
  /// edit, or in the first edit where there are too few elements above it. The focus stays and the
  /// top is clamped, so near both ends the current element is the one under the focus, not the
  /// wanted one. With kFollowsTop it changes only if the top does, which matters after
  /// SetTopFromBar; with kFollowsEntry it becomes the one under the focus in any case.
  void SetCurrent(std::uint32_t element);

  /// An edit has got the focus: it and its element are the current ones now. An edit that shows
  /// no element is ignored.
  void Enter(std::uint32_t edit);

  /// Other numbers of edits or elements. A top beyond the new last page is moved there with the
  /// events of SetTop; otherwise the bar is placed and the elements are redisplayed. The focus is
  /// kept inside the used edits (0 when there are none). Where it has to move, or the current
  /// element is no longer on the axis, the current element becomes the one under the focus.
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
