#pragma once

/// @file
/// CellColors, the colours of one cell that differ from those of its surroundings.

#include <QColor>
#include <QString>
#include <QWidget>

namespace qorvex::inline QorvexBaseControls::detail {

/// Shows colours through the palette of a cell, or, where a style sheet is in effect, which
/// overrides palettes, through a style sheet of the cell. A style sheet that the program gives the
/// cell stays in effect beside it.
class CellColors {
 public:
  /// Shows a text colour and a background; an invalid one is left to the surroundings. Does nothing
  /// if they are shown already.
  void Show(QWidget& cell, const QColor& text, const QColor& background);
  /// Shows them again after a change of the style or a style sheet.
  void StyleChanged(QWidget& cell);

 private:
  void Apply(QWidget& cell);

  QColor text_;
  QColor background_;
  bool in_palette_ = false;
  QString own_sheet_;    // The program's.
  QString shown_sheet_;  // With the colours.
};

}  // namespace qorvex::inline QorvexBaseControls::detail
