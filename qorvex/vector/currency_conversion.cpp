#include "qorvex/vector/currency_conversion.h"

#include <algorithm>

#include "qorvex/vector/building.h"

namespace qorvex::inline QorvexFinVector {

namespace {

template <class To, class From>
TQorVector<To> Converted(const TQorVector<From>& vector, To (*convert)(From)) {
  auto result = TQorVector<To>::ForOverwrite(vector.size());
  std::transform(vector.begin(), vector.end(), result.begin(), convert);
  return result;
}

}  // namespace

TQorCurrVector Vector2QorCurrVector(const TQorLongCurrVector& vector) {
  return Converted<QorCurrency>(vector, QorLongCurrency2QorCurrency);
}
TQorCurrVector Vector2QorCurrVector(const TQorCurrencyVector& vector) {
  return Converted<QorCurrency>(vector, Currency2QorCurrency);
}
TQorCurrVector Vector2QorCurrVector(const TQorFloatVector& vector) {
  return Converted<QorCurrency>(vector, Float2QorCurrency);
}

TQorLongCurrVector Vector2QorLongCurrVector(const TQorCurrVector& vector) {
  return Converted<QorLongCurrency>(vector, QorCurrency2QorLongCurrency);
}
TQorLongCurrVector Vector2QorLongCurrVector(const TQorCurrencyVector& vector) {
  return Converted<QorLongCurrency>(vector, Currency2QorLongCurrency);
}
TQorLongCurrVector Vector2QorLongCurrVector(const TQorFloatVector& vector) {
  return Converted<QorLongCurrency>(vector, Float2QorLongCurrency);
}

TQorCurrencyVector Vector2QorCurrencyVector(const TQorCurrVector& vector) {
  return Converted<Currency>(vector, QorCurrency2Currency);
}
TQorCurrencyVector Vector2QorCurrencyVector(const TQorLongCurrVector& vector) {
  return Converted<Currency>(vector, QorLongCurrency2Currency);
}
TQorCurrencyVector Vector2QorCurrencyVector(const TQorCurrencyVector& vector) {
  return CopyVector(vector);
}
TQorCurrencyVector Vector2QorCurrencyVector(const TQorFloatVector& vector) {
  return Converted<Currency>(vector, Float2Currency);
}

TQorFloatVector Vector2FloatVector(const TQorCurrVector& vector) {
  return Converted<Extended>(vector, Currency2Float);
}
TQorFloatVector Vector2FloatVector(const TQorLongCurrVector& vector) {
  return Converted<Extended>(vector, Currency2Float);
}
TQorFloatVector Vector2FloatVector(const TQorCurrencyVector& vector) {
  return Converted<Extended>(vector, Currency2Float);
}

}  // namespace qorvex::inline QorvexFinVector
