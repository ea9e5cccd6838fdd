#pragma once

/// @file
/// FigureTable, labels and figures in columns.

#include <QStringList>
#include <QWidget>
#include <vector>

class QGridLayout;
class QLabel;

namespace qorvex::gallery {

/// A table of texts. Columns of labels stand on the left of columns of figures, which are aligned
/// to the right; figures can be selected and copied.
class FigureTable : public QWidget {
  Q_OBJECT

 public:
  /// What is in a column.
  enum Column { kLabel, kFigure };

  FigureTable(std::vector<Column> columns, QWidget* parent = nullptr);
  ~FigureTable() override;

  /// Shows these rows, each with a text a column; cells that are not given are empty. The table
  /// never becomes lower, so that what is below it stays in its place.
  void SetRows(const QList<QStringList>& rows);

 private:
  QLabel* AddCell(int row, int column);

  std::vector<Column> columns_;
  QGridLayout* grid_;
  std::vector<std::vector<QLabel*>> cells_;
};

}  // namespace qorvex::gallery
