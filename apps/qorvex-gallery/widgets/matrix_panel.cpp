#include "apps/qorvex-gallery/widgets/matrix_panel.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QVBoxLayout>
#include <cmath>
#include <limits>

#include "apps/qorvex-gallery/model/matrix_calculation.h"
#include "apps/qorvex-gallery/widgets/heading.h"
#include "apps/qorvex-gallery/widgets/message_bar.h"
#include "qorvex/base_controls/text_cell.h"
#include "qorvex/controls/QorvexMatrixEdit.h"
#include "qorvex/controls/QorvexMatrixFractEdit.h"

namespace qorvex::gallery {

namespace {

QSpinBox* SizeBox(const char* name, const QString& accessible_name) {
  auto* const box = new QSpinBox;
  box->setObjectName(QLatin1String(name));
  box->setAccessibleName(accessible_name);
  box->setRange(1, std::numeric_limits<int>::max());
  box->setKeyboardTracking(false);
  // As wide as a size that computers have memory for.
  box->setFixedWidth(14 * box->fontMetrics().averageCharWidth());
  return box;
}

}  // namespace

MatrixPanel::MatrixPanel(Kind kind, const char* object_name, const QString& title,
                         const QString& name, QWidget* parent)
    : QWidget(parent),
      kind_(kind),
      title_(MakeHeading(title)),
      head_(new QHBoxLayout),
      remark_(new QLabel),
      editors_{new TQorMatrixEdit, new TQorMatrixFractEdit} {
  setObjectName(QLatin1String(object_name));
  editors_[0]->setObjectName(QStringLiteral("decimals"));
  editors_[1]->setObjectName(QStringLiteral("fractions"));
  remark_->setObjectName(QStringLiteral("remark"));
  remark_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  remark_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  remark_->hide();
  head_->addWidget(title_);
  head_->addSpacing(fontMetrics().averageCharWidth());
  head_->addWidget(MakeSize());
  auto* const layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addLayout(head_);
  layout->addWidget(remark_, 1);
  for (TQorCustomMatrixEdit* const editor : editors_) {
    SetUp(*editor);
    layout->addWidget(editor, 1);
  }
  SetTitle(title, name);
  SetMatrix({{0}});
  editors_[1]->hide();
  ShowResultColor();
}

MatrixPanel::~MatrixPanel() = default;

void MatrixPanel::SetUp(TQorCustomMatrixEdit& editor) {
  constexpr int digits = 10;
  editor.setCellWidth(16 * fontMetrics().averageCharWidth());
  editor.setCellHeight(fontMetrics().height() + 8);
  editor.setNumberFormat(NumberSettings::nfGeneral);
  editor.setSignificantDigits(digits);
  editor.setRowHeadings(true);
  editor.setColHeadings(true);
  editor.setAutoEdits(true);
  editor.setReadOnly(kind_ == Kind::kResult);
  if (kind_ == Kind::kResult) {
    editor.installEventFilter(this);
    for (auto* const cell : editor.findChildren<QLineEdit*>()) cell->setFrame(false);
  }
  connect(&editor, &TQorCustomMatrixEdit::OnChange, this, &MatrixPanel::Update);
  connect(&editor, &TQorCustomMatrixEdit::OnUndo, this, &MatrixPanel::Update);
}

QWidget* MatrixPanel::MakeSize() {
  auto* const holder = new QWidget;
  auto* const layout = new QHBoxLayout(holder);
  layout->setContentsMargins(0, 0, 0, 0);
  if (kind_ == Kind::kResult) {
    size_ = new QLabel;
    layout->addWidget(size_);
    return holder;
  }
  rows_ = SizeBox("rows", tr("Rows"));
  cols_ = SizeBox("columns", tr("Columns"));
  layout->addWidget(rows_);
  layout->addWidget(new QLabel(QStringLiteral("×")));
  layout->addWidget(cols_);
  for (QSpinBox* const box : {rows_, cols_})
    connect(box, &QSpinBox::valueChanged, this, &MatrixPanel::Resize);
  return holder;
}

void MatrixPanel::SetTitle(const QString& title, const QString& name) {
  title_->setText(title);
  for (TQorCustomMatrixEdit* const editor : editors_) editor->setAccessibleName(name);
}

TQorFloatMatrix MatrixPanel::Matrix() const {
  return Editor().Matrix();
}

void MatrixPanel::SetMatrix(const TQorFloatMatrix& matrix) {
  Editor().setMatrix(matrix);
  ShowSize();
}

void MatrixPanel::Replace(const TQorFloatMatrix& matrix) {
  Editor().Replace(matrix);
  Update();
}

void MatrixPanel::SetRemark(const QString& remark) {
  remark_->setText(remark);
  remark_->setVisible(!remark.isEmpty());
  Editor().setVisible(remark.isEmpty());
  if (size_ != nullptr) size_->setVisible(remark.isEmpty());
}

// Undo in the other editor returns to the matrix that it showed before.
void MatrixPanel::ShowFractions(bool fractions) {
  if (fractions == fractions_) return;
  CommitTexts();
  const TQorFloatMatrix matrix = Matrix();
  const bool is_visible = !Editor().isHidden();
  Editor().hide();
  fractions_ = fractions;
  if (kind_ == Kind::kResult) {
    Editor().setMatrix(matrix);
  } else {
    Editor().Replace(matrix);
  }
  Editor().setVisible(is_visible);
}

void MatrixPanel::Update() {
  ShowSize();
  Q_EMIT Changed();
}

void MatrixPanel::LetWatch(MessageBar& bar) const {
  for (const TQorCustomMatrixEdit* const editor : editors_) bar.Watch(*editor);
}

void MatrixPanel::CommitTexts() {
  for (TextCell* const cell : Editor().findChildren<TextCell*>()) cell->CommitOrRestore();
}

void MatrixPanel::Resize() {
  const auto rows = static_cast<std::uint64_t>(rows_->value());
  const auto cols = static_cast<std::uint64_t>(cols_->value());
  if (rows * cols > MostElements()) {
    Q_EMIT SizeRefused(
        tr("%L1 × %L2 elements are too many: the memory of this computer has room for "
           "%L3, such as %L4 × %L4")
            .arg(rows)
            .arg(cols)
            .arg(MostElements())
            .arg(static_cast<int>(std::sqrt(static_cast<double>(MostElements())))));
    return ShowSize();
  }
  CommitTexts();
  TQorFloatMatrix matrix = Matrix();
  matrix.SetLength(rows);
  for (TQorFloatVector& row : matrix) row.SetLength(cols);
  Replace(matrix);
}

void MatrixPanel::ShowSize() {
  const quint32 rows = Editor().NoOfRows();
  const quint32 cols = Editor().NoOfCols();
  FitHeight();
  if (kind_ == Kind::kResult) return size_->setText(tr("%L1 × %L2").arg(rows).arg(cols));
  const QSignalBlocker no_rows(rows_);
  const QSignalBlocker no_cols(cols_);
  rows_->setValue(static_cast<int>(rows));
  cols_->setValue(static_cast<int>(cols));
}

// A matrix with few rows leaves its room to others.
void MatrixPanel::FitHeight() {
  const bool is_low = IsLow();
  if (is_low) Editor().setNoOfRowEdits(static_cast<int>(Editor().NoOfRows()));
  Editor().setMaximumHeight(is_low ? Editor().sizeHint().height() : QWIDGETSIZE_MAX);
  setSizePolicy(QSizePolicy::Preferred, is_low ? QSizePolicy::Maximum : QSizePolicy::Preferred);
}

bool MatrixPanel::IsLow() const {
  constexpr quint32 most_rows = 10;
  return Editor().NoOfRows() <= most_rows;
}

// Cells come and go with the size of the window.
bool MatrixPanel::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::ChildPolished) {
    QObject* const child = static_cast<QChildEvent*>(event)->child();
    if (auto* const cell = qobject_cast<QLineEdit*>(child)) cell->setFrame(false);
  }
  return QWidget::eventFilter(watched, event);
}

void MatrixPanel::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) ShowResultColor();
}

void MatrixPanel::ShowResultColor() {
  if (kind_ != Kind::kResult) return;
  for (TQorCustomMatrixEdit* const editor : editors_)
    editor->setColorSetReadOnlyBackground(palette().color(QPalette::Window));
}

}  // namespace qorvex::gallery
