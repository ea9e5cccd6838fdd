#pragma once

/// @file
/// The languages of the program.

#include <QLocale>

namespace qorvex::gallery {

/// Makes the program, its widgets, the errors of the library and Qt's own dialogs speak the
/// language of the locale, as far as there are translations; there is one into German. Qt's are
/// those of the system. Replaces all translations of the application. True if there is one of the
/// program. Widgets that exist keep their texts. Requires an application.
bool InstallTranslations(const QLocale& locale = QLocale());

}  // namespace qorvex::gallery
