#pragma once

#include <QColor>
#include <QMetaEnum>
#include <QMetaProperty>
#include <QStringList>
#include <QVariant>
#include <string>
#include <vector>

namespace qorvex {

/// A value of the property as text: enumerations and flags as numbers, the parts of colours and
/// lists one after the other, nothing for the default colour.
inline QString ValueText(const QMetaProperty& property, const QVariant& value) {
  if (property.isEnumType()) return QString::number(*static_cast<const int*>(value.constData()));
  if (property.typeId() == QMetaType::QStringList) return value.toStringList().join("");
  if (property.typeId() != QMetaType::QColor) return value.toString();
  const auto color = value.value<QColor>();
  if (!color.isValid()) return {};
  return QString("%1%2%3").arg(color.red()).arg(color.green()).arg(color.blue());
}

inline QString ValueText(const QMetaProperty& property, const QObject* object) {
  return ValueText(property, property.read(object));
}

/// A value of the property that differs from the given one.
inline QVariant ChangedValue(const QMetaProperty& property, const QVariant& value) {
  const int number = ValueText(property, value).toInt();
  if (property.isFlagType()) return number ^ property.enumerator().value(0);
  if (property.isEnumType()) {
    const QMetaEnum values = property.enumerator();
    return values.value(values.value(0) == number ? 1 : 0);
  }
  const int type = property.typeId();
  if (type == QMetaType::Bool) return !value.toBool();
  if (type == QMetaType::Int) return number + 1;
  if (type == QMetaType::LongLong) return value.toLongLong() + 1;
  if (type == QMetaType::UInt) return value.toUInt() + 20;  // More rows than cells.
  // The user's property of a cell is a number.
  if (property.isUser()) return QStringLiteral("25");
  if (type == QMetaType::QString) return value.toString() + "changed";
  if (type == QMetaType::QStringList) return value.toStringList() + QStringList{"1.5", "2.25"};
  return type == QMetaType::QColor ? QColor(1, 2, 3) : QVariant();
}

/// The properties that our own classes publish, in order.
inline std::vector<QMetaProperty> Published(const QObject* object) {
  std::vector<QMetaProperty> properties;
  for (int i = 0; i < object->metaObject()->propertyCount(); ++i) {
    const QMetaProperty property = object->metaObject()->property(i);
    if (QByteArray(property.enclosingMetaObject()->className()).startsWith("qorvex::")) {
      properties.push_back(property);
    }
  }
  return properties;
}

/// The published properties with their values; (shown) marks those that can only be read.
inline std::string PropertyTable(const QObject& object) {
  QStringList entries;
  for (const QMetaProperty& property : Published(&object)) {
    const bool can_be_set = property.isStored() && (property.hasStdCppSet() || property.isUser());
    entries << QString("%1=%2%3").arg(property.name(), ValueText(property, &object),
                                      can_be_set ? "" : "(shown)");
  }
  return entries.join(' ').toStdString();
}

}  // namespace qorvex
