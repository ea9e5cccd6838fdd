#include "qorvex/stats/class_frequencies.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>

#include "qorvex/base/errors.h"

namespace qorvex::inline QorvexStatistics {

namespace {

constexpr std::int64_t kBelow = -1;
constexpr std::int64_t kUnknown = -2;

// Finds the classes of values.
class Classes {
 public:
  // `unit` is the relative resolution of the values.
  Classes(Extended lower, Extended width, std::uint32_t count, Extended unit)
      : lower_(lower),
        width_(width),
        end_(count),
        tolerance_(4 * unit),
        lower_estimate_(static_cast<double>(lower)),
        scale_(static_cast<double>(1 / width)) {
    // Twice what the tolerance and the rounding errors of an estimate amount to.
    const Extended extent = std::max(std::fabs(lower), std::fabs(lower + end_ * width));
    margin_ = static_cast<double>((8 * unit + 0x1p-48L) * extent / width);
  }

  // The class of a value; kBelow, or the number of classes or more for values above all; kUnknown
  // for NaN.
  template <NumericElement T>
  [[nodiscard]] std::int64_t Of(T value) const {
    // In doubles, which is enough unless the value is near a bound.
    const double estimate = (static_cast<double>(value) - lower_estimate_) * scale_;
    if (estimate > -1 && estimate < 0x1p33) {
      const std::int64_t index = static_cast<std::int64_t>(estimate + 1) - 1;
      const double part = estimate - static_cast<double>(index);
      if (part > margin_ && part < 1 - margin_) return index;
    }
    return Exactly(static_cast<Extended>(value));
  }

 private:
  [[nodiscard]] std::int64_t Exactly(Extended x) const {
    // Halves have a finite difference where the values have none.
    const Extended distance = x - lower_;
    const Extended position =
        std::isinf(distance) ? (x / 2 - lower_ / 2) / (width_ / 2) : distance / width_;
    const Extended nearest = std::rint(position);
    const Extended tolerance = tolerance_ * std::max(std::fabs(lower_), std::fabs(x));
    const bool at_bound = std::fabs(position - nearest) * width_ <= tolerance;
    const Extended index = at_bound ? nearest : std::floor(position);
    if (std::isnan(index)) return kUnknown;
    return static_cast<std::int64_t>(std::clamp<Extended>(index, kBelow, end_));
  }

  Extended lower_;
  Extended width_;
  Extended end_;
  Extended tolerance_;
  double lower_estimate_;
  double scale_;
  double margin_;
};

template <NumericElement T>
constexpr Extended kUnit = std::numeric_limits<Extended>::epsilon();
template <>
constexpr Extended kUnit<double> = std::numeric_limits<double>::epsilon();
template <>
constexpr Extended kUnit<float> = std::numeric_limits<float>::epsilon();

}  // namespace

template <NumericElement T>
TQorLWordVector ClassFrequencies(VectorView<T> values, Extended lower, Extended width,
                                 std::uint32_t count, OutsideClasses& outside) {
  if (!std::isfinite(lower) || !(width > 0) || !std::isfinite(width) || count == 0) {
    RaiseMathError(rsInvalidClasses);
  }
  const Classes classes(lower, width, count, kUnit<T>);
  OutsideClasses found;
  auto frequencies = TQorLWordVector::WithLength(count);
  for (const T value : values) {
    const std::int64_t index = classes.Of(value);
    if (index >= 0 && index < count) {
      if (++frequencies[static_cast<std::size_t>(index)] == 0) throw EOverflow();
    } else if (index >= 0) {
      ++found.above;
    } else {
      ++(index == kBelow ? found.below : found.not_a_number);
    }
  }
  outside = found;
  return frequencies;
}

template <NumericElement T>
TQorLWordVector ClassFrequencies(VectorView<T> values, Extended lower, Extended width,
                                 std::uint32_t count) {
  OutsideClasses outside;
  TQorLWordVector frequencies = ClassFrequencies(values, lower, width, count, outside);
  if (outside.below != 0 || outside.above != 0 || outside.not_a_number != 0) {
    RaiseMathError(rsOutsideClasses);
  }
  return frequencies;
}

#define QORVEX_INSTANTIATE(T)                                                                 \
  template TQorLWordVector ClassFrequencies(VectorView<T>, Extended, Extended, std::uint32_t, \
                                            OutsideClasses&);                                 \
  template TQorLWordVector ClassFrequencies(VectorView<T>, Extended, Extended, std::uint32_t);
QORVEX_FOR_NUMERIC_ELEMENTS(QORVEX_INSTANTIATE)
#undef QORVEX_INSTANTIATE

}  // namespace qorvex::inline QorvexStatistics
