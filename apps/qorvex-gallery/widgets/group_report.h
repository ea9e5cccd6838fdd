#pragma once

/// @file
/// GroupReport, the statistics of the groups of a column.

#include <QStringList>
#include <QWidget>

class QLabel;

namespace qorvex {
inline namespace QorvexMatrixEdit {
class TQorMatrixEdit;
}
}  // namespace qorvex

namespace qorvex::gallery {

class Sheet;

/// A table with a row of figures for each group of a column. It can be copied like any block.
class GroupReport : public QWidget {
  Q_OBJECT

 public:
  /// The sheet must outlive it.
  explicit GroupReport(const Sheet& sheet, QWidget* parent = nullptr);
  ~GroupReport() override;

  /// Shows the figures of a numeric column by the groups of another column, whose values are a
  /// whole population or a sample. Hidden without one of them (-1).
  void Show(int column, int group_column, bool population);
  /// The rows of the table, with its headings.
  [[nodiscard]] QList<QStringList> Rows() const;

 private:
  const Sheet& sheet_;
  QStringList groups_;
  QLabel* heading_;
  TQorMatrixEdit* table_;
};

}  // namespace qorvex::gallery
