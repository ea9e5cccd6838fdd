#include "apps/qorvex-gallery/widgets/figure_table.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGridLayout>
#include <QGuiApplication>
#include <QLabel>
#include <QMenu>
#include <QMimeData>
#include <algorithm>
#include <utility>

#include "apps/qorvex-gallery/model/html.h"
#include "apps/qorvex-gallery/widgets/heading.h"

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

void FigureTable::SetTitled() {
  has_titles_ = true;
}

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
      cell.setVisible(std::cmp_less(r, rows.size()));
      if (columns_[c] == kLabel) {
        label = text;
      } else {
        const bool is_title = has_titles_ && r == 0;
        cell.setFocusPolicy(text.isEmpty() || is_title ? Qt::NoFocus : Qt::StrongFocus);
        // What a screen reader says beside the figure.
        cell.setAccessibleDescription(
            has_titles_ && !is_title ? label + QStringLiteral(", ") + cells_[0][c]->text() : label);
      }
    }
  }
}

QList<QStringList> FigureTable::Rows() const {
  QList<QStringList> rows;
  for (std::size_t first = 0; first < columns_.size();) {
    std::size_t end = first + 1;
    while (end < columns_.size() && columns_[end] != kLabel) ++end;
    for (const std::vector<QLabel*>& cells : cells_) {
      QStringList row;
      for (std::size_t c = first; c < end; ++c) row.append(cells[c]->text());
      const bool is_empty = std::ranges::all_of(row, &QString::isEmpty);
      if (!is_empty) rows.append(row);
    }
    first = end;
  }
  return rows;
}

void FigureTable::Copy() const {
  const QList<QStringList> rows = Rows();
  QString text;
  for (const QStringList& row : rows) text += row.join(u'\t') + u'\n';
  auto* const formats = new QMimeData;
  formats->setText(text);
  formats->setHtml(HtmlTable(rows));
  QGuiApplication::clipboard()->setMimeData(formats);
}

// The figures have no menus of their own, so that this one appears wherever it is asked for.
void FigureTable::contextMenuEvent(QContextMenuEvent* event) {
  auto* const menu = new QMenu(this);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  const auto* const figure = qobject_cast<QLabel*>(childAt(event->pos()));
  if (figure != nullptr && figure->hasSelectedText()) {
    menu->addAction(tr("&Copy Selection"), this, [text = figure->selectedText()] {
      QGuiApplication::clipboard()->setText(text);
    });
  }
  menu->addAction(tr("Copy &Table"), this, &FigureTable::Copy);
  menu->popup(event->globalPos());
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
  auto* const cell = has_titles_ && row == 0 ? MakeHeading({}) : new QLabel;
  cell->setTextFormat(Qt::PlainText);
  cell->setContextMenuPolicy(Qt::NoContextMenu);
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
