#include "apps/qorvex-gallery/widgets/figure_table.h"

#include <QGridLayout>
#include <QLabel>
#include <algorithm>
#include <utility>

namespace qorvex::gallery {

FigureTable::FigureTable(std::vector<Column> columns, QWidget* parent)
    : QWidget(parent), columns_(std::move(columns)), grid_(new QGridLayout(this)) {
  grid_->setContentsMargins(0, 0, 0, 0);
  grid_->setHorizontalSpacing(3 * fontMetrics().averageCharWidth());
  grid_->setVerticalSpacing(4);
  // The rest of the width is left empty.
  grid_->setColumnStretch(static_cast<int>(columns_.size()), 1);
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

FigureTable::~FigureTable() = default;

void FigureTable::SetRows(const QList<QStringList>& rows) {
  while (std::cmp_less(cells_.size(), rows.size())) {
    std::vector<QLabel*> row;
    for (std::size_t column = 0; column < columns_.size(); ++column)
      row.push_back(AddCell(static_cast<int>(cells_.size()), static_cast<int>(column)));
    cells_.push_back(std::move(row));
  }
  for (std::size_t r = 0; r < cells_.size(); ++r) {
    const QStringList texts = rows.value(static_cast<qsizetype>(r));
    QString label;
    for (std::size_t c = 0; c < columns_.size(); ++c) {
      const QString text = texts.value(static_cast<qsizetype>(c));
      QLabel& cell = *cells_[r][c];
      cell.setText(text);
      if (columns_[c] == kLabel) {
        label = text;
      } else {
        cell.setFocusPolicy(text.isEmpty() ? Qt::NoFocus : Qt::StrongFocus);
        cell.setAccessibleDescription(label);
      }
    }
  }
}

void FigureTable::Align(FigureTable& one, FigureTable& other) {
  for (const int column : {0, 1}) {
    const int width = std::max(one.WidthOf(column), other.WidthOf(column));
    one.grid_->setColumnMinimumWidth(column, width);
    other.grid_->setColumnMinimumWidth(column, width);
  }
}

int FigureTable::WidthOf(int column) const {
  int width = 0;
  for (const std::vector<QLabel*>& row : cells_)
    width = std::max(width, row[static_cast<std::size_t>(column)]->sizeHint().width());
  return width;
}

QLabel* FigureTable::AddCell(int row, int column) {
  auto* const cell = new QLabel;
  cell->setTextFormat(Qt::PlainText);
  if (columns_[static_cast<std::size_t>(column)] == kFigure) {
    cell->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    cell->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  } else {
    // Space between one pair of columns and the next.
    if (column > 0) cell->setIndent(4 * fontMetrics().averageCharWidth());
  }
  grid_->addWidget(cell, row, column);
  return cell;
}

}  // namespace qorvex::gallery
