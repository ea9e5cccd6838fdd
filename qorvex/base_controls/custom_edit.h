#pragma once

/// @file
/// TQorCustomEdit, a cell that holds an exact value and shows it as text.

#include <QString>
#include <functional>
#include <memory>
#include <optional>
#include <string_view>

#include "qorvex/base/element_types.h"
#include "qorvex/base/export.h"
#include "qorvex/base/fitted_text.h"
#include "qorvex/base_controls/cell_properties.h"
#include "qorvex/base_controls/cell_reading.h"
#include "qorvex/base_controls/text_cell.h"
#include "qorvex/base_controls/unit.h"

QORVEX_WIDGET_UNIT(QorvexBaseControls) {
/// @cond internal
namespace detail {
class CellColors;
class TextElements;
}  // namespace detail
/// @endcond

/// A text cell around an 80-bit value.
///
/// Any text can be typed. Enter and leaving the cell commit it: the text becomes the value. If it
/// is not a number, Enter marks it and the focus stays, and leaving restores the value; so does
/// Escape. Committing the text that the cell showed is not a change, so a value that was rounded
/// for display keeps every bit until something else is typed.
///
/// NaN is null: it shows as NullStr, and if AllowKbdNull is set, an empty text or NullStr commits
/// it. Otherwise an empty text is 0 in a cell with BlankWhenZero, and not a number in others.
///
/// Numbers are written and read in the widget's locale; the decimal key of the keypad types the
/// decimal separator of the locale. What the locale does not read is read if its separators leave
/// no doubt: "1,234.50", "1.234,50" and "1,234,567" are numbers everywhere, "1,234" is refused in
/// English. text() has no group separators; if Grouping is set, they are painted while the cell is
/// not being edited, and "1,234" is read as 1234.
///
/// A number that is wider than the cell is painted with fewer digits, or as kNoRoom: see
/// FittedFloatText.
class QORVEX_EXPORT TQorCustomEdit : public TextCell, public CellProperties {
  Q_OBJECT
  /// The value as a text: see ValueText.
  Q_PROPERTY(QString Value READ ValueText WRITE setValueText NOTIFY Changed USER true)

 public:
  ~TQorCustomEdit() override;

  // The line edit has members of the same names, which affect its text only.
  using CellProperties::setAlignment;
  using CellProperties::setReadOnly;

  /// @{
  /// The value. Setting it discards what has been typed and raises no signal.
  [[nodiscard]] Extended Value() const noexcept { return value_; }
  void setValue(Extended value);
  /// @}

  /// @{
  /// The value as the shortest text that Str2Float reads as the same value; empty for null. This is
  /// the property for a QDataWidgetMapper, which asks for it before the cell has lost the focus:
  /// while a number is being typed, it is the text of that number, and setting it to that number
  /// commits it. Another value is set by setValue. A text that is not a number changes nothing; it
  /// is reported with qWarning.
  [[nodiscard]] QString ValueText() const;
  void setValueText(const QString& text);
  /// @}

  /// Shows a value that may have changed elsewhere, but keeps a text that is being typed.
  void Refresh(Extended value);

  /// Shows nothing, for a cell without a value. Value() is then null. A text that is being typed is
  /// discarded or kept.
  void ShowNothing(bool keep_typed = false);

  /// @{
  /// Whether the value is null. Setting true discards the value; setting false turns a null into 0.
  [[nodiscard]] bool Null() const noexcept;
  void setNull(bool null);
  void resetNull() { setNull(false); }
  /// @}

  /// Makes the text the value. If it is not a number, it is marked, the value stays, and the result
  /// is false.
  bool Commit() override;
  /// Why Commit has failed last, as a sentence for the user.
  [[nodiscard]] const QString& Refusal() const noexcept { return refusal_; }
  /// Discards the text and shows the value.
  void Restore() override;

  /// What a text means, as Commit reads it.
  [[nodiscard]] CellReading Read(const QString& text) const;
  /// The text that the cell would show for a value.
  [[nodiscard]] QString TextFor(Extended value) const;
  /// The text of a value with all its digits, for other programs.
  [[nodiscard]] QString ExactText(Extended value) const;

  /// Marks the cell as one of several selected ones, with the colours of the palette; while it has
  /// the focus, it keeps its own. False by default.
  void SetSelected(bool selected);

  /// The colour of this value's text; invalid for the colour that the settings give it.
  void SetSpecialColor(const QColor& color);

  /// @cond internal
  /// Lets elements stand for texts, which are shown as they are, from the left; a typed text that
  /// is not a number becomes one. With a null pointer, the default, there are numbers only.
  void SetTexts(detail::TextElements* texts);
  /// @endcond

  /// Stores a committed value in place of the cell, and ends with Refresh; the cell keeps its value
  /// until then and raises no signal. Empty by default.
  std::function<void(Extended value)> StoreElsewhere;

 Q_SIGNALS:
  /// A commit has changed the value.
  void Changed();
  /// A commit has made the value null; Changed follows.
  void OnNull();
  /// A text of several cells is to be pasted here.
  void BlockPasted(const QString& text);

 protected:
  /// A cell that shows nothing until a derived class sets its value.
  explicit TQorCustomEdit(QWidget* parent = nullptr);

  /// The text of a value that is not null, as the cell shows it.
  [[nodiscard]] virtual QString TextOf(Extended value) const = 0;
  /// The digits of a value whose text does not fit, before it is shortened.
  [[nodiscard]] virtual FloatDigits Digits() const = 0;
  /// What a text that is not blank means.
  [[nodiscard]] virtual CellReading ValueOf(const QString& text) const = 0;
  /// The plain text of a number, as it is painted while the cell is not being edited.
  [[nodiscard]] virtual QString Painted(std::string_view number) const;
  /// Whether the text is that of a number: neither null nor blank.
  [[nodiscard]] bool ShowsNumber() const;
  /// A text of several cells goes to the owner, any other one into the cell.
  void Paste(const QString& text) override;
  [[nodiscard]] QString ShorterText() const override;
  /// Explains a marked text.
  [[nodiscard]] QString Tip() const override;
  /// Shows the value again after a change of what determines its text.
  void ShowAnew();

  /// @{
  /// The cell shows its new settings.
  void SettingsChanged() override;
  void DoColorSetChange() override;
  /// @}

  /// @{
  /// Qt's events.
  void changeEvent(QEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  /// @}

 private:
  [[nodiscard]] QString ShownText() const;
  [[nodiscard]] std::optional<QString> TextIn(Extended value) const;
  void Align();
  void Show(Extended value, bool has_value, bool keep_pending);
  void Mark(bool invalid);
  void ApplyColors();

  Extended value_ = 0;
  bool has_value_ = true;
  bool invalid_ = false;
  bool selected_ = false;
  QString refusal_;
  QColor special_color_;
  detail::TextElements* texts_ = nullptr;
  // Made when a colour is to be shown.
  std::unique_ptr<detail::CellColors> colors_;
};

}  // QORVEX_WIDGET_UNIT(QorvexBaseControls)
