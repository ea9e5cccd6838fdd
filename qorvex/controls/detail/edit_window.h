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
  /// The top is about to become the given one. While it runs, further changes of the top are
  /// ignored, so two windows that follow each other do not call each other for ever.
  std::function<void(std::uint32_t)> before_top;
  /// The top has changed: a scroll bar is to be moved.
  std::function<void()> place_bar;
  /// The current element has changed, from the first to the second.
  std::function<void(std::uint32_t, std::uint32_t)> current_changed;
  /// The elements in the window are others now.
  std::function<void()> redisplay;
  /// The top has become the given one, and everything shows it.
  std::function<void(std::uint32_t)> after_top;
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
  /// The top of the last page: Count() - Edits(), or 0 where all elements fit.
  [[nodiscard]] std::uint32_t LargestTop() const noexcept;

  /// Scrolls to the top, clamped to LargestTop(). Nothing happens when it is the top already.
  /// Otherwise before_top, place_bar, current_changed (kFollowsTop, where it differs), redisplay,
  /// after_top. The callback before_top may change the axis: the top is clamped again after it.
  /// With kFollowsEntry a top that is clamped to the present one still places the bar and
  /// redisplays, without before_top.
  void SetTop(std::uint32_t top);
  /// Scrolls up, or does nothing when there are not as many elements above.
  void ScrollUp(std::uint32_t elements);
  /// Scrolls down, at most to the last page.
  void ScrollDown(std::uint32_t elements);

  /// What the scroll bar does: the top follows a position of the bar between 0 and BarMaximum().
  /// Other positions are ignored. Neither the bar nor the current element is moved: before_top,
  /// redisplay, after_top.
  void SetTopFromBar(int position);
  /// The largest position of a bar over this axis. A bar counts in int, an axis reaches 2^32 - 1;
  /// beyond 2^31 - 1 a position stands for two elements.
  [[nodiscard]] int BarMaximum() const noexcept;
  /// Where the bar stands for the present top; the last page is always BarMaximum().
  [[nodiscard]] int BarPosition() const noexcept;

  /// Asks for a current element: scrolls so that it comes under the focused edit, or to the first
  /// edit where there are too few elements above it. The top is clamped, so near the end
  /// the current element is the one under the focused edit, not the wanted one. With kFollowsEntry
  /// the current element becomes the one under the focus then.
  void SetCurrent(std::uint32_t element);

  /// An edit has got the focus: it and its element are the current ones now.
  void Enter(std::uint32_t edit);

  /// Other numbers of edits or elements. A top beyond the new last page is moved there as SetTop
  /// does. The focus is kept inside the used edits (0 when there are none), and the current
  /// element under it when it would lie outside the axis. Places the bar and redisplays.
  void SetEdits(std::uint32_t edits);
  void SetCount(std::uint32_t count);

 private:
  void MakeCurrent(std::uint32_t element);
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
