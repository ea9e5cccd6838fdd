#pragma once

/// @file
/// DataPage, where a column of numbers is read, edited and described.

#include <QWidget>
#include <thread>
#include <variant>

#include "apps/qorvex-gallery/column_reader.h"
#include "qorvex/controls/labelled_vector_edit.h"
#include "qorvex/stats/QorvexDescStats.h"

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

/// Shows a column of a file in an editor, its descriptive statistics, and its histogram with the
/// normal density of the same mean and standard deviation. All of it follows every edit. Begins
/// with an example. Empty cells are left out of the statistics.
///
/// A large file is read on a thread of its own, while the page shows what it did before.
class DataPage : public QWidget {
  Q_OBJECT

 public:
  explicit DataPage(QWidget* parent = nullptr);
  ~DataPage() override;

 public Q_SLOTS:
  /// Opens a file of delimited text. A reading that is under way stops.
  void Open(const QString& file);
  /// Asks for a file and opens it.
  void ChooseFile();
  /// Opens the example.
  void OpenExample();

  /// A file is being read on another thread.
  [[nodiscard]] bool IsReading() const { return !progress_->isHidden(); }

 Q_SIGNALS:
  /// A column has been read, has been refused, or its reading has been cancelled.
  void ReadingEnded();

 protected:
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  // Which column of which file.
  struct Source {
    QString file;
    QString title;
    TableHead head;
    std::size_t column = 0;
  };
  // A column, or why there is none.
  using Reading = std::variant<TableColumn, QString>;

  QLayout* MakeHeader();
  QWidget* MakeProgress();
  QLayout* MakeReport();
  void OpenSource(const QString& file, const QString& title, const QString& column);
  void ChooseColumn(int index);
  void Read();
  void ReadOnThread(qint64 size);
  void StopReading();
  void CancelReading();
  void EndReading(const Reading& reading);
  [[nodiscard]] int LabelWidth() const;
  void ShowSource();
  void RefreshSoon();
  void Refresh();
  void RefreshPlot(const TQorFloatVector& values);

  Source shown_;
  // What is chosen in the header: the source shown, or the one that is being read.
  Source chosen_;
  TQorDescStats stats_;
  QStringList row_names_;
  bool refresh_is_due_ = false;

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
