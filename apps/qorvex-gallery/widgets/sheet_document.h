#pragma once

/// @file
/// SheetDocument, the file of the sheet.

#include <QObject>
#include <QString>
#include <functional>

#include "apps/common/table_format.h"
#include "apps/qorvex-gallery/model/sheet_data.h"

class QWidget;

namespace qorvex::gallery {

class Sheet;
class TableLoader;

/// Opens and saves the sheet, with the dialogs for that. Large files are read in the background;
/// until then the sheet stays as it is. Changes are never discarded without asking.
///
/// A file is saved as it was written: with its delimiter, its decimal sign, its line ends, the text
/// of unchanged cells and, of UTF-8, its mark; always as UTF-8. The suffix of another file decides
/// about its delimiter.
class SheetDocument : public QObject {
  Q_OBJECT

 public:
  /// Starts with the sheet as it is, without a file. Sheet, loader and the parent of the dialogs
  /// must outlive it.
  SheetDocument(Sheet& sheet, TableLoader& loader, QWidget& page);
  ~SheetDocument() override;

  /// The name of the file, or a description of the sheet.
  [[nodiscard]] const QString& Title() const noexcept { return title_; }
  /// The file, or the resource of the example; empty for a sheet without a file.
  [[nodiscard]] const QString& Path() const noexcept { return path_; }
  /// Why the last file could not be read; empty if it could.
  [[nodiscard]] const QString& ReadingError() const noexcept { return reading_error_; }
  /// Whether the sheet may be replaced or closed. If there are unsaved changes, asks the user, who
  /// can save them, discard them or cancel; a reading in progress stops before the question.
  [[nodiscard]] bool MayGo();
  /// Writes the sheet to a file. Columns without names get some if the first row would be read as
  /// names. If writing fails, tells why and returns false.
  bool SaveTo(const QString& file);
  /// @{
  /// The folder in which dialogs start without a file.
  [[nodiscard]] const QString& Folder() const noexcept { return folder_; }
  void SetFolder(const QString& folder) { folder_ = folder; }
  /// @}
  /// The size and time of the file when the sheet was read from it or saved; empty without a file.
  [[nodiscard]] const QString& FileState() const noexcept { return file_state_; }
  /// Shows a sheet of an earlier session.
  void Restore(SheetData data, const QString& path, const QString& title,
               const QString& file_state);
  /// Opens a file in a format, without asking about it.
  void OpenAs(const QString& file, const apps::TableFormat& format);

  /// Stores what is being typed; called before the sheet is saved or replaced.
  std::function<void()> CommitText;

 public Q_SLOTS:
  /// Opens a file of delimited text. A reading in progress stops. If the form of the file is in
  /// doubt, asks for it.
  void Open(const QString& file);
  /// Asks for a file and opens it.
  void ChooseFile();
  /// Opens the example.
  void OpenExample();
  /// Starts an empty sheet.
  void NewSheet();
  /// Asks for the form of the file that is shown, and reads it again.
  void ChooseFormat();
  /// Shows a pasted text as a table.
  void ReadText(const QString& text);
  /// Saves the sheet in its file; asks for one if it has none, and whether to replace one that
  /// another program has changed.
  bool Save();
  /// Asks for a file and writes the sheet to it. A reading in progress stops first.
  bool SaveAs();

 Q_SIGNALS:
  /// Another sheet is shown; the column to look at first, empty for any.
  void Opened(const QString& column);
  /// Title or Path has changed.
  void TitleChanged();
  /// A file has been opened or saved.
  void FileUsed(const QString& file);
  /// A remark or an error for the user.
  void Message(const QString& message);

 private:
  // A file, and the column of it to show first.
  struct Source {
    QString file;
    QString title;
    QString column;
  };

  void OpenSource(const Source& source);
  void Load(const Source& source, const apps::TableFormat& format, bool ask);
  void AskFormat(const Source& source, const apps::TableFormat& format, const QString& reason);
  void Show(const Source& source, SheetData data);
  [[nodiscard]] bool MayReplaceFile();
  // Makes the titles of the columns their names.
  void NameColumns();
  void SetSource(const QString& file, const QString& title);

  Sheet& sheet_;
  TableLoader& loader_;
  QWidget& page_;
  QString path_;
  QString title_;
  QString folder_;
  QString file_state_;
  QString reading_error_;
};

}  // namespace qorvex::gallery
