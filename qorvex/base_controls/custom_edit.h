#pragma once

/// @file
/// TQorCustomEdit, a cell that holds an exact value and shows it as text.

#include <QString>
#include <functional>
#include <optional>

#include "qorvex/base/element_types.h"
#include "qorvex/base/export.h"
#include "qorvex/base/fitted_text.h"
#include "qorvex/base_controls/cell_properties.h"
#include "qorvex/base_controls/text_cell.h"
#include "qorvex/base_controls/unit.h"

QORVEX_WIDGET_UNIT(QorvexBaseControls) {

/// A text cell around an 80-bit value.
///
/// Typing is free. Enter and leaving the cell commit: the text becomes the value, or, when it is
/// no number, Enter marks it and stays, and leaving restores the value that was there. Escape
/// restores too. A text that is back to what the cell showed is no change, so a value that was
/// rounded for display keeps every bit until something else is typed.
///
/// NaN is null: it shows as NullStr, and an empty text or NullStr commits it, where AllowKbdNull
/// permits. Where it does not, an empty text is 0 in a cell with BlankWhenZero, and no number in
/// others.
///
/// Numbers are written and read as the widget's locale has them, without separators of groups;
/// the decimal key of the keypad types the separator of the locale.
///
/// A number that is wider than the cell is painted with fewer digits, or as kNoRoom: see
/// FittedFloatText.
class QORVEX_EXPORT TQorCustomEdit : public TextCell, public CellProperties {
  Q_OBJECT

 public:
  ~TQorCustomEdit() override;

  // The line edit has members of these names for its text alone.
  using CellProperties::setAlignment;
  using CellProperties::setReadOnly;

  /// @{
  /// The value. Setting it gives up what has been typed and raises no signal.
  [[nodiscard]] Extended Value() const noexcept { return value_; }
  void setValue(Extended value);
  /// @}

  /// The value may have changed elsewhere: shows it, but leaves a text that is being typed alone.
  void Refresh(Extended value);

  /// Shows nothing, for a cell without a value behind it. Value() is null then.
  void ShowNothing();

  /// @{
  /// Whether the value is null. Setting true gives up the value; setting false makes a null 0.
  [[nodiscard]] bool Null() const noexcept;
  void setNull(bool null);
  void resetNull() { setNull(false); }
  /// @}

  /// Makes the text the value. A text that is no number is marked and stays, and the value stays
  /// too; false then.
  bool Commit() override;
  /// Shows the value again.
  void Restore() override;

  /// The value that a text stands for; nothing when it is none. This is what Commit goes by.
  [[nodiscard]] std::optional<Extended> Parsed(const QString& text) const;
  /// The text of a value with all its digits, as it is copied to other programs.
  [[nodiscard]] QString ExactText(Extended value) const;

  /// A colour for the text of this value, in place of the settings'; invalid for none.
  void SetSpecialColor(const QColor& color);

  /// Stores a committed value in place of the cell and ends with Refresh; the cell then keeps its
  /// value until that, and raises no signal. Empty by default.
  std::function<void(Extended value)> StoreElsewhere;

 Q_SIGNALS:
  /// A commit has changed the value.
  void Changed();
  /// A commit has made the value null; Changed follows.
  void OnNull();
  /// A text of more than one cell is to be pasted here.
  void BlockPasted(const QString& text);

 protected:
  /// A cell that shows nothing until a derived class sets its value.
  explicit TQorCustomEdit(QWidget* parent = nullptr);

  /// The text of a value that is not null, as the cell shows it.
  [[nodiscard]] virtual QString TextOf(Extended value) const = 0;
  /// The digits of a value whose text has no room, before any are given up.
  [[nodiscard]] virtual FloatDigits Digits() const = 0;
  /// The value of a text that is not blank; nothing when it is none.
  [[nodiscard]] virtual std::optional<Extended> ValueOf(const QString& text) const = 0;
  /// A text of several cells goes to the owner, another one into the text.
  void Paste(const QString& text) override;
  [[nodiscard]] QString ShorterText() const override;
  /// What is wrong with a text that is marked.
  [[nodiscard]] QString Tip() const override;
  /// What decides the text has changed: shows the value anew.
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
  void Show(Extended value, bool has_value, bool keep_pending);
  void Mark(bool invalid);
  void ApplyColors();

  Extended value_ = 0;
  bool has_value_ = true;
  bool invalid_ = false;
  QColor special_color_;
  // The colours of the palette that was set last.
  QColor applied_text_;
  QColor applied_background_;
};

}  // QORVEX_WIDGET_UNIT(QorvexBaseControls)
