#include "qorvex/vector/currency_conversion.h"

#include <algorithm>
#include <cstdint>

#include "qorvex/base/detail/currency_scale.h"
#include "qorvex/vector/building.h"
#include "qorvex/vector/detail/amount_quotients.h"
#include "qorvex/vector/detail/registers.h"

namespace qorvex::inline QorvexFinVector {

namespace {

template <CurrencyElement To, CurrencyElement From>
TQorVector<To> Rescaled(VectorView<From> vector) {
  auto result = TQorVector<To>::ForOverwrite(vector.size());
  std::ranges::transform(vector, result.begin(), QorvexGlobals::detail::Rescale<To, From>);
  return result;
}

template <CurrencyElement From>
TQorCurrVector InCents(VectorView<From> vector) {
  static_assert(sizeof(QorCurrency) == sizeof(std::int32_t));
  auto result = TQorCurrVector::ForOverwrite(vector.size());
  QorvexVector::detail::DivideToInt32(QorvexVector::detail::Numbers(vector),
                                      From::kScale / QorCurrency::kScale,
                                      reinterpret_cast<std::int32_t*>(result.data()));
  return result;
}

template <CurrencyElement To>
TQorVector<To> FromFloats(VectorView<Extended> vector) {
  auto result = TQorVector<To>::ForOverwrite(vector.size());
  std::ranges::transform(vector, result.begin(), QorvexGlobals::detail::FromFloat<To>);
  return result;
}

template <CurrencyElement From>
TQorFloatVector ToFloats(VectorView<From> vector) {
  auto result = TQorFloatVector::ForOverwrite(vector.size());
  std::ranges::transform(vector, result.begin(), QorvexGlobals::detail::ToFloat<From>);
  return result;
}

}  // namespace

TQorCurrVector Vector2QorCurrVector(VectorView<QorLongCurrency> vector) {
  return InCents(vector);
}
TQorCurrVector Vector2QorCurrVector(VectorView<Currency> vector) {
  return InCents(vector);
}
TQorCurrVector Vector2QorCurrVector(VectorView<Extended> vector) {
  return FromFloats<QorCurrency>(vector);
}

TQorLongCurrVector Vector2QorLongCurrVector(VectorView<QorCurrency> vector) {
  return Rescaled<QorLongCurrency>(vector);
}
TQorLongCurrVector Vector2QorLongCurrVector(VectorView<Currency> vector) {
  return Rescaled<QorLongCurrency>(vector);
}
TQorLongCurrVector Vector2QorLongCurrVector(VectorView<Extended> vector) {
  return FromFloats<QorLongCurrency>(vector);
}

TQorCurrencyVector Vector2QorCurrencyVector(VectorView<QorCurrency> vector) {
  return Rescaled<Currency>(vector);
}
TQorCurrencyVector Vector2QorCurrencyVector(VectorView<QorLongCurrency> vector) {
  return Rescaled<Currency>(vector);
}
TQorCurrencyVector Vector2QorCurrencyVector(VectorView<Currency> vector) {
  return CopyVector(vector);
}
TQorCurrencyVector Vector2QorCurrencyVector(VectorView<Extended> vector) {
  return FromFloats<Currency>(vector);
}

TQorFloatVector Vector2FloatVector(VectorView<QorCurrency> vector) {
  return ToFloats(vector);
}
TQorFloatVector Vector2FloatVector(VectorView<QorLongCurrency> vector) {
  return ToFloats(vector);
}
TQorFloatVector Vector2FloatVector(VectorView<Currency> vector) {
  return ToFloats(vector);
}

}  // namespace qorvex::inline QorvexFinVector
