#pragma once

/// @file
/// DataPage, which reads, edits and describes a column of numbers.

#include "apps/qorvex-gallery/model/data_table.h"
#include "apps/qorvex-gallery/widgets/page.h"
#include "qorvex/controls/labelled_vector_edit.h"

class QComboBox;
class QLabel;

namespace qorvex::gallery {

class ColumnReport;
class MessageBar;
class TableLoader;

/// Shows one column of a table in an editor, its descriptive statistics, and its histogram with the
/// normal density of the same mean and standard deviation. Every edit updates all of these. Empty
/// cells are left out of the statistics. The page starts with an example.
///
/// Edits are kept when another column is chosen, can be saved as CSV, and are never discarded
/// without asking. A large file is read in the background; until it has been read, the page keeps
/// showing the previous table but does not let it be edited.
class DataPage : public Page {
  Q_OBJECT

 public:
  explicit DataPage(QWidget* parent = nullptr);
  ~DataPage() override;

  /// The name of the file, or a description of the example.
  [[nodiscard]] const QString& Title() const { return title_; }
  /// Why the last file could not be read; empty if it could.
  [[nodiscard]] const QString& ReadingError() const { return reading_error_; }
  /// Whether there are unsaved changes.
  [[nodiscard]] bool IsChanged() const { return table_.IsChanged(); }
  /// Whether the table may be replaced or closed. If there are unsaved changes, asks the user, who
  /// can save them, discard them or cancel; a reading in progress stops before the question.
  [[nodiscard]] bool MayGo();
  /// Writes the table to a CSV file. If that fails, shows why on the page and returns false.
  bool Save(const QString& file);

 public Q_SLOTS:
  /// Opens a file of delimited text. A reading in progress stops.
  void Open(const QString& file);
  /// Asks for a file and opens it.
  void ChooseFile();
  /// Opens the example.
  void OpenExample();
  /// Asks for a file and writes the table to it. A reading in progress stops first.
  bool SaveAs();

 Q_SIGNALS:
  /// A reading in the background has ended: its table is shown, or it was refused or stopped.
  void ReadingEnded();
  /// Title or IsChanged may have changed.
  void TitleChanged();

 private:
  // A file, and the column of it to show first.
  struct Source {
    QString file;
    QString title;
    QString column;
  };

  QLayout* MakeHeader();
  QLayout* MakeBody();
  void OpenSource(const Source& source);
  void ShowTable(const Source& source, DataTable table);
  void ChooseColumn(int index);
  void ShowColumn();
  void CommitTexts();
  void RefuseText(const QString& message);
  void StoreEdits();
  void SetSource(const QString& file, const QString& title);
  [[nodiscard]] int LabelWidth() const;
  void RefreshSoon();
  void Refresh();

  DataTable table_;
  QString path_;
  QString title_;
  QString reading_error_;
  std::size_t column_ = 0;
  // The numbers of the column as they are in the table.
  TQorFloatVector stored_;
  bool refresh_is_due_ = false;
  // The message about a text that is not a number. The action that took the focus from the text
  // does not clear it.
  QString refusal_;

  QLabel* file_;
  QComboBox* columns_;
  MessageBar* message_;
  TableLoader* loader_;
  TQorLabelledVectorEdit* editor_;
  ColumnReport* report_;
};

}  // namespace qorvex::gallery
