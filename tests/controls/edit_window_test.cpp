#include "qorvex/controls/detail/edit_window.h"

#include <algorithm>
#include <array>
#include <functional>
#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <sstream>
#include <string>
#include <tuple>
#include <utility>

namespace qorvex::inline QorvexControls::detail {
namespace {

constexpr std::uint32_t kLargestCount = std::numeric_limits<std::uint32_t>::max();

/// A window whose events are written down: "t" before_top, "bar", "c" current_changed, "show"
/// redisplay, "after".
class Recorded {
 public:
  Recorded(CurrentRule rule, std::uint32_t edits, std::uint32_t count) : window(rule, Events()) {
    window.SetEdits(edits);
    window.SetCount(count);
    Take();
  }

  /// What happened since the last call.
  std::string Take() { return std::exchange(log_, ""); }

  /// Top, focus and current element.
  std::array<std::uint32_t, 3> State() const {
    return {window.Top(), window.Focus(), window.Current()};
  }

  std::function<void(std::uint32_t)> on_before_top;
  EditWindow window;

 private:
  EditWindowEvents Events() {
    return {
        .before_top =
            [this](std::uint32_t top) {
              Add("t", top);
              if (on_before_top) on_before_top(top);
            },
        .place_bar = [this] { Add("bar"); },
        .current_changed = [this](auto from, auto to) { Add("c", from, '>', to); },
        .redisplay = [this] { Add("show"); },
        .after_top = [this](auto top) { Add("after", top); },
    };
  }

  void Add(auto... parts) {
    std::ostringstream event;
    (event << ... << parts);
    log_ += (log_.empty() ? "" : " ") + event.str();
  }

  std::string log_;
};

using State = std::array<std::uint32_t, 3>;

TEST(EditWindow, TheBarMovesNeitherItselfNorTheCurrentElement) {
  for (const CurrentRule rule : {CurrentRule::kFollowsTop, CurrentRule::kFollowsEntry}) {
    Recorded r(rule, 4, 10);
    EditWindow& w = r.window;
    for (const int ignored : {-1, 7, 0}) w.SetTopFromBar(ignored);
    EXPECT_EQ(r.Take(), "");
    w.SetTopFromBar(6);
    EXPECT_EQ(r.Take(), "t6 show after6");
    EXPECT_EQ(r.State(), (State{6, 0, 0}));
    // An axis that is shortened meanwhile keeps the bar and the current element on it.
    r.on_before_top = [&](std::uint32_t) { w.SetCount(5); };
    w.SetTopFromBar(4);
    EXPECT_EQ(r.Take(), "t4 bar show bar show after1");
    EXPECT_EQ(r.State(), (State{1, 0, 0}));
  }
}

TEST(EditWindow, RequestingACurrentElementScrollsToIt) {
  const std::pair<std::uint32_t, State> cases[] = {
      {5, {3, 2, 5}},              // under the focus
      {1, {1, 2, 3}},              // too few above: in the first edit
      {kLargestCount, {6, 2, 8}},  // too few below
      {0, {0, 2, 2}},              // it shows already
  };
  for (const auto& [element, reached] : cases) {
    for (const CurrentRule rule : {CurrentRule::kFollowsTop, CurrentRule::kFollowsEntry}) {
      Recorded r(rule, 4, 10);
      r.window.Enter(2);
      r.window.SetCurrent(element);
      EXPECT_EQ(r.State(), reached) << element;
    }
  }

  // After the bar the wanted element may already be under the focus.
  Recorded vector(CurrentRule::kFollowsTop, 4, 10);
  vector.window.SetTopFromBar(5);
  vector.window.SetCurrent(5);
  EXPECT_EQ(vector.State(), (State{5, 0, 0}));
  Recorded matrix(CurrentRule::kFollowsEntry, 4, 10);
  matrix.window.SetTopFromBar(5);
  matrix.Take();
  matrix.window.SetCurrent(5);
  EXPECT_EQ(matrix.Take(), "c0>5");
  matrix.window.SetCurrent(4);
  EXPECT_EQ(matrix.Take(), "t4 bar show after4 c5>4");
  matrix.window.SetTop(6);
  matrix.Take();
  matrix.window.SetTop(7);
  EXPECT_EQ(matrix.Take(), "bar show") << "a top beyond the end";
  matrix.window.Enter(3);
  matrix.Take();
  matrix.window.SetEdits(2);
  EXPECT_EQ(matrix.Take(), "bar c9>7 show") << "the focus has moved";
}

TEST(EditWindow, AHandlerShortensTheAxisOrThrows) {
  for (const CurrentRule rule : {CurrentRule::kFollowsTop, CurrentRule::kFollowsEntry}) {
    Recorded r(rule, 4, 100);
    EditWindow& w = r.window;
    w.SetTop(50);
    w.Enter(3);
    r.Take();
    r.on_before_top = [&](std::uint32_t) {
      w.SetCount(20);
      w.SetTop(1);
      w.SetTopFromBar(2);
      w.SetCurrent(3);
    };
    w.SetTop(60);
    EXPECT_EQ(r.Take(), "t60 bar c53>19 show bar show after16");
    EXPECT_EQ(r.State(), (State{16, 3, 19}));

    r.on_before_top = [&](std::uint32_t) { w.SetCount(2); };
    w.SetCount(10);
    EXPECT_EQ(r.Take(), "t6 bar c19>1 show bar show after0");
    EXPECT_EQ(r.State(), (State{0, 1, 1}));

    r.on_before_top = nullptr;
    w.SetCount(10);
    r.on_before_top = [](std::uint32_t) { throw 1; };
    EXPECT_THROW(w.SetTop(3), int);
    EXPECT_EQ(r.State(), (State{0, 1, 1}));
    r.on_before_top = nullptr;
    w.SetTop(3);
    EXPECT_EQ(w.Top(), 3U);
  }
}

TEST(EditWindow, ABarReachesEveryPartOfALongAxis) {
  const std::tuple<std::uint32_t, std::uint32_t, int> cases[] = {
      {4, 4, 0},
      {4, 5, 1},
      {4, 0x80000003U, 0x7FFFFFFF},  // the last that counts elements
      {4, 0x80000004U, 0x40000000},  // the first that counts in twos
      {4, 0x80000005U, 0x40000000},
      {0, kLargestCount, 0x7FFFFFFF},
      {255, kLargestCount, 0x7FFFFF80},
  };
  for (const auto& [edits, count, maximum] : cases) {
    Recorded r(CurrentRule::kFollowsTop, edits, count);
    EditWindow& w = r.window;
    EXPECT_EQ(w.BarMaximum(), maximum) << count;
    w.SetTopFromBar(maximum);
    EXPECT_EQ(w.Top(), w.LargestTop()) << count;
    EXPECT_EQ(w.BarPosition(), maximum) << count;
    w.ScrollDown(kLargestCount);
    EXPECT_EQ(w.Top(), count - edits);
    w.SetTopFromBar(maximum / 2);
    EXPECT_EQ(w.BarPosition(), maximum / 2) << count;
    EXPECT_NEAR(w.Top(), (count - edits) / 2., 2) << count;
    w.SetTopFromBar(0);
    EXPECT_EQ(w.Top(), 0U) << count;
  }
}

State Shown(const EditWindow& window) {
  return {window.Top(), window.Edits(), window.Count()};
}

// The events alone give the full state, whatever the order of operations.
TEST(EditWindow, EventsReportEveryChange) {
  const auto seed = std::random_device{}();
  SCOPED_TRACE(seed);
  std::mt19937 engine(seed);
  for (const CurrentRule rule : {CurrentRule::kFollowsTop, CurrentRule::kFollowsEntry}) {
    State shown{};
    std::uint32_t current = 0, announced = 0;
    int bar = 0;
    EditWindow w(rule, {.before_top = [&](std::uint32_t top) { announced = top; },
                        .place_bar = [&] { bar = w.BarPosition(); },
                        .current_changed =
                            [&](std::uint32_t from, std::uint32_t to) {
                              EXPECT_EQ(from, current);
                              EXPECT_NE(from, to);
                              current = to;
                            },
                        .redisplay = [&] { shown = Shown(w); },
                        .after_top = [&](std::uint32_t top) { EXPECT_EQ(top, announced); }});
    const std::function<void(std::uint32_t)> operations[] = {
        [&](std::uint32_t n) { w.SetTop(n); },
        [&](std::uint32_t n) { w.ScrollUp(n); },
        [&](std::uint32_t n) { w.ScrollDown(n); },
        [&](std::uint32_t n) {
          bar = static_cast<int>(n % (static_cast<std::uint32_t>(w.BarMaximum()) + 1));
          w.SetTopFromBar(bar);
        },
        [&](std::uint32_t n) { w.SetCurrent(n); },
        [&](std::uint32_t n) { w.Enter(n % 16); },
        [&](std::uint32_t n) { w.SetEdits(n % 16); },
        [&](std::uint32_t n) { w.SetCount(n); },
    };
    for (int i = 0; i < 20000 && !::testing::Test::HasFailure(); ++i) {
      const auto number = static_cast<std::uint32_t>(engine() >> engine() % 32);
      const std::size_t operation = engine() % std::size(operations);
      SCOPED_TRACE(std::to_string(operation) + " " + std::to_string(number));
      operations[operation](number);
      EXPECT_LE(w.Top(), w.LargestTop());
      EXPECT_EQ(w.UsedEdits(), std::min(w.Edits(), w.Count()));
      EXPECT_LT(w.Focus(), std::max(w.UsedEdits(), 1U));
      EXPECT_LT(w.Current(), std::max(w.Count(), 1U));
      EXPECT_EQ(w.Current(), current);
      EXPECT_EQ(shown, Shown(w));
      EXPECT_EQ(w.BarPosition(), bar);
    }
  }
}

}  // namespace
}  // namespace qorvex::inline QorvexControls::detail
