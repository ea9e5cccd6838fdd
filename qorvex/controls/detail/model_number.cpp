#include "qorvex/controls/detail/model_number.h"

#include <cmath>
#include <concepts>
#include <limits>
#include <string>

#include "qorvex/base/errors.h"
#include "qorvex/base/text.h"
#include "qorvex/base_controls/detail/number_text.h"

namespace qorvex::inline QorvexControls::detail {

namespace {

constexpr Extended kNull = std::numeric_limits<Extended>::quiet_NaN();

/// A type of numbers in a variant.
struct NumberType {
  QMetaType type;
  Extended (*read)(const QVariant& item);
  /// A variant without a value if the number does not belong to the type.
  QVariant (*write)(Extended number);
};

template <class T>
QVariant Write(Extended number) {
  using Limits = std::numeric_limits<T>;
  if constexpr (std::integral<T>) {
    const bool fits = number >= static_cast<Extended>(Limits::min()) &&
                      number <= static_cast<Extended>(Limits::max());
    if (!fits) return {};
  }
  const auto converted = static_cast<T>(number);
  if (static_cast<Extended>(converted) != number) return {};
  return QVariant::fromValue(converted);
}

template <class T>
NumberType TypeOf() {
  return {QMetaType::fromType<T>(),
          [](const QVariant& item) { return static_cast<Extended>(item.value<T>()); }, Write<T>};
}

const NumberType* FindType(const QVariant& item) {
  static const NumberType types[] = {TypeOf<double>(),       TypeOf<int>(),   TypeOf<qlonglong>(),
                                     TypeOf<long double>(),  TypeOf<float>(), TypeOf<unsigned>(),
                                     TypeOf<qulonglong>(),   TypeOf<long>(),  TypeOf<short>(),
                                     TypeOf<signed char>(),  TypeOf<ulong>(), TypeOf<ushort>(),
                                     TypeOf<unsigned char>()};
  for (const NumberType& type : types) {
    if (type.type == item.metaType()) return &type;
  }
  return nullptr;
}

std::optional<Extended> PlainNumber(const std::string& text) {
  try {
    return Str2Float(text);
  } catch (const EConvertError&) {
    return std::nullopt;
  }
}

}  // namespace

std::optional<Extended> NumberOf(const QVariant& item, const QLocale& locale) {
  // A database returns a null that has the type of its column.
  if (!item.isValid() || item.isNull()) return kNull;
  if (const NumberType* const type = FindType(item)) return type->read(item);
  if (!item.canConvert<QString>()) return std::nullopt;
  const QString text = item.toString().trimmed();
  if (text.isEmpty()) return kNull;
  if (const auto plain = PlainNumber(text.toStdString())) return plain;
  return QorvexBaseControls::detail::ParseLocalNumber(text, locale);
}

bool HoldsText(const QVariant& item) {
  return item.metaType().id() == QMetaType::QString && !item.toString().trimmed().isEmpty();
}

QVariant ItemOfText(const QString& text, const QVariant& held, const QLocale& locale) {
  if (FindType(held) == nullptr || held.metaType() == QMetaType::fromType<long double>())
    return text;
  const std::optional<Extended> number = NumberOf(text, locale);
  return number ? ItemOf(*number, held) : text;
}

QVariant ItemOf(Extended number, const QVariant& held) {
  if (std::isnan(number)) return {};
  if (const NumberType* const type = FindType(held)) {
    if (QVariant item = type->write(number); item.isValid()) return item;
  }
  return QString::fromStdString(Float2Str(number));
}

}  // namespace qorvex::inline QorvexControls::detail
