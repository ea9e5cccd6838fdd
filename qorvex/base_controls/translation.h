#pragma once

/// @file
/// The texts of the widgets in other languages.

#include <QLocale>

#include "qorvex/base/export.h"

namespace qorvex::inline QorvexBaseControls {

/// Makes the widgets speak the language of the locale, besides English, in which they are written:
/// German so far. The translations are part of the library. True when there is one for the locale;
/// the application keeps it then, and widgets that are there already change their texts.
///
/// Needs a QCoreApplication, and is called on its thread. Qt's own texts, those of the context menu
/// among them, have translations of their own.
QORVEX_EXPORT bool InstallTranslation(const QLocale& locale = QLocale());

}  // namespace qorvex::inline QorvexBaseControls
