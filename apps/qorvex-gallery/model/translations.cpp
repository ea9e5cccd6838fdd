#include "apps/qorvex-gallery/model/translations.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QTranslator>
#include <memory>
#include <string>
#include <string_view>

#include "qorvex/base/Qorvex_rs_math.h"
#include "qorvex/base_controls/translation.h"
#include "qorvex/stats/Qorvex_RS_DescStats.h"

namespace qorvex::gallery {

namespace {

bool Install(const QLocale& locale, const QString& file, const QString& folder) {
  auto translator = std::make_unique<QTranslator>(QCoreApplication::instance());
  return translator->load(locale, file, QStringLiteral("_"), folder) &&
         QCoreApplication::installTranslator(translator.release());
}

// Translates texts of the library, which may ask for them on any thread.
std::string Translation(const char* context, std::string_view english) {
  return QCoreApplication::translate(context, std::string(english).c_str()).toStdString();
}

}  // namespace

bool InstallTranslations(const QLocale& locale) {
  qDeleteAll(QCoreApplication::instance()->findChildren<QTranslator*>());
  const QString own = QStringLiteral(":/qorvex/gallery/i18n");
  Install(locale, QStringLiteral("qtbase"), QLibraryInfo::path(QLibraryInfo::TranslationsPath));
  InstallTranslation(locale);
  Install(locale, QStringLiteral("catalogue"), own);
  SetMessageLookup([](MessageId id) { return Translation("Messages", EnglishMessageText(id)); });
  SetReportLookup([](ReportTextId id) { return Translation("Report", EnglishReportText(id)); });
  return Install(locale, QStringLiteral("qorvex-gallery"), own);
}

}  // namespace qorvex::gallery
