#pragma once

/// @file
/// Groups of digits, as in 1,234,567.

#include <QLocale>
#include <QString>

#include "qorvex/base/export.h"

namespace qorvex::inline QorvexBaseControls::detail {

/// A number that LocalNumber has written, with the group separators of the locale.
[[nodiscard]] QORVEX_EXPORT QString WithGroups(const QString& number, const QLocale& locale);

/// What a number with separators may mean, written as the locale reads it.
struct SeparatorReadings {
  /// All separators separate groups; empty if they cannot.
  QString groups;
  /// The last separator is the decimal one, those before it separate groups; empty if they cannot.
  QString decimals;
  /// There are two different separators.
  bool two_kinds = false;
  /// The last one is the group separator of the locale.
  bool is_local_group = false;
};

/// Points, commas, and the locale's own separators may be any separator; no-break spaces, thin
/// spaces and apostrophes can only separate groups. Groups have three digits, or two before the
/// last three as in India, and no leading zero. Ordinary spaces, which may separate the numbers of
/// a list, separate groups only in front of a decimal separator, and only in locales that group
/// with another kind of space.
[[nodiscard]] SeparatorReadings ReadSeparators(const QString& text, const QLocale& locale);

}  // namespace qorvex::inline QorvexBaseControls::detail
