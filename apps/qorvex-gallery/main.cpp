// qorvex-gallery [FILE]: statistics, matrices, distributions and random variates in a window.

#include <QCommandLineParser>
#include <QDir>
#include <QIcon>
#include <QLocale>
#include <QStandardPaths>
#include <QStyle>
#include <QStyleFactory>
#include <cstdio>

#include "apps/qorvex-gallery/appearance.h"
#include "apps/qorvex-gallery/application.h"
#include "apps/qorvex-gallery/edge_style.h"
#include "apps/qorvex-gallery/main_window.h"
#include "apps/qorvex-gallery/model/translations.h"
#include "apps/qorvex-gallery/pages/data_page.h"
#include "apps/qorvex-gallery/screenshots.h"
#include "apps/qorvex-gallery/session.h"
#include "apps/qorvex-gallery/widgets/sheet_document.h"
#include "qorvex/base/version.h"

namespace {

// Makes the pictures the same on every machine that has the font.
void FixAppearance() {
  QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
  QApplication::setFont(QFont(QStringLiteral("DejaVu Sans"), 9));
}

// False, with a message, for a name that no language has.
bool ChooseLanguage(const QString& name) {
  const QLocale locale(name);
  if (locale.language() == QLocale::C) {
    std::fprintf(stderr,
                 "qorvex-gallery: unknown language \"%s\"; use a name such as de or en_GB\n",
                 qPrintable(name));
    return false;
  }
  QLocale::setDefault(locale);
  return true;
}

// The name, version and icon of the application.
void SetIdentity() {
  QApplication::setApplicationName(QStringLiteral("qorvex-gallery"));
  QApplication::setApplicationDisplayName(QStringLiteral("Qorvex Gallery"));
  QApplication::setApplicationVersion(QStringLiteral(QORVEX_VERSION));
  QGuiApplication::setDesktopFileName(QStringLiteral("org.qorvex.gallery"));
  QIcon icon;
  for (const int size : {16, 32, 48, 256})
    icon.addFile(QStringLiteral(":/qorvex/gallery/qorvex-gallery-%1.png").arg(size));
  QApplication::setWindowIcon(icon);
}

}  // namespace

int main(int argc, char** argv) {
  const QCommandLineOption screenshot(
      QStringLiteral("screenshot"),
      QStringLiteral("Write a picture of each page to the directory and exit; needs no display."),
      QStringLiteral("directory"));
  const QCommandLineOption dark(QStringLiteral("dark"), QStringLiteral("Start in dark colours."));
  const QCommandLineOption language(
      QStringLiteral("language"),
      QStringLiteral("The language and the form of numbers, such as de or en_GB. Default: those of "
                     "the system; for pictures en."),
      QStringLiteral("name"));
  QCommandLineParser parser;
  parser.setApplicationDescription(
      QStringLiteral("Statistics, matrices, distributions and random variates in 80-bit "
                     "arithmetic."));
  parser.addOptions({screenshot, dark, language});
  const QCommandLineOption help = parser.addHelpOption();
  const QCommandLineOption version = parser.addVersionOption();
  parser.addPositionalArgument(QStringLiteral("file"), QStringLiteral("Delimited text to open."),
                               QStringLiteral("[file]"));

  // The platform has to be chosen before the application, which handles the arguments, exists.
  QStringList arguments;
  for (int i = 0; i < argc; ++i) arguments.append(QString::fromLocal8Bit(argv[i]));
  parser.parse(arguments);
  const bool takes_pictures = parser.isSet(screenshot);
  if (takes_pictures || parser.isSet(help) || parser.isSet(version))
    qputenv("QT_QPA_PLATFORM", "offscreen");

  const qorvex::gallery::Application application(argc, argv);
  SetIdentity();
  parser.process(application);
  const bool speaks_english = takes_pictures && !parser.isSet(language);
  const QString wanted = speaks_english ? QStringLiteral("en") : parser.value(language);
  if (!wanted.isEmpty() && !ChooseLanguage(wanted)) return 1;
  if (takes_pictures) FixAppearance();
  QApplication::setStyle(new qorvex::gallery::EdgeStyle(QApplication::style()->name()));
  qorvex::gallery::InstallTranslations();
  using qorvex::gallery::Appearance;
  qorvex::gallery::SetAppearance(Appearance::kSystem);
  if (takes_pictures) qorvex::gallery::SetAppearance(Appearance::kLight);

  qorvex::gallery::MainWindow window;
  qorvex::gallery::Session session(
      QDir(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation)));
  if (!takes_pictures && session.Begin()) {
    session.Restore(window);
    window.KeepSession = [&] { return session.Save(window); };
  }
  if (parser.isSet(dark)) window.ChooseAppearance(Appearance::kDark);
  if (takes_pictures) window.Data().Document().OpenExample();
  if (!parser.positionalArguments().isEmpty()) window.Open(parser.positionalArguments().front());
  if (takes_pictures) {
    return qorvex::gallery::WriteScreenshots(window, parser.value(screenshot)) ? 0 : 1;
  }
  window.show();
  return QApplication::exec();
}
