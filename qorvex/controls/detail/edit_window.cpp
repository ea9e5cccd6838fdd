#include "qorvex/controls/detail/edit_window.h"

#include <algorithm>
#include <limits>
#include <type_traits>
#include <utility>

namespace qorvex::inline QorvexControls::detail {

namespace {

template <typename... Args>
void Tell(const std::function<void(Args...)>& callback, std::type_identity_t<Args>... args) {
  if (callback) callback(args...);
}

/// The shift that turns the index of an element into a position of the bar.
int BarShift(std::uint32_t largest_top) {
  return largest_top > std::uint32_t{std::numeric_limits<int>::max()} ? 1 : 0;
}

}  // namespace

EditWindow::EditWindow(CurrentRule rule, EditWindowEvents events)
    : rule_(rule), events_(std::move(events)) {}

std::uint32_t EditWindow::UsedEdits() const noexcept {
  // While an axis is shortened, before_top still sees the old top.
  return top_ < count_ ? std::min(edits_, count_ - top_) : 0;
}

std::uint32_t EditWindow::LargestTop() const noexcept {
  return edits_ < count_ ? count_ - edits_ : 0;
}

std::uint32_t EditWindow::TopShowing(std::uint32_t element) const noexcept {
  if (element < top_) return element;
  return element - top_ < edits_ ? top_ : std::min(element - edits_ + 1, LargestTop());
}

void EditWindow::SetTop(std::uint32_t top) {
  if (announcing_ || top == top_) return;
  const std::uint32_t reachable = std::min(top, LargestTop());
  if (reachable != top_) {
    MoveTop(reachable);
  } else if (rule_ == CurrentRule::kFollowsEntry) {
    Show(false);
  }
}

void EditWindow::ScrollUp(std::uint32_t elements) {
  if (elements <= top_) SetTop(top_ - elements);
}

void EditWindow::ScrollDown(std::uint32_t elements) {
  SetTop(top_ + std::min(elements, std::numeric_limits<std::uint32_t>::max() - top_));
}

void EditWindow::SetTopFromBar(int position) {
  if (announcing_ || position < 0 || position > BarMaximum()) return;
  const std::uint32_t top = position == BarMaximum()
                                ? LargestTop()
                                : static_cast<std::uint32_t>(position) << BarShift(LargestTop());
  FollowBar(top);
}

void EditWindow::StepFromBar(bool forward) {
  if (announcing_) return;
  if (forward && top_ < LargestTop()) FollowBar(top_ + 1);
  if (!forward && top_ > 0) FollowBar(top_ - 1);
}

void EditWindow::FollowBar(std::uint32_t top) {
  if (top == top_) return;
  Announce(top);
  top_ = std::min(top, LargestTop());
  if (top_ != top) Tell(events_.place_bar);
  Tell(events_.redisplay);
  Tell(events_.after_top, top_);
}

int EditWindow::BarMaximum() const noexcept {
  return static_cast<int>(LargestTop() >> BarShift(LargestTop()));
}

int EditWindow::BarPageStep() const noexcept {
  return std::max(static_cast<int>(edits_ >> BarShift(LargestTop())), 1);
}

int EditWindow::BarPosition() const noexcept {
  return static_cast<int>(top_ >> BarShift(LargestTop()));
}

void EditWindow::SetCurrent(std::uint32_t element) {
  if (announcing_ || element == current_) return;
  SetTop(element >= focus_ ? element - focus_ : element);
  if (rule_ == CurrentRule::kFollowsEntry) FollowFocus();
}

void EditWindow::Enter(std::uint32_t edit) {
  if (edit >= UsedEdits()) return;
  focus_ = edit;
  FollowFocus();
}

void EditWindow::SetEdits(std::uint32_t edits) {
  if (edits == edits_) return;
  edits_ = edits;
  Refit();
}

void EditWindow::SetCount(std::uint32_t count) {
  if (count == count_) return;
  count_ = count;
  Refit();
}

void EditWindow::Announce(std::uint32_t top) {
  struct Announcement {
    explicit Announcement(bool& running) : running_(running) { running_ = true; }
    ~Announcement() { running_ = false; }
    bool& running_;
  };
  const Announcement announcement(announcing_);
  Tell(events_.before_top, top);
}

void EditWindow::MoveTop(std::uint32_t top) {
  Announce(top);
  top_ = std::min(top, LargestTop());
  const bool refocused = FitFocus();
  Show(refocused || rule_ == CurrentRule::kFollowsTop);
  // A callback may have scrolled further: a follower of this window gets the final top.
  Tell(events_.after_top, top_);
}

/// The element under the focus becomes the current one. Without edits the top may be beyond the
/// last element, which is the current one then.
void EditWindow::FollowFocus() {
  const std::uint32_t last = std::max(count_, 1U) - 1;
  const std::uint32_t previous = std::exchange(current_, std::min(top_ + focus_, last));
  if (current_ != previous) Tell(events_.current_changed, previous, current_);
}

void EditWindow::Show(bool follow_focus) {
  Tell(events_.place_bar);
  if (follow_focus || current_ >= count_) FollowFocus();
  Tell(events_.redisplay);
}

/// Keeps the focus within the used edits; true if it had to move.
bool EditWindow::FitFocus() {
  const std::uint32_t last = std::max(UsedEdits(), 1U) - 1;
  return std::exchange(focus_, std::min(focus_, last)) > last;
}

void EditWindow::Refit() {
  const std::uint32_t reachable = std::min(top_, LargestTop());
  if (reachable != top_ && !announcing_) {
    MoveTop(reachable);
  } else {
    top_ = reachable;
    Show(FitFocus());
  }
}

}  // namespace qorvex::inline QorvexControls::detail
