#include "qorvex/stats/grouped.h"

#include <cmath>
#include <cstddef>
#include <cstdint>

#include "qorvex/base/checked_math.h"
#include "qorvex/base/errors.h"
#include "qorvex/stats/detail/moments.h"
#include "qorvex/vector/aggregates.h"
#include "qorvex/vector/detail/checks.h"
#include "qorvex/vector/detail/integer_arithmetic.h"

namespace qorvex::inline QorvexStatistics {

using detail::Cube;
using detail::FourthPower;
using detail::RequireSpread;
using detail::Square;
using QorvexVector::detail::Int64Sum;
using QorvexVector::detail::RequireElements;
using QorvexVector::detail::WrappingMultiply;

namespace {

// The positions of the classes.
struct Classes {
  Extended lower_bound;
  Extended width;

  // The point at the fraction part / whole of a class.
  [[nodiscard]] Extended Point(std::size_t index, Extended part, Extended whole) const {
    return lower_bound + static_cast<Extended>(index) * width + CheckedDivide(width * part, whole);
  }
};

// Calls visit(frequency, midpoint) for each class.
template <class Visit>
void ForEachClass(VectorView<std::uint32_t> freq, const Classes& classes, Visit visit) {
  const Extended half_width = classes.width / 2;
  for (std::size_t i = 0; i < freq.size(); ++i) {
    const auto index = static_cast<Extended>(static_cast<std::int64_t>(i));
    visit(freq[i], index * classes.width + classes.lower_bound + half_width);
  }
}

// The sum of frequency * value(midpoint).
template <class Value>
Extended WeightedSum(VectorView<std::uint32_t> freq, const Classes& classes, Value value) {
  Extended sum = 0;
  ForEachClass(freq, classes, [&](std::uint32_t frequency, Extended midpoint) {
    sum += static_cast<Extended>(frequency) * value(midpoint);
  });
  return sum;
}

// The sum of power(midpoint - mean), in which every class counts once.
template <class Power>
Extended UnweightedSum(VectorView<std::uint32_t> freq, const Classes& classes, Extended mean,
                       Power power) {
  Extended sum = 0;
  ForEachClass(freq, classes,
               [&](std::uint32_t, Extended midpoint) { sum += power(midpoint - mean); });
  return sum;
}

// The sum of the squared differences from the mean.
Extended SumOfSquares(VectorView<std::uint32_t> freq, const Classes& classes) {
  const Extended mean = GroupedMean(freq, classes.lower_bound, classes.width);
  return WeightedSum(freq, classes, [mean](Extended midpoint) { return Square(midpoint - mean); });
}

// Steps through the cumulative frequencies, which wrap around.
class Cumulation {
 public:
  explicit Cumulation(VectorView<std::uint32_t> freq) : freq_(freq) {}

  // Advances to the first class whose cumulative frequency is at least the target. Returns false if
  // no class reaches it. Targets must not decrease from call to call.
  bool Reach(Extended target) {
    const auto least = static_cast<std::int64_t>(std::ceil(target));
    while (index_ < freq_.size() && before_ + freq_[index_] < least) {
      before_ += freq_[index_];
      ++index_;
    }
    return index_ < freq_.size();
  }

  // The current class.
  [[nodiscard]] std::size_t Index() const { return index_; }

  // The point in the current class below which `target` values lie.
  [[nodiscard]] Extended Point(const Classes& classes, Extended target) const {
    return classes.Point(index_, target - static_cast<Extended>(before_),
                         static_cast<Extended>(freq_[index_]));
  }

 private:
  VectorView<std::uint32_t> freq_;
  std::size_t index_ = 0;
  std::uint32_t before_ = 0;  // the cumulative frequency before the current class
};

std::int64_t RequireTotal(VectorView<std::uint32_t> freq, std::int64_t least, MessageId message) {
  const std::int64_t total = SumVector(freq);
  if (total < least) RaiseMathError(message);
  return total;
}

}  // namespace

Extended GroupedMean(VectorView<std::uint32_t> freq, Extended lower_bound, Extended width) {
  RequireElements(freq);
  // Both sums in one pass: the second one costs nothing beside the first.
  Extended sum = 0;
  Int64Sum total;
  ForEachClass(freq, {lower_bound, width}, [&](std::uint32_t frequency, Extended midpoint) {
    sum += static_cast<Extended>(frequency) * midpoint;
    total.Add(frequency);
  });
  return total.Value() == 0 ? 0 : sum / static_cast<Extended>(total.Value());
}

Extended GroupedMedian(VectorView<std::uint32_t> freq, Extended lower_bound, Extended width) {
  const Extended half = static_cast<Extended>(SumVector(freq)) / 2;
  Cumulation cumulation(freq);
  if (!cumulation.Reach(half)) RaiseMathError(rsMedianNotFound);
  return cumulation.Point({lower_bound, width}, half);
}

bool GroupedMode(VectorView<std::uint32_t> freq, Extended lower_bound, Extended width,
                 Extended& mode) {
  RequireElements(freq);
  const std::size_t last = freq.size() - 1;
  std::size_t index = 0;
  bool tie = false;
  for (std::size_t i = 1; i <= last; ++i) {
    if (freq[i] == freq[index]) tie = true;
    if (freq[i] > freq[index]) {
      index = i;
      tie = false;
    }
  }
  if (tie) return false;
  const auto rise = static_cast<Extended>(freq[index] - (index == 0 ? 0 : freq[index - 1]));
  const auto fall = static_cast<Extended>(freq[index] - (index == last ? 0 : freq[index + 1]));
  mode = Classes{lower_bound, width}.Point(index, rise, rise + fall);
  return true;
}

void GroupedQuartiles(VectorView<std::uint32_t> freq, Extended lower_bound, Extended width,
                      Extended& q1, Extended& q3) {
  const Classes classes{lower_bound, width};
  const std::int64_t total = SumVector(freq);
  const Extended quarter = static_cast<Extended>(total) / 4;
  const Extended three_quarters =
      static_cast<Extended>(WrappingMultiply<std::int64_t>(3, total)) / 4;
  Cumulation first(freq);
  if (!first.Reach(quarter)) RaiseMathError(rsQuartilesNotFound);
  Cumulation third = first;
  if (!third.Reach(three_quarters)) RaiseMathError(rsQuartilesNotFound);
  const Extended lower = first.Point(classes, quarter);
  const Extended upper = third.Point(classes, three_quarters);
  q1 = lower;
  q3 = upper;
}

void GetGroupedDeciles(VectorView<std::uint32_t> freq, Extended lower_bound, Extended width,
                       std::span<Extended, 9> deciles) {
  const Classes classes{lower_bound, width};
  const std::int64_t total = SumVector(freq);
  const std::size_t last = freq.size() - 1;
  const std::uint32_t before_last = static_cast<std::uint32_t>(total) - freq[last];
  const Extended tenth = static_cast<Extended>(total) / 10;
  Cumulation cumulation(freq);
  for (std::size_t i = 1; i <= deciles.size(); ++i) {
    const Extended target = tenth * static_cast<Extended>(i);
    const bool before = total != 0 && cumulation.Reach(target) && cumulation.Index() != last;
    deciles[i - 1] =
        before ? cumulation.Point(classes, target) : static_cast<Extended>(before_last);
  }
}

Extended GroupedSampleVariance(VectorView<std::uint32_t> freq, Extended lower_bound,
                               Extended width) {
  const std::int64_t total = SumVector(freq);
  if (total < 2) return 0;
  return SumOfSquares(freq, {lower_bound, width}) / static_cast<Extended>(total - 1);
}

Extended GroupedPopulationVariance(VectorView<std::uint32_t> freq, Extended lower_bound,
                                   Extended width) {
  const std::int64_t total = SumVector(freq);
  if (total == 0) return 0;
  return SumOfSquares(freq, {lower_bound, width}) / static_cast<Extended>(total);
}

Extended GroupedSampleStdDev(VectorView<std::uint32_t> freq, Extended lower_bound, Extended width) {
  return std::sqrt(GroupedSampleVariance(freq, lower_bound, width));
}

Extended GroupedPopulationStdDev(VectorView<std::uint32_t> freq, Extended lower_bound,
                                 Extended width) {
  return std::sqrt(GroupedPopulationVariance(freq, lower_bound, width));
}

void GroupedSums(VectorView<std::uint32_t> freq, Extended lower_bound, Extended width,
                 Extended& sum, Extended& sum_sq) {
  RequireElements(freq);
  Extended values = 0;
  Extended squares = 0;
  ForEachClass(freq, {lower_bound, width}, [&](std::uint32_t frequency, Extended midpoint) {
    values += static_cast<Extended>(frequency) * midpoint;
    squares += static_cast<Extended>(frequency) * Square(midpoint);
  });
  sum = values;
  sum_sq = squares;
}

Extended GetGroupedMeanDev(VectorView<std::uint32_t> freq, Extended lower_bound, Extended width,
                           Extended mean) {
  const std::int64_t total = SumVector(freq);
  if (total == 0) return 0;
  return WeightedSum(freq, {lower_bound, width},
                     [mean](Extended midpoint) { return std::fabs(midpoint - mean); }) /
         static_cast<Extended>(total);
}

Extended GetGroupedSampleSkew(VectorView<std::uint32_t> freq, Extended lower_bound, Extended width,
                              Extended mean, Extended std_dev) {
  const std::int64_t total = RequireTotal(freq, detail::kMinCountForSkew, rsVectorG2);
  RequireSpread(std_dev);
  return UnweightedSum(freq, {lower_bound, width}, mean, Cube) /
         (static_cast<Extended>(total) * Cube(std_dev));
}

Extended GetGroupedPopulationSkew(VectorView<std::uint32_t> freq, Extended lower_bound,
                                  Extended width, Extended mean, Extended std_dev) {
  const std::int64_t total = RequireTotal(freq, detail::kMinCountForSkew, rsVectorG2);
  RequireSpread(std_dev);
  const std::int64_t product = WrappingMultiply(total - 1, total - 2);
  return static_cast<Extended>(total) * UnweightedSum(freq, {lower_bound, width}, mean, Cube) /
         (static_cast<Extended>(product) * Cube(std_dev));
}

Extended GetGroupedSampleKurtosis(VectorView<std::uint32_t> freq, Extended lower_bound,
                                  Extended width, Extended mean, Extended std_dev) {
  const std::int64_t total = RequireTotal(freq, detail::kMinCountForKurtosis, rsVectorG3);
  RequireSpread(std_dev);
  const auto n = static_cast<Extended>(total);
  const auto low_bits = static_cast<std::uint32_t>(total - 1);
  const auto three_squares = static_cast<std::int32_t>(3 * low_bits * low_bits);
  const std::int64_t two_factors = WrappingMultiply(total - 2, total - 3);
  const std::int64_t three_factors =
      WrappingMultiply(WrappingMultiply(total - 1, total - 2), total - 3);
  return n * (n + 1) * UnweightedSum(freq, {lower_bound, width}, mean, FourthPower) /
             (FourthPower(std_dev) * static_cast<Extended>(three_factors)) -
         static_cast<Extended>(three_squares) / static_cast<Extended>(two_factors);
}

Extended GetGroupedPopulationKurtosis(VectorView<std::uint32_t> freq, Extended lower_bound,
                                      Extended width, Extended mean, Extended std_dev) {
  const std::int64_t total = RequireTotal(freq, detail::kMinCountForKurtosis, rsVectorG3);
  RequireSpread(std_dev);
  return UnweightedSum(freq, {lower_bound, width}, mean, FourthPower) /
             (FourthPower(std_dev) * static_cast<Extended>(total)) -
         3;
}

}  // namespace qorvex::inline QorvexStatistics
