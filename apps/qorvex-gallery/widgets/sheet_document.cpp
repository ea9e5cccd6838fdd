#include "apps/qorvex-gallery/widgets/sheet_document.h"

#include <QDateTime>
#include <QFileDialog>
#include <QFileInfo>
#include <QLocale>
#include <QMessageBox>
#include <QSaveFile>
#include <utility>

#include "apps/common/input_error.h"
#include "apps/qorvex-gallery/model/error_text.h"
#include "apps/qorvex-gallery/model/format_doubt.h"
#include "apps/qorvex-gallery/model/sheet.h"
#include "apps/qorvex-gallery/model/sheet_file.h"
#include "apps/qorvex-gallery/model/table_input.h"
#include "apps/qorvex-gallery/widgets/format_dialog.h"
#include "apps/qorvex-gallery/widgets/table_loader.h"

namespace qorvex::gallery {

namespace {

// Whether the path is that of a file, not of the example or of nothing.
bool IsFile(const QString& path) {
  return !path.isEmpty() && !path.startsWith(u':');
}

// Differs after another program has written the file.
QString StateOf(const QString& path) {
  const QFileInfo file(path);
  if (!IsFile(path) || !file.exists()) return {};
  return QStringLiteral("%1 %2").arg(file.size()).arg(file.lastModified().toMSecsSinceEpoch());
}

// The delimiter of another file than the one that was read.
char DelimiterFor(const QString& file, const apps::TableFormat& format) {
  const QString suffix = QFileInfo(file).suffix().toLower();
  if (suffix == QLatin1String("tsv") || suffix == QLatin1String("tab")) {
    return '\t';
  }
  if (suffix == QLatin1String("csv") && format.delimiter != ';')
    return format.decimal_sign == ',' ? ';' : ',';
  return format.delimiter.value_or(',');
}

// Spreadsheets write tabs between cells, and the numbers of the locale.
apps::TableFormat FormatOfPasted(const QString& text) {
  apps::TableFormat format{.encoding = apps::Encoding::kUtf8};
  const bool has_comma = QLocale().decimalPoint() == QLatin1String(",") && !text.contains(u'.');
  if (text.contains(u'\t') || (has_comma && !text.contains(u';'))) format.delimiter = '\t';
  if (has_comma) format.decimal_sign = ',';
  return format;
}

}  // namespace

SheetDocument::SheetDocument(Sheet& sheet, TableLoader& loader, QWidget& page)
    : QObject(&page), sheet_(sheet), loader_(loader), page_(page), title_(tr("Untitled")) {}

SheetDocument::~SheetDocument() = default;

void SheetDocument::Open(const QString& file) {
  if (MayGo()) Load({file, QFileInfo(file).fileName(), {}}, {}, true);
}

void SheetDocument::OpenAs(const QString& file, const apps::TableFormat& format) {
  if (MayGo()) Load({file, QFileInfo(file).fileName(), {}}, format, false);
}

void SheetDocument::ChooseFile() {
  const QString file = QFileDialog::getOpenFileName(
      &page_, tr("Open a table"), folder_, tr("Tables (*.csv *.tsv *.txt *.dat);;All files (*)"));
  if (!file.isEmpty()) Open(file);
}

void SheetDocument::OpenExample() {
  if (!MayGo()) return;
  Load({":/qorvex/gallery/michelson_1879.csv", tr("Example: the velocity of light, Michelson 1879"),
        "speed_km_s"},
       {}, false);
}

void SheetDocument::NewSheet() {
  if (!MayGo()) return;
  loader_.Stop();
  Show({{}, tr("Untitled"), {}}, {});
}

void SheetDocument::ReadText(const QString& text) {
  const QByteArray bytes = text.toUtf8();
  try {
    SheetData data = ReadSheet(TextInputOf(tr("The pasted text"), bytes), FormatOfPasted(text));
    data.SetChanged();
    Show({{}, tr("Untitled"), {}}, std::move(data));
  } catch (const apps::InputError& error) {
    Q_EMIT Message(ErrorText(error));
  }
}

void SheetDocument::Load(const Source& source, const apps::TableFormat& format, bool ask) {
  reading_error_.clear();
  loader_.Load(
      source.file, source.title, format,
      [=, this](SheetData data) {
        const QString doubt = ask ? DoubtIn(data) : QString();
        if (!doubt.isEmpty()) return AskFormat(source, data.Format(), doubt);
        Show(source, std::move(data));
        if (IsFile(source.file)) Q_EMIT FileUsed(source.file);
      },
      [=, this](const QString& why) {
        const auto other = ask ? OtherFormat(source.file) : std::nullopt;
        if (other) return AskFormat(source, *other, why);
        reading_error_ = why;
        Q_EMIT Message(why);
      });
}

void SheetDocument::AskFormat(const Source& source, const apps::TableFormat& format,
                              const QString& reason) {
  auto* const dialog =
      new FormatDialog(source.title, FirstLines(source.file), format, reason, &page_);
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  connect(dialog, &QDialog::accepted, this, [=, this] { Load(source, dialog->Format(), false); });
  dialog->open();
}

void SheetDocument::ChooseFormat() {
  if (!IsFile(path_)) {
    Q_EMIT Message(tr("The sheet is not in a file yet"));
  } else if (MayGo()) {
    AskFormat({path_, title_, {}}, sheet_.Data().Format(), {});
  }
}

void SheetDocument::Show(const Source& source, SheetData data) {
  const apps::Encoding encoding = data.Format().encoding.value_or(apps::Encoding::kUtf8);
  sheet_.SetData(std::move(data));
  SetSource(source.file, source.title);
  Q_EMIT Opened(source.column);
  if (encoding == apps::Encoding::kLatin1) {
    Q_EMIT Message(tr("The file is not UTF-8 and was read as Latin-1; it will be saved as UTF-8"));
  }
}

void SheetDocument::Restore(SheetData data, const QString& path, const QString& title,
                            const QString& file_state) {
  Show({path, title, {}}, std::move(data));
  file_state_ = file_state;
}

void SheetDocument::SetSource(const QString& file, const QString& title) {
  path_ = file;
  title_ = title;
  file_state_ = StateOf(file);
  if (IsFile(file)) folder_ = QFileInfo(file).path();
  Q_EMIT TitleChanged();
}

bool SheetDocument::MayGo() {
  CommitText();
  if (!sheet_.IsChanged()) return true;
  // Otherwise the table could be replaced while the question is open.
  loader_.Stop();
  QMessageBox question(QMessageBox::Warning, tr("Unsaved changes"),
                       tr("Save the changes in the table?"),
                       QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, &page_);
  question.setInformativeText(title_);
  const int answer = question.exec();
  return answer == QMessageBox::Discard || (answer == QMessageBox::Save && Save());
}

bool SheetDocument::Save() {
  if (!IsFile(path_)) return SaveAs();
  return MayReplaceFile() && SaveTo(path_);
}

bool SheetDocument::MayReplaceFile() {
  const QString state = StateOf(path_);
  if (state.isEmpty() || state == file_state_) return true;
  QMessageBox question(QMessageBox::Warning, tr("Changed file"),
                       tr("Another program has changed the file. Replace it?"),
                       QMessageBox::Save | QMessageBox::Cancel, &page_);
  question.setInformativeText(title_);
  return question.exec() == QMessageBox::Save;
}

bool SheetDocument::SaveAs() {
  loader_.Stop();
  CommitText();
  const QString name = path_.isEmpty() ? tr("table") : QFileInfo(path_).completeBaseName();
  QFileDialog dialog(&page_, tr("Save the table"), folder_,
                     tr("CSV files (*.csv);;Tab-separated text (*.tsv);;All files (*)"));
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setDefaultSuffix(QStringLiteral("csv"));
  dialog.selectFile(name + QStringLiteral(".csv"));
  return dialog.exec() == QDialog::Accepted && SaveTo(dialog.selectedFiles().constFirst());
}

bool SheetDocument::SaveTo(const QString& file) {
  CommitText();
  const apps::TableFormat before = sheet_.Data().Format();
  const bool is_same = file == path_;
  const bool lacks_names = HasRowLikeNames(sheet_.Data());
  SheetFileForm form;
  if (is_same) form = FormOf(FirstLines(file).toStdString());
  form.delimiter = is_same && before.delimiter ? *before.delimiter : DelimiterFor(file, before);
  QSaveFile out(file);
  if (out.open(QIODevice::WriteOnly)) {
    if (lacks_names) NameColumns();
    WriteSheet(sheet_.Data(), form, [&out](std::string_view text) {
      out.write(text.data(), static_cast<qsizetype>(text.size()));
    });
  }
  const QString name = QFileInfo(file).fileName();
  if (!out.commit()) {
    Q_EMIT Message(QStringLiteral("%1: %2").arg(name, out.errorString()));
    return false;
  }
  apps::TableFormat format = before;
  format.delimiter = form.delimiter;
  format.header = sheet_.Data().HasNames();
  format.encoding = apps::Encoding::kUtf8;
  sheet_.SetSaved(format);
  SetSource(file, name);
  Q_EMIT FileUsed(file);
  const apps::Encoding encoding = before.encoding.value_or(apps::Encoding::kUtf8);
  if (encoding != apps::Encoding::kUtf8) {
    Q_EMIT Message(tr("%1 was %2 and is saved as UTF-8")
                       .arg(name, QString::fromLatin1(apps::NameOf(encoding))));
  }
  if (lacks_names) {
    Q_EMIT Message(
        tr("The columns have got names, because the first row would have been read as names"));
  } else if (HasNamesLikeARow(sheet_.Data())) {
    Q_EMIT Message(
        tr("The names in %1 are numbers; other programs may read them as a row").arg(name));
  }
  return true;
}

void SheetDocument::NameColumns() {
  for (int column = 0; column < sheet_.columnCount(); ++column)
    sheet_.setHeaderData(column, Qt::Horizontal, sheet_.Title(column), Qt::EditRole);
}

}  // namespace qorvex::gallery
