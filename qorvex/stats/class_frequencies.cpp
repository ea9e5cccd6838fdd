#include "qorvex/stats/class_frequencies.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>

#include "qorvex/base/errors.h"

namespace qorvex::inline QorvexStatistics {

namespace {

// Finds the classes of values.
class Classes {
 public:
  // `unit` is the relative resolution of the values.
  Classes(Extended lower, Extended width, Extended unit)
      : lower_(lower), width_(width), tolerance_(4 * unit), least_(std::fabs(lower)) {}

  // The class of a value among unlimited many in both directions; NaN for NaN.
  [[nodiscard]] Extended Of(Extended x) const {
    const Extended position = (x - lower_) / width_;
    const Extended nearest = std::rint(position);
    const Extended tolerance = tolerance_ * std::max(least_, std::fabs(x));
    if (std::fabs(position - nearest) * width_ <= tolerance) return nearest;
    return std::floor(position);
  }

 private:
  Extended lower_;
  Extended width_;
  Extended tolerance_;
  Extended least_;
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
  const Classes classes(lower, width, kUnit<T>);
  const auto end = static_cast<Extended>(count);
  OutsideClasses found;
  auto frequencies = TQorLWordVector::WithLength(count);
  for (const T value : values) {
    const Extended index = classes.Of(static_cast<Extended>(value));
    if (index >= 0 && index < end) {
      if (++frequencies[static_cast<std::size_t>(index)] == 0) throw EOverflow();
    } else if (index < 0) {
      ++found.below;
    } else if (index >= end) {
      ++found.above;
    } else {
      ++found.not_a_number;
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
