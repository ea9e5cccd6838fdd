#pragma once

/// @file
/// Translations of the texts of the widgets.

#include <QLocale>

#include "qorvex/base/export.h"

namespace qorvex::inline QorvexBaseControls {

/// Installs the translation of the widgets' English texts for a locale; there is one for German.
/// The translations are part of the library. True if there is one for the locale; existing widgets
/// then change their texts.
///
/// Requires a QCoreApplication, and must be called on its thread. Qt's own texts, for example in
/// the context menu, have their own translations.
QORVEX_EXPORT bool InstallTranslation(const QLocale& locale = QLocale());

}  // namespace qorvex::inline QorvexBaseControls
