#include "qorvex/controls/matrix_fract_edit.h"

#include <algorithm>

#include "qorvex/controls/detail/edit_window.h"

namespace qorvex::inline QorvexMatrixFractEdit {

TQorMatrixFractEdit::TQorMatrixFractEdit(QWidget* parent)
    : TQorCustomMatrixEdit(parent, [this](QWidget* panel) {
        auto* const cell = new TQorFractEdit(panel);
        cell->setFractionDisplay(display_);
        cell->setDecimalsFract(decimals_);
        return cell;
      }) {
  BuildGrid();
}

TQorMatrixFractEdit::~TQorMatrixFractEdit() = default;

void TQorMatrixFractEdit::setFractionDisplay(TQorFractEdit::FractionDisplayMode display) {
  display_ = display;
  ApplyToCells();
}

void TQorMatrixFractEdit::setDecimalsFract(int decimals) {
  decimals_ = std::clamp(decimals, 0, 255);
  ApplyToCells();
}

void TQorMatrixFractEdit::ApplyToCells() {
  for (std::size_t row = 0; row < Rows().Edits(); ++row) {
    for (std::size_t col = 0; col < Cols().Edits(); ++col) {
      auto* const cell = static_cast<TQorFractEdit*>(Cell(row, col));
      cell->setFractionDisplay(display_);
      cell->setDecimalsFract(decimals_);
    }
  }
  Redisplay();
}

TQorMixedFraction TQorMatrixFractEdit::FractElement(quint32 row, quint32 col) const {
  CheckElement(row, col, quint64{NoOfCols()} + 1);
  return Float2MixedFraction(Value(row, col), decimals_);
}

void TQorMatrixFractEdit::setFractElement(quint32 row, quint32 col,
                                          const TQorMixedFraction& fraction) {
  CheckElement(row, col, quint64{NoOfCols()} + 1);
  Store(row, col, Fraction2Float(fraction));
  ForgetCommand();
  Redisplay();
}

}  // namespace qorvex::inline QorvexMatrixFractEdit
