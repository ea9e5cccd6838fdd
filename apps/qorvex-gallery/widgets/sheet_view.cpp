#include "apps/qorvex-gallery/widgets/sheet_view.h"

#include <QApplication>
#include <QClipboard>
#include <QHBoxLayout>
#include <QInputDialog>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QMimeData>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "apps/qorvex-gallery/model/missing_text.h"
#include "apps/qorvex-gallery/model/sheet.h"

namespace qorvex::gallery {

SheetView::SheetView(Sheet& sheet, QWidget* parent)
    : QWidget(parent),
      sheet_(sheet),
      editor_(new TQorMatrixEdit),
      hint_(new QLabel(tr("Type or paste values, open a file, or drop one here."))) {
  SetUpEditor();
  connect(editor_, &CellPanel::OnContextMenu, this, [this](QMenu& menu) {
    menu.addSeparator();
    AddCommands(menu);
  });
  connect(editor_, &CellPanel::OnSelectionChange, this, &SheetView::FollowSelection);
  connect(editor_, &CellPanel::OnKeyDown, this, [this](QKeyEvent* event) {
    const QMimeData* const contents = QApplication::clipboard()->mimeData();
    const bool pastes = event->matches(QKeySequence::Paste) && sheet_.columnCount() == 0;
    if (!pastes || contents == nullptr || !contents->hasText()) return;
    event->accept();
    Q_EMIT TablePasted(contents->text());
  });
  connect(&sheet_, &QAbstractItemModel::modelReset, this, [this] {
    chosen_ = -1;
    FitColumns(0, sheet_.columnCount() - 1);
  });
  connect(&sheet_, &QAbstractItemModel::headerDataChanged, this,
          [this](Qt::Orientation, int first, int last) { FitColumns(first, last); });
  connect(&sheet_, &Sheet::Changed, this, &SheetView::FitWidth);
  auto* const buttons = new QHBoxLayout;
  const auto add = [&](const QString& text, auto slot) {
    auto* const button = new QPushButton(text);
    connect(button, &QPushButton::clicked, this, slot);
    buttons->addWidget(button);
  };
  add(tr("Add &Row"), &SheetView::AppendRow);
  add(tr("Add &Column"), &SheetView::AppendColumn);
  add(tr("Re&name…"), &SheetView::RenameColumn);
  buttons->addStretch();
  auto* const layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(editor_, 1);
  layout->addWidget(hint_);
  layout->addLayout(buttons);
  hint_->setWordWrap(true);
  hint_->setForegroundRole(QPalette::PlaceholderText);
  FitWidth();
}

void SheetView::SetUpEditor() {
  constexpr int preferred_rows = 20;
  constexpr int preferred_columns = 4;
  constexpr int digits = 12;
  constexpr int narrowest = 20;
  editor_->setObjectName("sheet");
  editor_->setAccessibleName(tr("Sheet"));
  editor_->setNoOfRowEdits(preferred_rows);
  editor_->setNoOfColEdits(preferred_columns);
  editor_->setCellWidth(14 * fontMetrics().averageCharWidth());
  editor_->setCellHeight(fontMetrics().height() + 8);
  editor_->setAutoEdits(true);
  // Wide columns do not widen the page.
  editor_->setMinimumWidth(narrowest * fontMetrics().averageCharWidth());
  editor_->setNumberFormat(NumberSettings::nfGeneral);
  editor_->setSignificantDigits(digits);
  editor_->setBlankWhenNull(true);
  editor_->setRowHeadings(true);
  editor_->setColHeadings(true);
  editor_->setCanGrow(true);
  editor_->setTextItems(true);
  editor_->setModel(&sheet_);
  editor_->OnSpecialColor = [this](quint32 row, quint32 column, Extended, QColor& color) {
    color = ColorOf(row, column, color);
  };
}

SheetView::~SheetView() {
  // It commits a text that is being typed when it is destroyed.
  editor_->disconnect(this);
}

QColor SheetView::ColorOf(quint32 row, quint32 column, const QColor& usual) const {
  const SheetData& cells = sheet_.Data();
  const bool dark = palette().color(QPalette::Base).lightness() < 128;
  switch (cells.KindOf(cells.Cell(row, column))) {
    case CellKind::kMissing:
      return palette().color(QPalette::PlaceholderText);
    case CellKind::kText:
      if (cells.IsMixed(column)) return dark ? QColor(0xff, 0x8a, 0x80) : QColor(0xb0, 0x00, 0x20);
      break;
    case CellKind::kNumber:
      break;
  }
  return usual;
}

void SheetView::FitColumns(int first, int last) {
  constexpr int most_cells = 20'000;
  const int most_rows = std::min(200, most_cells / std::max(1, last - first + 1));
  constexpr int most_characters = 24;
  const QFontMetrics metrics = fontMetrics();
  const int margin = 3 * metrics.averageCharWidth();
  for (int column = first; column <= last; ++column) {
    int width = editor_->CellWidth();
    const auto fit = [&](const QString& text) {
      width = std::max(width, metrics.horizontalAdvance(text.left(most_characters)) + margin);
    };
    fit(sheet_.Title(column));
    // Numbers are shown with as many digits as have room.
    const int rows = sheet_.IsNumeric(column) ? 0 : std::min(most_rows, sheet_.rowCount());
    for (int row = 0; row < rows; ++row) fit(sheet_.Text(row, column));
    editor_->setColWidth(static_cast<quint32>(column), width);
  }
  FitWidth();
}

void SheetView::FitWidth() {
  hint_->setVisible(sheet_.columnCount() == 0);
  const QFontMetrics metrics = fontMetrics();
  int width = metrics.horizontalAdvance(QString::number(sheet_.rowCount() + 1)) +
              6 * metrics.averageCharWidth() + style()->pixelMetric(QStyle::PM_ScrollBarExtent);
  for (quint32 column = 0; column < std::max<quint32>(editor_->NoOfCols(), 3); ++column)
    width += editor_->ColWidth(column);
  setMaximumWidth(std::max(width, layout()->minimumSize().width()));
}

void SheetView::CommitText() {
  for (TextCell* const cell : editor_->findChildren<TextCell*>()) cell->CommitOrRestore();
}

int SheetView::ChosenColumn() const {
  const TQorCellRange range = editor_->Selection();
  const int column = static_cast<int>(range.IsEmpty() ? editor_->CurrentCol() : range.col);
  return std::min(column, sheet_.columnCount() - 1);
}

void SheetView::FollowSelection() {
  const int column = ChosenColumn();
  if (std::exchange(chosen_, column) != column && column >= 0) Q_EMIT ColumnChosen(column);
}

void SheetView::AddCommands(QMenu& menu) {
  menu.addAction(tr("Re&name Column…"), this, &SheetView::RenameColumn);
  menu.addAction(tr("Names from &First Row"), this, &SheetView::TakeNamesFromFirstRow);
  menu.addAction(tr("&Missing Values…"), this, &SheetView::ChooseMissingWords);
}

void SheetView::InsertRowsHere() {
  const TQorCellRange range = editor_->Selection();
  editor_->InsertRows(std::min(range.row, editor_->NoOfRows()), std::max<quint32>(range.rows, 1));
}

void SheetView::InsertColumnsHere() {
  const TQorCellRange range = editor_->Selection();
  editor_->InsertCols(std::min(range.col, editor_->NoOfCols()), std::max<quint32>(range.cols, 1));
}

void SheetView::DeleteRowsHere() {
  const TQorCellRange range = editor_->Selection().Within(editor_->NoOfRows(), editor_->NoOfCols());
  editor_->DeleteRows(range.row, range.rows);
}

void SheetView::DeleteColumnsHere() {
  const TQorCellRange range = editor_->Selection().Within(editor_->NoOfRows(), editor_->NoOfCols());
  editor_->DeleteCols(range.col, range.cols);
}

void SheetView::AppendRow() {
  editor_->InsertRows(editor_->NoOfRows(), 1);
  editor_->ScrollBottom();
}

void SheetView::AppendColumn() {
  editor_->InsertCols(editor_->NoOfCols(), 1);
  editor_->ScrollRightMost();
  editor_->Select(
      {.row = 0, .rows = editor_->NoOfRows(), .col = editor_->NoOfCols() - 1, .cols = 1});
}

void SheetView::UndoLast() {
  CommitText();
  editor_->CanUndo() ? editor_->Undo() : sheet_.UndoLines();
}

void SheetView::RenameColumn() {
  CommitText();
  const int column = ChosenColumn();
  if (column < 0) return;
  bool accepted = false;
  const QString before =
      QString::fromStdString(sheet_.Data().Name(static_cast<std::size_t>(column)));
  const QString name =
      QInputDialog::getText(this, tr("Rename column"), tr("Name of column %1:").arg(column + 1),
                            QLineEdit::Normal, before, &accepted);
  if (accepted) sheet_.setHeaderData(column, Qt::Horizontal, name);
}

void SheetView::ChooseMissingWords() {
  CommitText();
  bool accepted = false;
  const QString words = QInputDialog::getText(
      this, tr("Missing values"), tr("Left out are empty cells and cells with these words:"),
      QLineEdit::Normal, TextOfWords(sheet_.Data().Format().missing), &accepted);
  if (accepted) sheet_.SetMissingWords(WordsIn(words));
}

void SheetView::TakeNamesFromFirstRow() {
  CommitText();
  sheet_.TakeNamesFromFirstRow();
}

}  // namespace qorvex::gallery
