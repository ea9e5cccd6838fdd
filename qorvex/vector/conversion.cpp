#include "qorvex/vector/conversion.h"

#include <algorithm>

namespace qorvex::inline QorvexVector::detail {

template <class To, class From>
TQorVector<To> Widened(std::span<const From> values) {
  auto result = TQorVector<To>::ForOverwrite(values.size());
  std::copy(values.begin(), values.end(), result.begin());
  return result;
}

#define QORVEX_INSTANTIATE(T) template TQorFloatVector Widened<Extended>(std::span<const T>);
QORVEX_FOR_NUMERIC_ELEMENTS(QORVEX_INSTANTIATE)
#undef QORVEX_INSTANTIATE

#define QORVEX_INSTANTIATE(T) template TQorInt64Vector Widened<std::int64_t>(std::span<const T>);
QORVEX_FOR_WIDE_INTEGER_ELEMENTS(QORVEX_INSTANTIATE)
QORVEX_FOR_NARROW_INTEGER_ELEMENTS(QORVEX_INSTANTIATE)
#undef QORVEX_INSTANTIATE

#define QORVEX_INSTANTIATE(T) template TQorLIntVector Widened<std::int32_t>(std::span<const T>);
QORVEX_FOR_NARROW_INTEGER_ELEMENTS(QORVEX_INSTANTIATE)
QORVEX_INSTANTIATE(std::int32_t)
#undef QORVEX_INSTANTIATE

}  // namespace qorvex::inline QorvexVector::detail
