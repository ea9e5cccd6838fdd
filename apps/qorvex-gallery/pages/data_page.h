#pragma once

/// @file
/// DataPage, where a column of numbers is read, edited and described.

#include <QWidget>
#include <thread>

#include "apps/qorvex-gallery/model/data_table.h"
#include "qorvex/components/QorvexDescStats.h"
#include "qorvex/controls/labelled_vector_edit.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QProgressBar;
class QSpinBox;

namespace qorvex::gallery {

class FigureTable;
class MessageBar;
class PlotView;
class TallEditor;

/// Shows a column of a table in an editor, its descriptive statistics, and its histogram with the
/// normal density of the same mean and standard deviation. All of it follows every edit. Begins
/// with an example. Empty cells are left out of the statistics.
///
/// Edits stay in the table when another column is chosen, can be saved as CSV, and are not given up
/// without a question. A large file is read on a thread of its own, while the page shows what it
/// did before and takes no edits.
class DataPage : public QWidget {
  Q_OBJECT

 public:
  explicit DataPage(QWidget* parent = nullptr);
  ~DataPage() override;

  /// The name of the file, or what the example is.
  [[nodiscard]] const QString& Title() const { return title_; }
  /// Whether there are changes that have not been saved.
  [[nodiscard]] bool IsChanged() const { return table_.IsChanged(); }
  /// A file is being read on another thread.
  [[nodiscard]] bool IsReading() const { return !progress_->isHidden(); }
  /// Whether the table may go: with changes, the user is asked to save or to discard them, and may
  /// refuse. A reading that is under way stops before the question.
  [[nodiscard]] bool MayGo();
  /// Writes the table to a file, as CSV. Says on the page why it cannot, and returns false then.
  bool Save(const QString& file);

 public Q_SLOTS:
  /// Opens a file of delimited text. A reading that is under way stops.
  void Open(const QString& file);
  /// Asks for a file and opens it.
  void ChooseFile();
  /// Opens the example.
  void OpenExample();
  /// Asks for a file and writes the table to it. A reading that is under way stops first.
  bool SaveAs();

 Q_SIGNALS:
  /// A table has been read, has been refused, or its reading has been cancelled.
  void ReadingEnded();
  /// Title or IsChanged may have another value.
  void TitleChanged();

 private:
  // What is to be shown of which file.
  struct Source {
    QString file;
    QString title;
    QString column;
  };

  QLayout* MakeHeader();
  QWidget* MakeProgress();
  QLayout* MakeReport();
  void OpenSource(const Source& source);
  void ReadOnThread(const Source& source, qint64 size);
  void StopReading();
  void CancelReading();
  void EndReading(const Source& source, DataTable table);
  void RefuseReading(const QString& why);
  void SetBusy(bool busy);
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
  std::size_t column_ = 0;
  // The numbers of the column as the table has them.
  TQorFloatVector stored_;
  TQorDescStats stats_;
  bool refresh_is_due_ = false;
  // The message of a text that was no number. It outlives the action for which the text was left.
  QString refusal_;

  QLabel* file_;
  QComboBox* columns_;
  MessageBar* message_;
  QWidget* progress_;
  QProgressBar* progress_bar_;
  TQorLabelledVectorEdit* editor_;
  TallEditor* tall_editor_;
  QSpinBox* decimals_;
  QCheckBox* population_;
  FigureTable* report_;
  QLabel* remark_;
  PlotView* plot_;

  // Messages of earlier readings may still be under way.
  int reading_number_ = 0;
  // Last, so that it ends before what it tells its results to.
  std::jthread reader_;
};

}  // namespace qorvex::gallery
