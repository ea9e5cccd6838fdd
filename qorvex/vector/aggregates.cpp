#include "qorvex/vector/aggregates.h"

#include <cmath>
#include <span>
#include <type_traits>

#include "qorvex/vector/detail/checks.h"
#include "qorvex/vector/detail/integer_arithmetic.h"
#include "qorvex/vector/detail/integer_sum.h"
#include "qorvex/vector/detail/ordered_sum.h"
#include "qorvex/vector/detail/registers.h"

namespace qorvex::inline QorvexVector {

namespace {

template <IntegerElement T, class Term>
std::int64_t SumOfTerms(VectorView<T> vector, Term term) {
  detail::Int64Sum sum;
  for (const T x : vector) sum.Add(term(x));
  return sum.Value();
}

}  // namespace

template <AnyElement T>
SumOf<T> SumVector(VectorView<T> vector) {
  detail::RequireElements(vector);
  if constexpr (FloatElement<T>) {
    // Starts with the first element instead of zero, so that the sum of a single negative zero is
    // negative zero.
    return detail::AddValues<T>(vector[0], vector.subspan(1));
  } else if constexpr (IntegerElement<T>) {
    return detail::IntegerSum(detail::Numbers(vector));
  } else {
    return T(static_cast<typename T::StoredType>(detail::IntegerSum(detail::Numbers(vector))));
  }
}

template <NumericElement T>
SumOf<T> SumSqVector(VectorView<T> vector) {
  detail::RequireElements(vector);
  if constexpr (FloatElement<T>) {
    return detail::AddSquares(0, vector);
  } else if constexpr (std::is_same_v<T, typename detail::SquareWidth<T>::Type>) {
    return detail::IntegerProductSum<T>(vector, vector);
  } else {
    return SumOfTerms(vector, detail::NarrowSquare<T>);
  }
}

template <FloatElement T>
Extended SumSqDiffVector(VectorView<T> vector, ScalarOf<T> mean) {
  return detail::SumSqDiffFromExtended(vector, mean);
}

namespace detail {

template <WideIntegerElement T>
std::int64_t SumSqDiffFromInteger(VectorView<T> vector, T mean) {
  RequireElements(vector);
  return SumOfTerms(vector, [mean](T x) { return NarrowSquare(WrappingSubtract(x, mean)); });
}

template <WideNumericElement T>
Extended SumSqDiffFromExtended(VectorView<T> vector, Extended mean) {
  RequireElements(vector);
  if constexpr (FloatElement<T>) {
    return AddSquaredDifferences(0, vector, mean);
  } else {
    Extended sum = 0;
    for (const T x : vector) {
      const Extended difference = static_cast<Extended>(x) - mean;
      sum += difference * difference;
    }
    return sum;
  }
}

}  // namespace detail

template <WideNumericElement T>
SumOf<T> SumSqDiffVectors(VectorView<T> a, VectorView<T> b) {
  detail::RequireSameLength(a, b);
  detail::RequireElements(a);
  if constexpr (FloatElement<T>) {
    return detail::AddSquaredDifferences(0, a, b);
  } else if constexpr (sizeof(T) == sizeof(std::int32_t)) {
    const auto low_bits = [](VectorView<T> v) {
      return std::span(reinterpret_cast<const std::int32_t*>(v.data()), v.size());
    };
    return detail::IntegerSquaredDifferenceSum(low_bits(a), low_bits(b));
  } else {
    detail::Int64Sum sum;
    for (std::size_t i = 0; i < a.size(); ++i) {
      sum.Add(detail::NarrowSquare(detail::WrappingSubtract<std::int64_t>(a[i], b[i])));
    }
    return sum.Value();
  }
}

template <NumericElement T>
Extended VectorMagnitude(VectorView<T> vector) {
  if constexpr (FloatElement<T>) {
    return std::sqrt(detail::AddSquares(0, vector));
  } else {
    Extended sum = 0;
    for (const T x : vector) sum += static_cast<Extended>(x) * static_cast<Extended>(x);
    return std::sqrt(sum);
  }
}

#define QORVEX_INSTANTIATE(T) template SumOf<T> SumVector(VectorView<T>);
QORVEX_FOR_ALL_ELEMENTS(QORVEX_INSTANTIATE)
#undef QORVEX_INSTANTIATE

#define QORVEX_INSTANTIATE(T)                   \
  template SumOf<T> SumSqVector(VectorView<T>); \
  template Extended VectorMagnitude(VectorView<T>);
QORVEX_FOR_NUMERIC_ELEMENTS(QORVEX_INSTANTIATE)
#undef QORVEX_INSTANTIATE

#define QORVEX_INSTANTIATE(T)                                       \
  template SumOf<T> SumSqDiffVectors(VectorView<T>, VectorView<T>); \
  template Extended detail::SumSqDiffFromExtended(VectorView<T>, Extended);
QORVEX_FOR_WIDE_NUMERIC_ELEMENTS(QORVEX_INSTANTIATE)
#undef QORVEX_INSTANTIATE

#define QORVEX_INSTANTIATE(T) template Extended SumSqDiffVector(VectorView<T>, T);
QORVEX_FOR_FLOAT_ELEMENTS(QORVEX_INSTANTIATE)
#undef QORVEX_INSTANTIATE

#define QORVEX_INSTANTIATE(T) template std::int64_t detail::SumSqDiffFromInteger(VectorView<T>, T);
QORVEX_FOR_WIDE_INTEGER_ELEMENTS(QORVEX_INSTANTIATE)
#undef QORVEX_INSTANTIATE

}  // namespace qorvex::inline QorvexVector
