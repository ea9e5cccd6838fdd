#include "apps/qorvex-gallery/pages/matrix_page.h"

#include <QFileDialog>
#include <QFormLayout>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QVBoxLayout>
#include <algorithm>
#include <exception>
#include <functional>

#include "apps/common/matrix_reader.h"
#include "apps/qorvex-gallery/model/matrix_properties.h"
#include "apps/qorvex-gallery/widgets/figure_table.h"
#include "apps/qorvex-gallery/widgets/heading.h"
#include "apps/qorvex-gallery/widgets/message_bar.h"
#include "apps/qorvex-gallery/widgets/side_panel.h"
#include "qorvex/base_controls/text_cell.h"
#include "qorvex/controls/QorvexMatrixEdit.h"
#include "qorvex/controls/QorvexMatrixFractEdit.h"

namespace qorvex::gallery {

namespace {

constexpr int kMostRows = 400;
// Editors of larger matrices scroll.
constexpr quint32 kMostRowCells = 10;
constexpr quint32 kMostColCells = 4;

// NaN, which stands for a null element, equals itself here.
bool Same(const TQorFloatMatrix& a, const TQorFloatMatrix& b) {
  const auto same_element = [](Extended x, Extended y) { return x == y || (x != x && y != y); };
  return std::equal(a.begin(), a.end(), b.begin(), b.end(), [&](const auto& x, const auto& y) {
    return std::equal(x.begin(), x.end(), y.begin(), y.end(), same_element);
  });
}

QSpinBox* SizeBox(const char* name, const QString& accessible_name) {
  auto* const box = new QSpinBox;
  box->setObjectName(QLatin1String(name));
  box->setAccessibleName(accessible_name);
  box->setRange(1, kMostRows);
  box->setKeyboardTracking(false);
  return box;
}

}  // namespace

MatrixPage::MatrixPage(QWidget* parent)
    : Page(parent),
      decimals_(new TQorMatrixEdit),
      fractions_(new TQorMatrixFractEdit),
      inverse_decimals_(new TQorMatrixEdit),
      inverse_fractions_(new TQorMatrixFractEdit),
      no_inverse_(new QLabel),
      rows_(SizeBox("rows", tr("Rows"))),
      cols_(SizeBox("columns", tr("Columns"))),
      properties_(new FigureTable({FigureTable::kLabel, FigureTable::kFigure})),
      message_(new MessageBar),
      edited_(decimals_) {
  setObjectName(QStringLiteral("matrixPage"));
  decimals_->setObjectName(QStringLiteral("decimals"));
  fractions_->setObjectName(QStringLiteral("fractions"));
  inverse_fractions_->setObjectName(QStringLiteral("inverseFractions"));
  no_inverse_->setObjectName(QStringLiteral("noInverse"));
  properties_->setObjectName(QStringLiteral("properties"));
  for (TQorCustomMatrixEdit* const editor : Editors()) {
    editor->setCellHeight(25);
    editor->setCellWidth(82);
    const auto follow = [this, editor] {
      edited_ = editor;
      message_->SetText({});
      Follow();
    };
    connect(editor, &TQorCustomMatrixEdit::OnChange, this, follow);
    connect(editor, &TQorCustomMatrixEdit::OnUndo, this, follow);
    message_->Watch(*editor);
  }
  for (TQorMatrixEdit* const editor : {decimals_, inverse_decimals_}) {
    editor->setDecimalPlaces(6);
    editor->setTrimTrailingZeroes(true);
  }
  inverse_decimals_->setReadOnly(true);
  inverse_fractions_->setReadOnly(true);
  auto* const panel = new SidePanel;
  QVBoxLayout* const matrix = panel->AddGroup(tr("Matrix"));
  auto* const size = new QHBoxLayout;
  size->addWidget(rows_, 1);
  size->addWidget(new QLabel(QStringLiteral("×")));
  size->addWidget(cols_, 1);
  auto* const form = new QFormLayout;
  form->addRow(tr("Size"), size);
  matrix->addLayout(form);
  auto* const sources = new QHBoxLayout;
  auto* const example = new QPushButton(tr("&Example"));
  auto* const open = new QPushButton(tr("&Open…"));
  sources->addWidget(example, 1);
  sources->addWidget(open, 1);
  matrix->addLayout(sources);
  panel->AddGroup(tr("Commands"))->addWidget(MakeCommands());
  panel->AddGroup(tr("Properties"))->addWidget(properties_);
  panel->Finish();

  auto* const grid = new QGridLayout;
  grid->setContentsMargins(12, 4, 4, 4);
  grid->setHorizontalSpacing(24);
  grid->setVerticalSpacing(8);
  grid->addWidget(MakeHeading(tr("Decimals")), 0, 0);
  grid->addWidget(MakeHeading(tr("Fractions")), 0, 1);
  grid->addWidget(decimals_, 1, 0, Qt::AlignLeft | Qt::AlignTop);
  grid->addWidget(fractions_, 1, 1, Qt::AlignLeft | Qt::AlignTop);
  grid->setColumnStretch(2, 1);
  grid->setRowMinimumHeight(2, fontMetrics().height() / 2);
  grid->addWidget(MakeHeading(tr("Inverse")), 3, 0);
  grid->addWidget(no_inverse_, 4, 0, 1, 2);
  grid->addWidget(inverse_decimals_, 5, 0, Qt::AlignLeft | Qt::AlignTop);
  grid->addWidget(inverse_fractions_, 5, 1, Qt::AlignLeft | Qt::AlignTop);
  grid->setRowStretch(6, 1);
  auto* const layout = new QHBoxLayout(this);
  layout->addWidget(panel);
  auto* const right = new QVBoxLayout;
  right->addLayout(grid, 1);
  right->addWidget(message_);
  layout->addLayout(right, 1);

  for (QSpinBox* const box : {rows_, cols_})
    connect(box, &QSpinBox::valueChanged, this, &MatrixPage::Resize);
  connect(example, &QPushButton::clicked, this, &MatrixPage::ShowExample);
  connect(open, &QPushButton::clicked, this, &MatrixPage::AskAndOpen);
  ShowExample();
}

MatrixPage::~MatrixPage() = default;

std::array<TQorCustomMatrixEdit*, 4> MatrixPage::Editors() const {
  return {decimals_, fractions_, inverse_decimals_, inverse_fractions_};
}

QWidget* MatrixPage::MakeCommands() {
  auto* const bar = new QWidget;
  auto* const grid = new QGridLayout(bar);
  grid->setContentsMargins(0, 0, 0, 0);
  const auto add_command = [&](const QString& text, const char* name, const QString& tip,
                               void (TQorCustomMatrixEdit::*command)()) {
    const std::function<void()> run = std::bind_front(command, decimals_);
    AddButton(bar, text, name, tip, [this, run] { Run(run); });
  };
  add_command(tr("&Transpose"), "transpose", tr("Rows become columns"),
              &TQorCustomMatrixEdit::Transpose);
  add_command(tr("&Inverse"), "inverse", tr("The inverse of the matrix"),
              &TQorCustomMatrixEdit::Inverse);
  add_command(tr("Row &Echelon"), "row_reduce", tr("Reduces the matrix to row echelon form"),
              &TQorCustomMatrixEdit::RowReduce);
  add_command(tr("Reci&procals"), "reciprocals", tr("1 divided by each element"),
              &TQorCustomMatrixEdit::Invert);
  add_command(tr("S&quares"), "squares", tr("Each element squared"), &TQorCustomMatrixEdit::Sqr);
  add_command(tr("Square &Roots"), "square_roots", tr("The square root of each element"),
              &TQorCustomMatrixEdit::Sqrt);
  add_command(tr("&ln"), "ln", tr("The natural logarithm of each element"),
              &TQorCustomMatrixEdit::Ln);
  add_command(tr("lo&g10"), "log10", tr("The decimal logarithm of each element"),
              &TQorCustomMatrixEdit::Log10);
  AddButton(bar, tr("&Undo"), "undo", tr("Takes the last change back"), [this] { Exchange(true); });
  AddButton(bar, tr("Re&do"), "redo", tr("Makes the last change again"),
            [this] { Exchange(false); });
  return bar;
}

void MatrixPage::AddButton(QWidget* bar, const QString& text, const char* name, const QString& tip,
                           const std::function<void()>& action) {
  auto* const button = new QPushButton(text);
  button->setObjectName(QLatin1String(name));
  button->setToolTip(tip);
  auto* const grid = static_cast<QGridLayout*>(bar->layout());
  const int index = grid->count();
  grid->addWidget(button, index / 2, index % 2);
  connect(button, &QPushButton::clicked, this, action);
}

void MatrixPage::Run(const std::function<void()>& command) {
  CommitTexts();
  message_->SetText({});
  try {
    command();
    edited_ = decimals_;
  } catch (const std::exception& error) {
    message_->SetText(QString::fromUtf8(error.what()));
  }
  Follow();
}

void MatrixPage::Exchange(bool undo) {
  CommitTexts();
  message_->SetText({});
  undo ? edited_->Undo() : edited_->Redo();
  Follow();
}

void MatrixPage::CommitTexts() {
  for (TextCell* const cell : findChildren<TextCell*>()) cell->CommitOrRestore();
}

void MatrixPage::ShowExample() {
  Run([this] { decimals_->setMatrix({{2, 0.5L, 1}, {1, 3, 2}, {0.25L, 0, 4}}); });
}

void MatrixPage::AskAndOpen() {
  const QString path = QFileDialog::getOpenFileName(
      this, tr("Open a Matrix"), {}, tr("Delimited text (*.csv *.tsv *.txt);;All files (*)"));
  if (!path.isEmpty()) Open(path);
}

void MatrixPage::Open(const QString& path) {
  Run([&] {
    const TQorFloatMatrix matrix =
        apps::ReadMatrix(apps::OpenTextInput(path.toStdString()), apps::MatrixLayout{});
    if (matrix.size() > kMostRows || matrix[0].size() > kMostRows) {
      message_->SetText(tr("More than %L1 rows or columns are too many here").arg(kMostRows));
      return;
    }
    decimals_->setMatrix(matrix);
  });
}

void MatrixPage::Resize() {
  Run([this] {
    decimals_->setNoOfRows(static_cast<quint32>(rows_->value()));
    decimals_->setNoOfCols(static_cast<quint32>(cols_->value()));
  });
}

void MatrixPage::Follow() {
  const TQorFloatMatrix matrix = edited_->Matrix();
  if (Same(matrix, shown_)) return;
  shown_ = matrix;
  if (edited_ == decimals_) {
    fractions_->setMatrix(matrix);
  } else {
    decimals_->setMatrix(matrix);
  }
  for (TQorCustomMatrixEdit* const editor : Editors()) {
    editor->setNoOfRowEdits(static_cast<int>(std::min(decimals_->NoOfRows(), kMostRowCells)));
    editor->setNoOfColEdits(static_cast<int>(std::min(decimals_->NoOfCols(), kMostColCells)));
  }
  const QSignalBlocker no_rows(rows_);
  const QSignalBlocker no_cols(cols_);
  rows_->setValue(static_cast<int>(decimals_->NoOfRows()));
  cols_->setValue(static_cast<int>(decimals_->NoOfCols()));
  ShowProperties(matrix);
}

void MatrixPage::ShowProperties(const TQorFloatMatrix& matrix) {
  const MatrixProperties properties = PropertiesOf(matrix);
  properties_->SetRows(
      {{tr("Determinant"), properties.determinant}, {tr("Rank"), properties.rank}});
  const bool has_inverse = properties.why_no_inverse.isEmpty();
  no_inverse_->setText(properties.why_no_inverse);
  no_inverse_->setVisible(!has_inverse);
  for (TQorCustomMatrixEdit* const editor :
       std::initializer_list<TQorCustomMatrixEdit*>{inverse_decimals_, inverse_fractions_}) {
    if (has_inverse) editor->setMatrix(properties.inverse);
    editor->setVisible(has_inverse);
  }
}

}  // namespace qorvex::gallery
