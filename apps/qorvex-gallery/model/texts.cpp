#include "apps/qorvex-gallery/model/texts.h"

#include <QLocale>

#include "qorvex/base/text.h"
#include "qorvex/base_controls/detail/number_text.h"

namespace qorvex::gallery {

QString ExactText(Extended value) {
  return LocalText(Float2Str(value));
}

QString LocalText(const std::string& number) {
  return QorvexBaseControls::detail::LocalNumber(number, QLocale());
}

QString Dash() {
  return QStringLiteral("—");
}

QString ExactTextOrDash(const std::optional<Extended>& value) {
  return value ? ExactText(*value) : Dash();
}

QString Title(const QString& text) {
  return text.left(1).toUpper() + text.mid(1);
}

}  // namespace qorvex::gallery
