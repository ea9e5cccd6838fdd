#pragma once

#include <QColor>
#include <QDebug>
#include <QMetaEnum>
#include <QMetaProperty>
#include <QStringList>
#include <QVariant>
#include <ostream>

// Found by GoogleTest where it reports values.
inline void PrintTo(const QVariant& value, std::ostream* out) {
  QString text;
  QDebug(&text) << value;
  *out << text.toStdString();
}

namespace qorvex {

/// Enumerations and flags as integers, so that values can be compared.
inline QVariant PlainValue(const QMetaProperty& property, const QVariant& value) {
  if (property.isEnumType()) return *static_cast<const int*>(value.constData());
  return value;
}

/// A value of the property that differs from the given plain one.
inline QVariant ChangedValue(const QMetaProperty& property, const QVariant& plain) {
  if (property.isFlagType()) return plain.toInt() ^ property.enumerator().value(0);
  if (property.isEnumType()) {
    const QMetaEnum values = property.enumerator();
    return values.value(values.value(0) == plain.toInt() ? 1 : 0);
  }
  switch (property.typeId()) {
    case QMetaType::Bool:
      return !plain.toBool();
    case QMetaType::Int:
      return plain.toInt() + 1;
    case QMetaType::UInt:
      return plain.toUInt() + 20;  // Rows, of which there are to be more than cells.
    case QMetaType::QString:
      return plain.toString() + "changed";
    case QMetaType::QStringList:
      return plain.toStringList() << "1.5"
                                  << "2.25";
    case QMetaType::QColor:
      return QColor(1, 2, 3);
    default:
      return {};
  }
}

}  // namespace qorvex
