#include "qorvex/base_controls/float_edit.h"

#include "qorvex/base_controls/detail/digit_groups.h"
#include "qorvex/base_controls/detail/number_reader.h"
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

CellReading TQorFloatEdit::ValueOf(const QString& text) const {
  if (*convert_) {
    const std::optional<Extended> value = (*convert_)(text);
    return value ? CellReading{value, {}} : detail::NotANumber(text);
  }
  return ReadExpressions() ? detail::ReadExpression(text, locale(), Grouping())
                           : detail::ReadNumber(text, locale(), Grouping());
}

QString TQorFloatEdit::Painted(std::string_view number) const {
  const QString text = TQorCustomEdit::Painted(number);
  return Grouping() ? detail::WithGroups(text, locale()) : text;
}

QString TQorFloatEdit::WholeText() const {
  if (!Grouping() || !ShowsNumber()) return TQorCustomEdit::WholeText();
  return Painted(FloatText(Value(), Digits()));
}

}  // namespace qorvex::inline QorvexBaseControls
