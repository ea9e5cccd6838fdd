#include "qorvex/base_controls/float_edit.h"

#include "qorvex/base_controls/detail/number_text.h"

namespace qorvex::inline QorvexBaseControls {

TQorFloatEdit::TQorFloatEdit(QWidget* parent) : TQorCustomEdit(parent) {
  setValue(0);
}

TQorFloatEdit::TQorFloatEdit(QWidget* parent, const TQorConvertEvent* convert)
    : TQorCustomEdit(parent), convert_(convert) {
  ShowNothing();
}

TQorFloatEdit::~TQorFloatEdit() = default;

QString TQorFloatEdit::TextOf(Extended value) const {
  return detail::LocalNumber(FloatText(value, Digits()), locale());
}

FloatDigits TQorFloatEdit::Digits() const {
  return Settings().number.Digits();
}

std::optional<Extended> TQorFloatEdit::ValueOf(const QString& text) const {
  return *convert_ ? (*convert_)(text) : detail::ParseLocalNumber(text, locale());
}

}  // namespace qorvex::inline QorvexBaseControls
