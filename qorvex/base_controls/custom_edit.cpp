#include "qorvex/base_controls/custom_edit.h"

#include <QApplication>
#include <QCoreApplication>
#include <QDebug>
#include <QKeyEvent>
#include <QRegularExpression>
#include <cmath>
#include <limits>
#include <string>

#include "qorvex/base/errors.h"
#include "qorvex/base/text.h"
#include "qorvex/base_controls/detail/cell_colors.h"
#include "qorvex/base_controls/detail/number_text.h"
#include "qorvex/base_controls/detail/same_element.h"
#include "qorvex/base_controls/detail/text_elements.h"

namespace qorvex::inline QorvexBaseControls {

namespace {

constexpr Extended kNull = std::numeric_limits<Extended>::quiet_NaN();

// Whether a program would write a plain number otherwise: 007 and 1.50 are kept as they are.
bool IsWrittenAnew(const QString& text, Extended value) {
  const std::string plain = text.toStdString();
  try {
    return detail::SameElement(Str2Float(plain), value) && Float2Str(value) != plain;
  } catch (const EConvertError&) {
    return false;
  }
}

}  // namespace

TQorCustomEdit::TQorCustomEdit(QWidget* parent) : TextCell(parent) {
  QLineEdit::setAlignment(Alignment());
  // The mark belongs to the text before.
  connect(this, &QLineEdit::textEdited, this, [this] { Mark(false); });
}

TQorCustomEdit::~TQorCustomEdit() = default;

void TQorCustomEdit::setValue(Extended value) {
  Show(value, true, false);
}

QString TQorCustomEdit::ValueText() const {
  const Extended value = Pending() ? Read(text()).value.value_or(value_) : value_;
  return std::isnan(value) ? QString() : QString::fromStdString(Float2Str(value));
}

void TQorCustomEdit::setValueText(const QString& text) {
  Extended value = kNull;
  try {
    if (!text.isEmpty()) value = Str2Float(text.toStdString());
  } catch (const EConvertError& error) {
    qWarning().noquote() << objectName() + ": " + QString::fromUtf8(error.what());
    return;
  }
  const auto typed = Pending() ? Read(this->text()).value : std::nullopt;
  if (typed && detail::SameElement(*typed, value)) {
    Commit();
  } else {
    setValue(value);
  }
}

void TQorCustomEdit::SetTexts(detail::TextElements* texts) {
  texts_ = texts;
  ShowAnew();
}

std::optional<QString> TQorCustomEdit::TextIn(Extended value) const {
  return texts_ != nullptr ? texts_->TextOf(value) : std::nullopt;
}

void TQorCustomEdit::Align() {
  const Qt::Alignment alignment = TextIn(value_) ? Qt::AlignLeft | Qt::AlignVCenter : Alignment();
  if (QLineEdit::alignment() != alignment) QLineEdit::setAlignment(alignment);
}

void TQorCustomEdit::Refresh(Extended value) {
  Show(value, true, true);
}

void TQorCustomEdit::ShowNothing(bool keep_typed) {
  Show(kNull, false, keep_typed);
}

void TQorCustomEdit::ShowAnew() {
  Show(value_, has_value_, true);
}

void TQorCustomEdit::Show(Extended value, bool has_value, bool keep_pending) {
  // Values with the same text may have different shorter texts.
  if (!detail::SameElement(value, value_)) update();
  value_ = value;
  has_value_ = has_value;
  Align();
  ShowText(ShownText(), keep_pending);
  // A text that is being typed has the colour of the new value.
  if (Pending()) ApplyColors();
}

bool TQorCustomEdit::Null() const noexcept {
  return std::isnan(value_);
}

void TQorCustomEdit::setNull(bool null) {
  if (null != Null()) setValue(null ? kNull : 0);
}

bool TQorCustomEdit::ShowsNumber() const {
  return has_value_ && !Null() && !(value_ == 0 && BlankWhenZero());
}

QString TQorCustomEdit::ShownText() const {
  return has_value_ ? TextFor(value_) : QString();
}

QString TQorCustomEdit::TextFor(Extended value) const {
  if (const auto text = TextIn(value)) return *text;
  if (std::isnan(value)) return BlankWhenNull() ? QString() : NullStr();
  return value == 0 && BlankWhenZero() ? QString() : TextOf(value);
}

bool TQorCustomEdit::Commit() {
  if (!Pending()) {
    Restore();
    return true;
  }
  const CellReading reading = Read(text());
  if (!reading.value) {
    refusal_ = reading.refusal;
    Mark(true);
    return false;
  }
  const Extended value = *reading.value;
  const bool same = detail::SameElement(value, value_);
  if (!same && StoreElsewhere) {
    // No longer pending: what follows may redisplay the cell.
    setModified(false);
    // A copy, since the cell may be dropped meanwhile.
    const auto store = StoreElsewhere;
    store(value);
    return true;
  }
  setValue(value);
  if (same) return true;
  if (Null()) Q_EMIT OnNull();
  Q_EMIT Changed();
  return true;
}

void TQorCustomEdit::Restore() {
  TextCell::Restore();
  Mark(false);
}

CellReading TQorCustomEdit::Read(const QString& text) const {
  const QString trimmed = text.trimmed();
  if (trimmed.isEmpty() || trimmed == NullStr()) {
    if (AllowKbdNull()) return {kNull, {}};
    if (trimmed.isEmpty()) {
      if (BlankWhenZero()) return {0, {}};
      return {{}, QCoreApplication::translate("TQorCustomEdit", "A number is missing.")};
    }
  }
  const CellReading reading = ValueOf(trimmed);
  if (texts_ == nullptr || (reading.value && !IsWrittenAnew(trimmed, *reading.value))) {
    return reading;
  }
  return {texts_->ElementOf(trimmed), {}};
}

QString TQorCustomEdit::ExactText(Extended value) const {
  if (const auto text = TextIn(value)) return *text;
  return std::isnan(value) ? NullStr() : detail::LocalNumber(Float2Str(value), locale());
}

void TQorCustomEdit::SetSelected(bool selected) {
  if (selected == selected_) return;
  selected_ = selected;
  ApplyColors();
}

void TQorCustomEdit::SetSpecialColor(const QColor& color) {
  if (color == special_color_) return;
  special_color_ = color;
  ApplyColors();
}

void TQorCustomEdit::SettingsChanged() {
  SetSelectionBehaviour({.auto_select = AutoSelect(), .auto_select_click = AutoSelectClick()});
  Align();
  if (QLineEdit::isReadOnly() != ReadOnly()) {
    CommitOrRestore();
    QLineEdit::setReadOnly(ReadOnly());
  }
  ShowAnew();
  ApplyColors();
}

void TQorCustomEdit::DoColorSetChange() {
  ApplyColors();
}

void TQorCustomEdit::Mark(bool invalid) {
  if (invalid != invalid_) {
    invalid_ = invalid;
    setAccessibleDescription(invalid ? refusal_ : QString());
  }
  ApplyColors();
}

void TQorCustomEdit::ApplyColors() {
  const EditColors& colors = Settings().colors;
  const auto pick = [](const QColor& first, const QColor& otherwise) {
    return first.isValid() ? first : otherwise;
  };
  QColor text = pick(special_color_, value_ < 0 ? colors.negative_text : QColor());
  text = pick(text, colors.text);
  QColor background = colors.background;
  if (ReadOnly()) background = pick(colors.read_only_background, background);
  if (Inside()) background = pick(colors.focus_background, background);
  const auto around = [this](QPalette::ColorRole role) {
    return (parentWidget() ? parentWidget()->palette() : QApplication::palette()).color(role);
  };
  if (selected_ && !Inside()) {
    text = around(QPalette::HighlightedText);
    background = around(QPalette::Highlight);
  }
  if (invalid_) {
    const bool dark = around(QPalette::Base).lightness() < 128;
    text = pick(colors.invalid_text, dark ? QColor(0xff, 0xb4, 0xab) : QColor(0x93, 0x00, 0x0a));
    background =
        pick(colors.invalid_background, dark ? QColor(0x5c, 0x14, 0x14) : QColor(0xff, 0xda, 0xd6));
  }
  if (!colors_) {
    if (!text.isValid() && !background.isValid()) return;
    colors_ = std::make_unique<detail::CellColors>();
  }
  colors_->Show(*this, text, background);
}

QString TQorCustomEdit::Painted(std::string_view number) const {
  return detail::LocalNumber(number, locale());
}

QString TQorCustomEdit::ShorterText() const {
  // A null is not shown as a number.
  if (Null()) return TextCell::ShorterText();
  return Painted(FittedFloatText(value_, Digits(),
                                 [this](std::string_view text) { return HasRoom(Painted(text)); }));
}

QString TQorCustomEdit::Tip() const {
  if (!invalid_) return TextCell::Tip();
  return QCoreApplication::translate("TQorCustomEdit", "%1 Escape brings back the value.",
                                     "a sentence that says why a text is refused")
      .arg(refusal_);
}

void TQorCustomEdit::changeEvent(QEvent* event) {
  TextCell::changeEvent(event);
  if (event->type() == QEvent::LocaleChange) ShowAnew();
  // The colours of the marks depend on the palette around the cell.
  if (event->type() == QEvent::PaletteChange && (invalid_ || selected_)) ApplyColors();
  if (event->type() == QEvent::StyleChange && colors_) colors_->StyleChanged(*this);
}

void TQorCustomEdit::focusInEvent(QFocusEvent* event) {
  TextCell::focusInEvent(event);
  ApplyColors();
}

void TQorCustomEdit::focusOutEvent(QFocusEvent* event) {
  TextCell::focusOutEvent(event);
  ApplyColors();
}

void TQorCustomEdit::keyPressEvent(QKeyEvent* event) {
  if (event->modifiers() == Qt::KeypadModifier &&
      (event->key() == Qt::Key_Period || event->key() == Qt::Key_Comma)) {
    QKeyEvent separator(event->type(), event->key(), Qt::NoModifier, locale().decimalPoint());
    TextCell::keyPressEvent(&separator);
    return;
  }
  TextCell::keyPressEvent(event);
}

void TQorCustomEdit::Paste(const QString& text) {
  // Spreadsheets end even a single cell with a line end.
  static const QRegularExpression last_line_end(QStringLiteral("(\r\n|\n|\r)$"));
  static const QRegularExpression separator(QStringLiteral("[\t\r\n]"));
  QString line = text;
  line.remove(last_line_end);
  if (line.contains(separator)) {
    Q_EMIT BlockPasted(text);
  } else {
    TextCell::Paste(line);
  }
}

}  // namespace qorvex::inline QorvexBaseControls
