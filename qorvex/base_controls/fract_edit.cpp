#include "qorvex/base_controls/fract_edit.h"

#include <algorithm>

#include "qorvex/base/errors.h"
#include "qorvex/base_controls/detail/number_reader.h"
#include "qorvex/base_controls/detail/number_text.h"

namespace qorvex::inline QorvexBaseControls {

TQorFractEdit::TQorFractEdit(QWidget* parent) : TQorCustomEdit(parent) {
  setValue(0);
}

TQorFractEdit::TQorFractEdit(QWidget* parent, FractionDisplayMode display, int decimals)
    : TQorCustomEdit(parent), display_(display), decimals_(std::clamp(decimals, 0, 255)) {
  ShowNothing();
}

TQorFractEdit::~TQorFractEdit() = default;

void TQorFractEdit::setFractionDisplay(FractionDisplayMode display) {
  display_ = display;
  ShowAnew();
}

void TQorFractEdit::setDecimalsFract(int decimals) {
  decimals_ = std::clamp(decimals, 0, 255);
  ShowAnew();
}

QString TQorFractEdit::TextOf(Extended value) const {
  const auto display = static_cast<TQorFractionDisplay>(display_);
  return detail::LocalNumber(Fraction2Str(Float2MixedFraction(value, decimals_), display),
                             locale());
}

FloatDigits TQorFractEdit::Digits() const {
  return {.decimals = decimals_, .all = decimals_ >= kMostFractionDecimals};
}

CellReading TQorFractEdit::ValueOf(const QString& text) const {
  const CellReading decimal = detail::ReadNumber(text, locale());
  if (decimal.value) return decimal;
  try {
    return {Fraction2Float(Str2Fraction(text.toStdString())), {}};
  } catch (const EConvertError&) {
    return decimal;
  }
}

}  // namespace qorvex::inline QorvexBaseControls
