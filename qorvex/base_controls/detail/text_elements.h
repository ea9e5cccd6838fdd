#pragma once

/// @file
/// TextElements, elements that stand for texts.

#include <QHash>
#include <QString>
#include <QStringList>
#include <optional>

#include "qorvex/base/element_types.h"
#include "qorvex/base/export.h"

namespace qorvex::inline QorvexBaseControls::detail {

/// The number that a NaN carries in its lower 62 bits; 0 for a null, and for numbers.
[[nodiscard]] QORVEX_EXPORT quint64 NumberCarriedBy(Extended element);

/// Texts in a table of numbers. Each distinct text gets a number, and the element that stands for
/// it is a NaN that carries this number. So undo, copying and filling treat texts as they treat
/// numbers, and what computes with elements takes a text for a null.
class QORVEX_EXPORT TextElements {
 public:
  /// The element for a text; null for an empty one.
  [[nodiscard]] Extended ElementOf(const QString& text);
  /// The text that an element stands for; nothing for numbers and null.
  [[nodiscard]] std::optional<QString> TextOf(Extended element) const;
  /// Forgets all texts.
  void Clear();

 private:
  QStringList texts_;
  QHash<QString, quint64> numbers_;
};

}  // namespace qorvex::inline QorvexBaseControls::detail
