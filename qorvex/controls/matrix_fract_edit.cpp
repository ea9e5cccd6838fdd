#include "qorvex/controls/matrix_fract_edit.h"

#include <algorithm>

#include "qorvex/controls/panel/detail/panel_parts.h"

namespace qorvex::inline QorvexMatrixFractEdit {

TQorMatrixFractEdit::TQorMatrixFractEdit(QWidget* parent) : TQorCustomMatrixEdit(parent) {
  BuildGrid([this](QWidget* panel) { return new TQorFractEdit(panel, display_, decimals_); });
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
  Parts().grid.ForEach([this](TQorCustomEdit& cell) {
    auto& fraction = static_cast<TQorFractEdit&>(cell);
    fraction.setFractionDisplay(display_);
    fraction.setDecimalsFract(decimals_);
  });
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
  Parts().history.ForgetCommand();
  Redisplay();
}

}  // namespace qorvex::inline QorvexMatrixFractEdit
