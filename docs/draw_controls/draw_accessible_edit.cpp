#include <QHBoxLayout>
#include <QVBoxLayout>
#include <cmath>

#include "pictures.h"
#include "qorvex/controls/QorvexMatrixEdit.h"
#include "qorvex/controls/QorvexVectorEdit.h"

using qorvex::TQorLabelledVectorEdit;
using qorvex::TQorMatrixEdit;

namespace {

QPalette HighContrast() {
  QPalette palette(Qt::black, Qt::black);
  for (const auto role :
       {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::BrightText}) {
    palette.setColor(role, Qt::white);
  }
  palette.setColor(QPalette::Base, Qt::black);
  palette.setColor(QPalette::Highlight, Qt::yellow);
  palette.setColor(QPalette::HighlightedText, Qt::black);
  return palette;
}

// Powers, of which 0 has none below 0.
TQorMatrixEdit* Powers(int rows) {
  auto* const editor = new TQorMatrixEdit;
  editor->setNoOfRowEdits(rows);
  editor->setDecimalPlaces(2);
  editor->setRowHeadings(true);
  editor->setColHeadings(true);
  editor->setNoOfRows(8);
  editor->setNoOfCols(3);
  for (int row = 0; row < 8; ++row) {
    for (int col = 0; col < 3; ++col) {
      const long double power =
          row == 0 && col == 0 ? std::nanl("") : std::pow(1.5L * row, col - 1);
      editor->setElement(static_cast<quint32>(row), static_cast<quint32>(col), power);
    }
  }
  return editor;
}

QWidget* OnBackground(QWidget* editor, const QPalette& palette) {
  auto* const ground = new QWidget;
  ground->setAutoFillBackground(true);
  ground->setPalette(palette);
  auto* const layout = new QHBoxLayout(ground);
  layout->addWidget(editor);
  return ground;
}

}  // namespace

std::unique_ptr<QWidget> AccessibleEdits() {
  auto form = std::make_unique<QWidget>();
  auto* const layout = new QHBoxLayout(form.get());
  layout->setSpacing(24);
  layout->setContentsMargins(16, 16, 16, 16);

  TQorMatrixEdit* const contrast = Powers(6);
  TQorMatrixEdit* const large = Powers(3);
  QFont font = large->font();
  font.setPointSize(20);
  large->setFont(font);
  large->setNoOfColEdits(2);
  large->setCellWidth(large->fontMetrics().horizontalAdvance("00000.00"));
  TQorMatrixEdit* const mirrored = Powers(6);
  mirrored->setLayoutDirection(Qt::RightToLeft);

  layout->addWidget(OnBackground(contrast, HighContrast()));
  layout->addWidget(large);
  layout->addWidget(mirrored);
  form->show();
  contrast->Select({1, 3, 1, 2});
  mirrored->setRowEditFocus(2);
  return form;
}
