#pragma once

/// @file
/// Unit QorvexMathLabel: TQorMathLabel, a label for mathematical text.

#include <QFont>
#include <QString>

#include "qorvex/base/export.h"
#include "qorvex/base_controls/custom_label.h"
#include "qorvex/base_controls/unit.h"

QORVEX_WIDGET_UNIT(QorvexMathLabel) {

/// A label whose caption may contain mathematical symbols.
///
/// A caret turns the character after it into a symbol: "^a" is alpha, "^+" is not equal, "^^" is a
/// caret. docs/controls/math_label.md has the table. Screen readers get the symbols themselves.
///
/// Characters are drawn one by one from left to right, each with its own width, without kerning or
/// ligatures; alignment and line breaks apply to whole lines. A line that is too wide begins at the
/// left edge and ends with the first character that reaches beyond the right one. For right-to-left
/// scripts use a TQorCustomLabel.
class QORVEX_EXPORT TQorMathLabel : public TQorCustomLabel {
  Q_OBJECT
  /// Published: see the accessor.
  QORVEX_PUBLISHED(QString, SymbolFamily)

 public:
  /// An empty label.
  explicit TQorMathLabel(QWidget* parent = nullptr);
  ~TQorMathLabel() override;

  /// @{
  /// The family of the symbols' font, whose size and style are those of the label's font. If empty,
  /// which is the default, the family of the label's font is used.
  [[nodiscard]] QString SymbolFamily() const { return symbol_family_; }
  void setSymbolFamily(const QString& family);
  void resetSymbolFamily() { setSymbolFamily({}); }
  /// @}

 protected:
  /// @{
  /// See TQorCustomLabel.
  void DoDrawLabel(QPainter& painter, QRect& rectangle, int flags) const override;
  [[nodiscard]] QString DisplayText() const override;
  /// @}

 private:
  [[nodiscard]] QFont SymbolFont() const;

  QString symbol_family_;
};

}  // QORVEX_WIDGET_UNIT(QorvexMathLabel)
