#include "qorvex/controls/detail/edit_window.h"

#include <algorithm>
#include <array>
#include <functional>
#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <string>
#include <utility>

namespace qorvex::inline QorvexControls::detail {
namespace {

constexpr std::uint32_t kLargestCount = std::numeric_limits<std::uint32_t>::max();
constexpr int kLargestPosition = std::numeric_limits<int>::max();

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
    return {.before_top =
                [this](std::uint32_t top) {
                  Add("t" + std::to_string(top));
                  if (on_before_top) on_before_top(top);
                },
            .place_bar = [this] { Add("bar"); },
            .current_changed =
                [this](std::uint32_t from, std::uint32_t to) {
                  Add("c" + std::to_string(from) + ">" + std::to_string(to));
                },
            .redisplay = [this] { Add("show"); },
            .after_top = [this](std::uint32_t top) { Add("after" + std::to_string(top)); }};
  }

  void Add(const std::string& event) { log_ += (log_.empty() ? "" : " ") + event; }

  std::string log_;
};

using State = std::array<std::uint32_t, 3>;

TEST(EditWindow, ScrollsInOrderAndTheCurrentElementFollowsTheTop) {
  Recorded r(CurrentRule::kFollowsTop, 4, 10);
  EditWindow& w = r.window;
  w.Enter(2);
  EXPECT_EQ(r.Take(), "c0>2");
  w.SetTop(3);
  EXPECT_EQ(r.Take(), "t3 bar c2>5 show after3");
  w.SetTop(3);
  w.ScrollUp(4);
  w.ScrollDown(0);
  w.Enter(2);
  w.Enter(4);
  EXPECT_EQ(r.Take(), "");
  w.ScrollUp(3);
  EXPECT_EQ(r.Take(), "t0 bar c5>2 show after0");
  w.ScrollDown(kLargestCount);
  EXPECT_EQ(r.Take(), "t6 bar c2>8 show after6");
  w.SetTop(7);
  w.ScrollDown(1);
  EXPECT_EQ(r.Take(), "") << "only the clamp made it the present top";
  EXPECT_EQ(r.State(), (State{6, 2, 8}));
}

TEST(EditWindow, TheCurrentElementWaitsForAnEntry) {
  Recorded r(CurrentRule::kFollowsEntry, 4, 10);
  EditWindow& w = r.window;
  w.SetTop(kLargestCount);
  EXPECT_EQ(r.Take(), "t6 bar show after6");
  w.SetTop(7);
  EXPECT_EQ(r.Take(), "bar show");
  w.SetTop(6);
  EXPECT_EQ(r.Take(), "");
  EXPECT_EQ(r.State(), (State{6, 0, 0}));
  w.Enter(1);
  EXPECT_EQ(r.Take(), "c0>7");
  w.SetTop(2);
  r.on_before_top = [&](std::uint32_t) { w.SetCurrent(0); };
  w.SetTop(4);
  EXPECT_EQ(r.Take(), "t2 bar show after2 t4 bar show after4");
  EXPECT_EQ(r.State(), (State{4, 1, 7}));
}

TEST(EditWindow, TheBarMovesNeitherItselfNorTheCurrentElement) {
  for (const CurrentRule rule : {CurrentRule::kFollowsTop, CurrentRule::kFollowsEntry}) {
    Recorded r(rule, 4, 10);
    EditWindow& w = r.window;
    EXPECT_EQ(w.BarMaximum(), 6);
    for (const int outside : {-1, 7, kLargestPosition, std::numeric_limits<int>::min(), 0}) {
      w.SetTopFromBar(outside);
    }
    EXPECT_EQ(r.Take(), "");
    w.SetTopFromBar(5);
    EXPECT_EQ(r.Take(), "t5 show after5");
    EXPECT_EQ(r.State(), (State{5, 0, 0}));
    w.SetTopFromBar(6);
    EXPECT_EQ(w.BarPosition(), 6);
    // An axis that is shortened meanwhile keeps the bar and the current element on it.
    r.Take();
    r.on_before_top = [&](std::uint32_t) { w.SetCount(5); };
    w.SetTopFromBar(4);
    EXPECT_EQ(r.Take(), "t4 bar show bar show after1");
    EXPECT_EQ(r.State(), (State{1, 0, 0}));
  }
}

TEST(EditWindow, RequestingACurrentElementScrollsToIt) {
  struct {
    std::uint32_t element;
    State reached;
  } const cases[] = {
      {5, {3, 2, 5}},              // under the focus
      {1, {1, 2, 3}},              // too few above: in the first edit
      {9, {6, 2, 8}},              // too few below
      {kLargestCount, {6, 2, 8}},  // beyond the axis
      {2, {0, 2, 2}},              // the present one
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
}

TEST(EditWindow, OtherSizesKeepTopFocusAndCurrentElementOnTheAxis) {
  for (const CurrentRule rule : {CurrentRule::kFollowsTop, CurrentRule::kFollowsEntry}) {
    Recorded r(rule, 4, 10);
    EditWindow& w = r.window;
    w.SetTop(6);
    w.Enter(3);
    r.Take();
    w.SetCount(10);
    w.SetEdits(4);
    EXPECT_EQ(r.Take(), "");
    w.SetCount(3);
    EXPECT_EQ(r.Take(), "t0 bar c9>2 show after0");
    EXPECT_EQ(r.State(), (State{0, 2, 2}));
    EXPECT_EQ(w.UsedEdits(), 3U);
    w.SetEdits(2);
    EXPECT_EQ(r.Take(), "bar c2>1 show");
    w.SetCount(0);
    EXPECT_EQ(r.Take(), "bar c1>0 show");
    EXPECT_EQ(r.State(), (State{0, 0, 0}));
    EXPECT_EQ(w.UsedEdits(), 0U);
    w.SetCount(300);
    EXPECT_EQ(r.Take(), "bar show");
    w.SetEdits(255);
    w.SetTop(kLargestCount);
    w.Enter(254);
    EXPECT_EQ(r.State(), (State{45, 254, 299}));
    w.SetEdits(0);
    EXPECT_EQ(r.State(), (State{45, 0, 45}));
    w.SetTop(kLargestCount);
    EXPECT_EQ(w.Top(), 300U);
    EXPECT_EQ(w.Current(), rule == CurrentRule::kFollowsTop ? 299U : 45U);
    r.Take();
    w.Enter(0);
    EXPECT_EQ(r.Take(), "") << "there are no edits";
  }
}

TEST(EditWindow, AHandlerShortensTheAxis) {
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
  }
}

TEST(EditWindow, AThrowingHandlerLeavesTheWindowAsItWas) {
  Recorded r(CurrentRule::kFollowsTop, 4, 10);
  r.on_before_top = [](std::uint32_t) { throw 1; };
  EXPECT_THROW(r.window.SetTop(3), int);
  EXPECT_EQ(r.State(), (State{0, 0, 0}));
  r.on_before_top = nullptr;
  r.window.SetTop(3);
  EXPECT_EQ(r.window.Top(), 3U);
}

TEST(EditWindow, ABarReachesEveryPartOfALongAxis) {
  struct {
    std::uint32_t edits, count;
    int maximum;
  } const cases[] = {
      {4, 4, 0},
      {4, 5, 1},
      {4, 0x80000003U, kLargestPosition},  // the last that counts elements
      {4, 0x80000004U, 0x40000000},        // the first that counts in twos
      {4, 0x80000005U, 0x40000000},
      {0, kLargestCount, kLargestPosition},
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
    const int middle = maximum / 2;
    w.SetTopFromBar(middle);
    EXPECT_EQ(w.BarPosition(), middle) << count;
    EXPECT_NEAR(w.Top(), (count - edits) / 2., 2) << count;
    w.SetTopFromBar(0);
    EXPECT_EQ(w.Top(), 0U) << count;
  }
}

// The events alone give the full state, whatever the order of operations.
TEST(EditWindow, EventsReportEveryChange) {
  const auto seed = std::random_device{}();
  SCOPED_TRACE(seed);
  std::mt19937 engine(seed);
  for (const CurrentRule rule : {CurrentRule::kFollowsTop, CurrentRule::kFollowsEntry}) {
    std::array<std::uint32_t, 3> shown{};
    std::uint32_t current = 0, announced = 0;
    int bar = 0;
    EditWindow* window = nullptr;
    EditWindow w(rule, {.before_top = [&](std::uint32_t top) { announced = top; },
                        .place_bar = [&] { bar = window->BarPosition(); },
                        .current_changed =
                            [&](std::uint32_t from, std::uint32_t to) {
                              EXPECT_EQ(from, current);
                              EXPECT_NE(from, to);
                              current = to;
                            },
                        .redisplay =
                            [&] {
                              shown = {window->Top(), window->Edits(), window->Count()};
                            },
                        .after_top = [&](std::uint32_t top) { EXPECT_EQ(top, announced); }});
    window = &w;
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
      operations[operation](number);
      SCOPED_TRACE(std::to_string(operation) + " " + std::to_string(number));
      EXPECT_LE(w.Top(), w.LargestTop());
      EXPECT_EQ(w.UsedEdits(), std::min(w.Edits(), w.Count()));
      EXPECT_LT(w.Focus(), std::max(w.UsedEdits(), 1U));
      EXPECT_LT(w.Current(), std::max(w.Count(), 1U));
      EXPECT_EQ(w.Current(), current);
      EXPECT_EQ(shown, (std::array{w.Top(), w.Edits(), w.Count()}));
      EXPECT_EQ(w.BarPosition(), bar);
    }
  }
}

}  // namespace
}  // namespace qorvex::inline QorvexControls::detail
