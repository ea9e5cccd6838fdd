#include <QHBoxLayout>
#include <QVBoxLayout>
#include <QtTest/QTest>
#include <cstdlib>

#include "pictures.h"
#include "qorvex/controls/QorvexMatrixEdit.h"
#include "qorvex/controls/QorvexMatrixFractEdit.h"

using qorvex::TQorMatrixEdit;
using qorvex::TQorMatrixFractEdit;

namespace {

// Autocorrelations of a series, with colours for the diagonal, negative elements and zeros.
TQorMatrixEdit* Coloured() {
  auto* const editor = new TQorMatrixEdit;
  editor->setNoOfRowEdits(8);
  editor->setNoOfColEdits(5);
  editor->setCellWidth(64);
  editor->setDecimalPlaces(3);
  constexpr int order = 12;
  editor->setNoOfRows(order);
  editor->setNoOfCols(order);
  for (int row = 0; row < order; ++row) {
    for (int col = 0; col < order; ++col) {
      // A wave of eight steps that fades.
      constexpr long double wave[] = {1, 0.636L, 0, -0.515L, -0.656L, -0.417L, 0, 0.338L, 0.43L};
      const int distance = std::abs(row - col);
      const long double value = distance < 9 ? wave[distance] : 0;
      editor->setElement(static_cast<quint32>(row), static_cast<quint32>(col), value);
    }
  }
  editor->setDisplayTopRow(2);
  editor->setDisplayLeftCol(1);
  const QPalette palette = editor->palette();
  const bool dark = palette.color(QPalette::Base).lightness() < 128;
  const QColor red = dark ? QColor(0xff, 0x8a, 0x80) : QColor(0xb3, 0x26, 0x1e);
  const QColor blue = dark ? QColor(0x8a, 0xb4, 0xf8) : QColor(0x1a, 0x56, 0xb8);
  const QColor grey = dark ? QColor(0x8a, 0x8d, 0x92) : QColor(0x80, 0x83, 0x88);
  editor->OnSpecialColor = [=](quint32 row, quint32 col, long double value, QColor& color) {
    if (row == col) {
      color = blue;
    } else if (value < 0) {
      color = red;
    } else if (value == 0) {
      color = grey;
    }
  };
  editor->Redisplay();
  return editor;
}

TQorMatrixFractEdit* Fractions() {
  auto* const editor = new TQorMatrixFractEdit;
  editor->setNoOfRowEdits(3);
  editor->setCellWidth(64);
  editor->setFractionDisplay(qorvex::TQorFractEdit::fdImproper);
  editor->setMatrix({{2, 1, 0}, {1, 3, 1}, {0, 1, 4}});
  return editor;
}

}  // namespace

std::unique_ptr<QWidget> MatrixEdits() {
  auto form = std::make_unique<QWidget>();
  auto* const layout = new QHBoxLayout(form.get());
  layout->setSpacing(24);
  layout->setContentsMargins(16, 16, 16, 16);
  TQorMatrixEdit* const coloured = Coloured();
  TQorMatrixFractEdit* const inverse = Fractions();
  inverse->Inverse();
  auto* const column = new QVBoxLayout;
  column->addWidget(Fractions(), 0, Qt::AlignTop);
  column->addWidget(inverse, 0, Qt::AlignBottom);
  layout->addWidget(coloured);
  layout->addLayout(column);
  form->show();
  if (!QTest::qWaitForWindowActive(form.get())) return form;
  coloured->setColEditFocus(2);
  return form;
}
