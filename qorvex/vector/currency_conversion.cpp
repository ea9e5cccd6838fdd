#include "qorvex/vector/currency_conversion.h"

#include <algorithm>

#include "qorvex/vector/building.h"

namespace qorvex::inline QorvexFinVector {

namespace {

template <class To, class From>
TQorVector<To> Converted(VectorView<From> vector, To (*convert)(From)) {
  auto result = TQorVector<To>::ForOverwrite(vector.size());
  std::transform(vector.begin(), vector.end(), result.begin(), convert);
  return result;
}

}  // namespace

TQorCurrVector Vector2QorCurrVector(VectorView<QorLongCurrency> vector) {
  return Converted<QorCurrency>(vector, QorLongCurrency2QorCurrency);
}
TQorCurrVector Vector2QorCurrVector(VectorView<Currency> vector) {
  return Converted<QorCurrency>(vector, Currency2QorCurrency);
}
TQorCurrVector Vector2QorCurrVector(VectorView<Extended> vector) {
  return Converted<QorCurrency>(vector, Float2QorCurrency);
}

TQorLongCurrVector Vector2QorLongCurrVector(VectorView<QorCurrency> vector) {
  return Converted<QorLongCurrency>(vector, QorCurrency2QorLongCurrency);
}
TQorLongCurrVector Vector2QorLongCurrVector(VectorView<Currency> vector) {
  return Converted<QorLongCurrency>(vector, Currency2QorLongCurrency);
}
TQorLongCurrVector Vector2QorLongCurrVector(VectorView<Extended> vector) {
  return Converted<QorLongCurrency>(vector, Float2QorLongCurrency);
}

TQorCurrencyVector Vector2QorCurrencyVector(VectorView<QorCurrency> vector) {
  return Converted<Currency>(vector, QorCurrency2Currency);
}
TQorCurrencyVector Vector2QorCurrencyVector(VectorView<QorLongCurrency> vector) {
  return Converted<Currency>(vector, QorLongCurrency2Currency);
}
TQorCurrencyVector Vector2QorCurrencyVector(VectorView<Currency> vector) {
  return CopyVector(vector);
}
TQorCurrencyVector Vector2QorCurrencyVector(VectorView<Extended> vector) {
  return Converted<Currency>(vector, Float2Currency);
}

TQorFloatVector Vector2FloatVector(VectorView<QorCurrency> vector) {
  return Converted<Extended>(vector, Currency2Float);
}
TQorFloatVector Vector2FloatVector(VectorView<QorLongCurrency> vector) {
  return Converted<Extended>(vector, Currency2Float);
}
TQorFloatVector Vector2FloatVector(VectorView<Currency> vector) {
  return Converted<Extended>(vector, Currency2Float);
}

}  // namespace qorvex::inline QorvexFinVector
