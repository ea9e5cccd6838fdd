#include "apps/qorvex-gallery/session.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QMap>
#include <QSaveFile>
#include <QSettings>
#include <QTabWidget>
#include <utility>

#include "apps/common/input_error.h"
#include "apps/qorvex-gallery/main_window.h"
#include "apps/qorvex-gallery/model/error_text.h"
#include "apps/qorvex-gallery/model/missing_text.h"
#include "apps/qorvex-gallery/model/sheet.h"
#include "apps/qorvex-gallery/model/sheet_file.h"
#include "apps/qorvex-gallery/model/table_input.h"
#include "apps/qorvex-gallery/pages/data_page.h"
#include "apps/qorvex-gallery/widgets/recent_files.h"
#include "apps/qorvex-gallery/widgets/sheet_document.h"

namespace qorvex::gallery {

namespace {

// The copy has a form of its own, whatever the form of the file of the sheet.
constexpr char kDelimiter = ',';

void SaveFormat(const apps::TableFormat& format, QSettings& settings) {
  settings.setValue("delimiter", QChar::fromLatin1(format.delimiter.value_or(kDelimiter)));
  settings.setValue("decimalSign", QChar::fromLatin1(format.decimal_sign.value_or('.')));
  settings.setValue("header", format.header.value_or(true));
  settings.setValue("missing", TextOfWords(format.missing));
  settings.setValue("encoding", static_cast<int>(format.encoding.value_or(apps::Encoding::kUtf8)));
}

apps::TableFormat FormatIn(const QSettings& settings) {
  apps::TableFormat format;
  format.delimiter = settings.value("delimiter").toChar().toLatin1();
  format.decimal_sign = settings.value("decimalSign").toChar().toLatin1();
  format.header = settings.value("header").toBool();
  format.missing = WordsIn(settings.value("missing").toString());
  format.encoding = static_cast<apps::Encoding>(settings.value("encoding").toInt());
  return format;
}

bool IsWritten(QSettings& settings) {
  settings.sync();
  return settings.status() == QSettings::NoError;
}

bool SaveCopy(const SheetData& sheet, const QString& file) {
  QSaveFile out(file);
  if (!out.open(QIODevice::WriteOnly)) return false;
  const auto write = [&out](std::string_view text) {
    out.write(text.data(), static_cast<qsizetype>(text.size()));
  };
  WriteSheet(sheet, {.delimiter = kDelimiter, .has_names = true}, write);
  return out.commit();
}

// Whether nothing is shown yet because the file of the last session is still being read.
bool ReadsFirstSheet(const MainWindow& window) {
  return window.Data().IsReading() && window.Table().columnCount() == 0 &&
         window.Data().Document().Path().isEmpty();
}

void RestoreSheet(const QSettings& settings, const QString& copy, SheetDocument& document) {
  const QString path = settings.value("path").toString();
  const apps::TableFormat format = FormatIn(settings);
  if (!settings.value("unsaved").toBool()) {
    if (path.startsWith(u':')) return document.OpenExample();
    if (!path.isEmpty()) document.OpenAs(path, format);
    return;
  }
  apps::TableFormat of_copy = format;
  of_copy.encoding = apps::Encoding::kUtf8;
  of_copy.delimiter = kDelimiter;
  of_copy.header = true;
  try {
    SheetData sheet = ReadSheet(OpenFile(copy), of_copy);
    sheet.SetFormat(format);
    sheet.SetChanged();
    document.Restore(std::move(sheet), path, settings.value("title").toString(),
                     settings.value("fileState").toString());
  } catch (const apps::InputError& error) {
    const QString name = QDateTime::currentDateTime().toString("'unsaved'-yyyyMMdd-hhmmss'.csv'");
    const QString aside = QFileInfo(copy).dir().filePath(name);
    const bool is_kept = QFile::rename(copy, aside);
    Q_EMIT document.Message(is_kept ? QStringLiteral("%1 (%2)").arg(ErrorText(error), aside)
                                    : ErrorText(error));
  }
}

}  // namespace

Session::Session(const QDir& folder) : folder_(folder), lock_(folder.filePath("session.lock")) {
  // A program may run for days.
  lock_.setStaleLockTime(0);
}

bool Session::Begin() {
  return folder_.mkpath(".") && lock_.tryLock();
}

void Session::Restore(MainWindow& window) const {
  QSettings settings(Settings(), QSettings::IniFormat);
  if (!settings.contains("window/geometry")) return;
  SheetDocument& document = window.Data().Document();
  window.restoreGeometry(settings.value("window/geometry").toByteArray());
  window.ChooseAppearance(static_cast<Appearance>(settings.value("window/appearance").toInt()));
  window.Recent().SetFiles(settings.value("files/recent").toStringList());
  document.SetFolder(settings.value("files/folder").toString());
  settings.beginGroup("sheet");
  RestoreSheet(settings, Copy(), document);
  settings.endGroup();
  const QTabWidget& pages = *window.Pages();
  QMap<QString, QVariantMap> states;
  settings.beginGroup("pages");
  for (int i = 0; i < pages.count(); ++i) {
    const QString name = pages.widget(i)->objectName();
    states[name] = settings.value(name).toMap();
    if (settings.value("current") == name) window.Pages()->setCurrentIndex(i);
  }
  const auto restore_pages = [&pages, states] {
    for (int i = 0; i < pages.count(); ++i)
      static_cast<Page*>(pages.widget(i))->SetState(states[pages.widget(i)->objectName()]);
  };
  if (!window.Data().IsReading()) return restore_pages();
  // They choose columns of the sheet.
  QObject::connect(&window.Data(), &DataPage::ReadingEnded, &window, restore_pages,
                   Qt::SingleShotConnection);
}

bool Session::Save(const MainWindow& window) const {
  const SheetDocument& document = window.Data().Document();
  const SheetData& sheet = window.Table().Data();
  const bool has_copy = sheet.IsChanged() && sheet.Columns() > 0;
  if (has_copy && !SaveCopy(sheet, Copy())) return false;
  QSettings settings(Settings(), QSettings::IniFormat);
  settings.setValue("window/geometry", window.saveGeometry());
  settings.setValue("window/appearance", static_cast<int>(window.ChosenAppearance()));
  settings.setValue("files/recent", window.Recent().Files());
  settings.setValue("files/folder", document.Folder());
  if (ReadsFirstSheet(window)) return IsWritten(settings);
  settings.beginGroup("sheet");
  settings.setValue("path", document.Path());
  settings.setValue("title", document.Title());
  settings.setValue("fileState", document.FileState());
  settings.setValue("unsaved", has_copy);
  SaveFormat(sheet.Format(), settings);
  settings.endGroup();
  settings.beginGroup("pages");
  const QTabWidget& pages = *window.Pages();
  for (int i = 0; i < pages.count(); ++i) {
    const auto& page = static_cast<const Page&>(*pages.widget(i));
    settings.setValue(page.objectName(), page.State());
  }
  settings.setValue("current", pages.currentWidget()->objectName());
  if (!IsWritten(settings)) return false;
  if (!has_copy) QFile::remove(Copy());
  return true;
}

}  // namespace qorvex::gallery
