#include "apps/qorvex-gallery/model/translations.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QTranslator>
#include <memory>
#include <optional>
#include <string>

#include "qorvex/base/Qorvex_rs_math.h"
#include "qorvex/base_controls/translation.h"

namespace qorvex::gallery {

namespace {

bool Install(const QLocale& locale, const QString& file, const QString& folder) {
  auto translator = std::make_unique<QTranslator>(QCoreApplication::instance());
  return translator->load(locale, file, QStringLiteral("_"), folder) &&
         QCoreApplication::installTranslator(translator.release());
}

// May be called on any thread; so may translate.
std::optional<std::string> MessageOf(MessageId id) {
  const std::string english(EnglishMessageText(id));
  return QCoreApplication::translate("Messages", english.c_str()).toStdString();
}

}  // namespace

bool InstallTranslations(const QLocale& locale) {
  const QString own = QStringLiteral(":/qorvex/gallery/i18n");
  Install(locale, QStringLiteral("qtbase"), QLibraryInfo::path(QLibraryInfo::TranslationsPath));
  InstallTranslation(locale);
  Install(locale, QStringLiteral("catalogue"), own);
  SetMessageLookup(MessageOf);
  return Install(locale, QStringLiteral("qorvex-gallery"), own);
}

}  // namespace qorvex::gallery
