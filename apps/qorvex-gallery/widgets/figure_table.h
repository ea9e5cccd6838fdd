#pragma once

/// @file
/// FigureTable, a table of labels and figures.

#include <QStringList>
#include <QWidget>
#include <vector>

class QGridLayout;
class QLabel;

namespace qorvex::gallery {

/// A table of texts. Labels are to the left of their figures. Figures are aligned to the right and
/// can be selected and copied, one by one or all together from the menu.
class FigureTable : public QWidget {
  Q_OBJECT

 public:
  /// The contents of a column.
  enum Column { kLabel, kFigure };

  FigureTable(std::vector<Column> columns, QWidget* parent = nullptr);
  ~FigureTable() override;

  /// Makes the first row the bold titles of the columns. The table then shrinks with its rows.
  void SetTitled();
  /// Shows these rows, with one text per column; missing cells are empty. Without titles,
  /// the table never shrinks, so that widgets below it do not move.
  void SetRows(const QList<QStringList>& rows);
  /// The texts that are shown, with the figures of each label in the rows below those of the labels
  /// to the left of it, as in a list.
  [[nodiscard]] QList<QStringList> Rows() const;
  /// Puts the rows on the clipboard, as text with tabs for spreadsheets and as HTML.
  void Copy() const;
  /// Makes the first two columns of two tables line up.
  static void Align(FigureTable& one, FigureTable& other);

 protected:
  void contextMenuEvent(QContextMenuEvent* event) override;

 private:
  [[nodiscard]] int WidthOf(int column) const;
  QLabel* AddCell(int row, int column);

  std::vector<Column> columns_;
  bool has_titles_ = false;
  QGridLayout* grid_;
  std::vector<std::vector<QLabel*>> cells_;
};

}  // namespace qorvex::gallery
