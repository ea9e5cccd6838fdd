#pragma once

/// @file
/// Numbers as the items of Qt's models hold them.

#include <QLocale>
#include <QVariant>
#include <optional>

#include "qorvex/base/element_types.h"
#include "qorvex/base/export.h"

namespace qorvex::inline QorvexControls::detail {

/// The number that an item holds: the value of a number, or of a text, which is read as a plain
/// decimal number first and then in the locale. An item without a value and a blank text are null,
/// a NaN. Nothing for anything else.
[[nodiscard]] QORVEX_EXPORT std::optional<Extended> NumberOf(const QVariant& item,
                                                             const QLocale& locale);

/// A text for an item to hold: the number that NumberOf reads from it if the item holds a type of
/// numbers, as ItemOf writes that. A model with long doubles takes texts as well.
[[nodiscard]] QORVEX_EXPORT QVariant ItemOfText(const QString& text, const QVariant& held,
                                                const QLocale& locale);

/// Whether an item holds a text, which is not blank.
[[nodiscard]] QORVEX_EXPORT bool HoldsText(const QVariant& item);

/// A number for an item to hold. It has the type of what the item holds if that is a type of
/// numbers to which this one belongs exactly; otherwise it is the shortest decimal text that
/// NumberOf turns back into the number. A null is a variant without a value.
[[nodiscard]] QORVEX_EXPORT QVariant ItemOf(Extended number, const QVariant& held);

}  // namespace qorvex::inline QorvexControls::detail
