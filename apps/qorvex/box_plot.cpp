#include "apps/qorvex/box_plot.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "apps/common/input_error.h"
#include "apps/common/round_step.h"
#include "apps/qorvex/text_table.h"
#include "qorvex/base/text.h"

namespace qorvex::apps {

namespace {

constexpr std::size_t kWidth = 80;
// Between the names and the box plots.
constexpr std::size_t kGap = 2;

// A line of characters, each of which may be several bytes of UTF-8.
class Line {
 public:
  explicit Line(std::size_t width) : cells_(width, " ") {}

  void Put(std::size_t at, const char* character) { cells_[at] = character; }
  // Between two positions, without them.
  void Fill(std::size_t from, std::size_t to, const char* character) {
    for (std::size_t at = from + 1; at < to; ++at) Put(at, character);
  }
  [[nodiscard]] bool IsFree(std::size_t at) const { return cells_[at][0] == ' '; }
  // Ends with a line break and without blanks before it.
  [[nodiscard]] std::string Text() const {
    std::string text;
    for (const char* const cell : cells_) text += cell;
    text.erase(text.find_last_not_of(' ') + 1);
    return text + '\n';
  }

 private:
  std::vector<const char*> cells_;
};

std::string Padded(const std::string& text, std::size_t width) {
  return text + std::string(width - std::min(width, CharacterCount(text)), ' ');
}

// Round numbers at both ends and at equal distances between them.
class Axis {
 public:
  Axis(Extended low, Extended high, std::size_t width) : width_(width) {
    if (!(low < high)) {
      const Extended around = low == 0 ? 1 : std::fabs(low) / 2;
      low -= around;
      high += around;
    }
    // Fewer steps until the labels are short enough to be told apart.
    for (Extended steps = 10; steps >= 1; --steps) {
      step_ = RoundStep::AtLeast((high - low) / steps);
      first_ = std::floor(low / step_.Times(1));
      if (step_.Times(first_) > low) --first_;
      count_ = 1;
      while (step_.Times(first_ + static_cast<Extended>(count_)) < high) ++count_;
      if (LabelsFit()) break;
    }
  }

  // The position of a value from the low to the high end.
  [[nodiscard]] std::size_t At(Extended value) const {
    const Extended low = step_.Times(first_);
    const Extended high = step_.Times(first_ + static_cast<Extended>(count_));
    const Extended share = (value - low) / (high - low);
    return static_cast<std::size_t>(std::lround(share * static_cast<Extended>(width_ - 1)));
  }

  [[nodiscard]] std::string Ticks() const {
    Line line(width_);
    line.Put(0, "\u2514");
    line.Fill(0, width_ - 1, "\u2500");
    line.Put(width_ - 1, "\u2518");
    for (std::size_t i = 1; i < count_; ++i) line.Put(TickAt(i), "\u2534");
    return line.Text();
  }

  // Below the ticks, starting `margin` characters before the first.
  [[nodiscard]] std::string Labels(std::size_t margin) const {
    std::string text;
    for (std::size_t i = 0; i <= count_; ++i) {
      const std::string label = Label(i);
      const std::size_t middle = margin + TickAt(i);
      const std::size_t before = std::min(middle, label.size() / 2);
      const std::size_t start = std::min(middle - before, kWidth - label.size());
      text.resize(std::max(start, text.size()), ' ');
      text += label;
    }
    return text + '\n';
  }

 private:
  [[nodiscard]] std::size_t TickAt(std::size_t i) const { return i * (width_ - 1) / count_; }

  [[nodiscard]] std::string Label(std::size_t i) const {
    const Extended value = step_.Times(first_ + static_cast<Extended>(i));
    constexpr Extended plain_below = 1e12L;
    constexpr int plain_decimals = 6;
    const Extended last = step_.Times(first_ + static_cast<Extended>(count_));
    const bool plain = std::max(std::fabs(step_.Times(first_)), std::fabs(last)) < plain_below;
    return plain && step_.exponent >= -plain_decimals
               ? Float2EStr(value, std::max(0, -step_.exponent))
               : Float2Str(value);
  }

  [[nodiscard]] bool LabelsFit() const {
    std::size_t longest = 0;
    for (std::size_t i = 0; i <= count_; ++i) longest = std::max(longest, Label(i).size());
    constexpr std::size_t blanks = 3;
    return (longest + blanks) * count_ < width_;
  }

  std::size_t width_;
  RoundStep step_;
  Extended first_ = 0;
  std::size_t count_ = 1;
};

// The three lines of a box plot.
void Draw(const BoxPlot& plot, const Axis& axis, Line& top, Line& middle, Line& bottom) {
  const std::size_t left = axis.At(plot.first_quartile);
  const std::size_t right = axis.At(plot.third_quartile);
  const std::size_t median = axis.At(plot.median);
  const std::size_t lower = axis.At(plot.lower_end);
  const std::size_t upper = axis.At(plot.upper_end);

  middle.Fill(lower, left, "\u2500");
  middle.Fill(right, upper, "\u2500");
  if (lower < left) middle.Put(lower, "\u251C");
  if (upper > right) middle.Put(upper, "\u2524");
  top.Fill(left, right, "\u2500");
  bottom.Fill(left, right, "\u2500");

  const bool is_narrow = left == right;
  top.Put(left, "\u250C");
  middle.Put(left, lower < left ? "\u2524" : "\u2502");
  bottom.Put(left, "\u2514");
  if (!is_narrow) {
    top.Put(right, "\u2510");
    middle.Put(right, upper > right ? "\u251C" : "\u2502");
    bottom.Put(right, "\u2518");
  }
  const bool at_left = median == left && !is_narrow;
  const bool at_right = median == right && !is_narrow;
  top.Put(median, is_narrow ? "\u257B" : at_left ? "\u250E" : at_right ? "\u2512" : "\u2530");
  middle.Put(median, "\u2503");
  bottom.Put(median, is_narrow ? "\u2579" : at_left ? "\u2516" : at_right ? "\u251A" : "\u2538");

  for (const Extended outlier : plot.outliers) middle.Put(axis.At(outlier), "o");
  const std::size_t mean = axis.At(plot.mean);
  if (middle.IsFree(mean)) middle.Put(mean, "+");
}

}  // namespace

std::string DrawBoxPlots(const std::vector<BoxPlot>& plots) {
  Extended low = plots.front().lower_end;
  Extended high = plots.front().upper_end;
  std::size_t name_width = 0;
  for (const BoxPlot& plot : plots) {
    low = std::min(low, plot.lower_end);
    high = std::max(high, plot.upper_end);
    for (const Extended outlier : plot.outliers) {
      low = std::min(low, outlier);
      high = std::max(high, outlier);
    }
    name_width = std::max(name_width, CharacterCount(ShortName(plot.name)));
  }
  if (!std::isfinite(2 * (high - low))) return "";

  const std::size_t margin = name_width + kGap;
  const std::size_t width = kWidth - margin;
  const Axis axis(low, high, width);
  const std::string blanks(margin, ' ');
  std::string text;
  for (const BoxPlot& plot : plots) {
    Line top(width), middle(width), bottom(width);
    Draw(plot, axis, top, middle, bottom);
    text += blanks + top.Text() + Padded(ShortName(plot.name), margin) + middle.Text() + blanks +
            bottom.Text();
  }
  return text + blanks + axis.Ticks() + axis.Labels(margin);
}

}  // namespace qorvex::apps
