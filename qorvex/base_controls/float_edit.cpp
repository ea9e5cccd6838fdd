#include "qorvex/base_controls/float_edit.h"

#include <cmath>
#include <string>

#include "qorvex/base/text.h"
#include "qorvex/base_controls/detail/number_text.h"

namespace qorvex::inline QorvexBaseControls {

TQorFloatEdit::TQorFloatEdit(QWidget* parent) : TQorCustomEdit(parent) {
  setValue(0);
}

TQorFloatEdit::~TQorFloatEdit() = default;

QString TQorFloatEdit::TextOf(Extended value) const {
  const bool exact = FullAccuracy() || std::fabs(value) >= 0x1p63L;
  std::string text = exact ? Float2Str(value) : Float2EStr(value, DecimalPlaces());
  if (TrimTrailingZeroes()) text = StripTChStr(text, '0');
  return detail::LocalNumber(text, locale());
}

std::optional<Extended> TQorFloatEdit::ValueOf(const QString& text) const {
  return OnConvert ? OnConvert(text) : detail::ParseLocalNumber(text, locale());
}

}  // namespace qorvex::inline QorvexBaseControls
