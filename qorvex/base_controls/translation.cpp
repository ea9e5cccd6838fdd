#include "qorvex/base_controls/translation.h"

#include <QCoreApplication>
#include <QTranslator>
#include <memory>

namespace qorvex::inline QorvexBaseControls {

bool InstallTranslation(const QLocale& locale) {
  auto translator = std::make_unique<QTranslator>(QCoreApplication::instance());
  return translator->load(locale, QStringLiteral("qorvex"), QStringLiteral("_"),
                          QStringLiteral(":/qorvex/i18n")) &&
         QCoreApplication::installTranslator(translator.release());
}

}  // namespace qorvex::inline QorvexBaseControls
