#include "qorvex/vector/conversion.h"

#include <algorithm>
#include <cmath>

#include "qorvex/base/errors.h"

namespace qorvex::inline QorvexVector::detail {

namespace {

// Sets the target to the nearest value of its type. Returns false if it cannot hold the value.
template <FloatElement To, NumericElement From>
bool Narrow(From from, To& target) noexcept {
  target = static_cast<To>(from);
  if constexpr (FloatElement<From>) {
    return !std::isinf(target) || std::isinf(from);
  } else {
    return true;
  }
}

template <IntegerElement To, FloatElement From>
bool Narrow(From from, To& target) noexcept {
  // Extended holds the limits of every integer type. NaN is not within them.
  constexpr auto least = static_cast<Extended>(std::numeric_limits<To>::min());
  constexpr auto most = static_cast<Extended>(std::numeric_limits<To>::max());
  const Extended rounded = std::rint(static_cast<Extended>(from));
  const bool holds = rounded >= least && rounded <= most;
  target = holds ? static_cast<To>(rounded) : To(0);
  return holds;
}

template <IntegerElement To, IntegerElement From>
bool Narrow(From from, To& target) noexcept {
  target = static_cast<To>(from);
  return std::in_range<To>(from);
}

}  // namespace

template <class To, class From>
TQorVector<To> Converted(VectorView<From> values) {
  auto result = TQorVector<To>::ForOverwrite(values.size());
  if constexpr (ConvertsExactlyTo<From, To>) {
    std::copy(values.begin(), values.end(), result.begin());
  } else {
    bool holds = true;
    for (std::size_t i = 0; i < values.size(); ++i) holds &= Narrow(values[i], result.data()[i]);
    if (!holds) RaiseMathError(rsInvalidValue);
  }
  return result;
}

#define QORVEX_INSTANTIATE(From)                                  \
  template TQorVector<Extended> Converted(VectorView<From>);      \
  template TQorVector<double> Converted(VectorView<From>);        \
  template TQorVector<float> Converted(VectorView<From>);         \
  template TQorVector<std::int64_t> Converted(VectorView<From>);  \
  template TQorVector<std::uint32_t> Converted(VectorView<From>); \
  template TQorVector<std::int32_t> Converted(VectorView<From>);  \
  template TQorVector<std::uint16_t> Converted(VectorView<From>); \
  template TQorVector<std::int16_t> Converted(VectorView<From>);  \
  template TQorVector<std::uint8_t> Converted(VectorView<From>);  \
  template TQorVector<std::int8_t> Converted(VectorView<From>);
QORVEX_FOR_NUMERIC_ELEMENTS(QORVEX_INSTANTIATE)
#undef QORVEX_INSTANTIATE

}  // namespace qorvex::inline QorvexVector::detail
