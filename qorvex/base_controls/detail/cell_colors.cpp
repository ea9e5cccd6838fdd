#include "qorvex/base_controls/detail/cell_colors.h"

#include <QApplication>
#include <QPalette>

namespace qorvex::inline QorvexBaseControls::detail {

namespace {

bool HasStyleSheetAround(const QWidget& cell) {
  if (!qApp->styleSheet().isEmpty()) return true;
  for (const QWidget* around = cell.parentWidget(); around; around = around->parentWidget()) {
    if (!around->styleSheet().isEmpty()) return true;
  }
  return false;
}

// A style sheet for the cell that adds the colours to the program's own.
QString WithColors(const QString& own, const QColor& text, const QColor& background) {
  QString rule;
  const auto add = [&rule](const char* property, const QColor& color) {
    if (!color.isValid()) return;
    rule += QStringLiteral("%1: %2 !important; ")
                .arg(QLatin1String(property), color.name(QColor::HexArgb));
  };
  add("color", text);
  add("background", background);
  if (rule.isEmpty()) return own;
  // Declarations without a selector cannot be mixed with rules. The cell's menu is no line edit and
  // keeps its colours.
  const bool has_rules = own.isEmpty() || own.contains(u'{');
  return (has_rules ? own : QStringLiteral("* { %1 }").arg(own)) +
         QStringLiteral(" QLineEdit { %1}").arg(rule);
}

}  // namespace

void CellColors::Show(QWidget& cell, const QColor& text, const QColor& background) {
  if (text == text_ && background == background_) return;
  text_ = text;
  background_ = background;
  Apply(cell);
}

void CellColors::StyleChanged(QWidget& cell) {
  Apply(cell);
}

void CellColors::Apply(QWidget& cell) {
  // Another one than ours is the program's own.
  if (cell.styleSheet() != shown_sheet_) own_sheet_ = cell.styleSheet();
  const bool has_sheet = !own_sheet_.isEmpty() || HasStyleSheetAround(cell);

  // Only the roles that differ are set, so the others follow the application's palette.
  QPalette palette;
  if (!has_sheet && text_.isValid()) palette.setColor(QPalette::Text, text_);
  if (!has_sheet && background_.isValid()) palette.setColor(QPalette::Base, background_);
  const bool in_palette = palette.resolveMask() != 0;
  if (in_palette || in_palette_) cell.setPalette(palette);
  in_palette_ = in_palette;

  shown_sheet_ = has_sheet ? WithColors(own_sheet_, text_, background_) : own_sheet_;
  if (cell.styleSheet() != shown_sheet_) cell.setStyleSheet(shown_sheet_);
}

}  // namespace qorvex::inline QorvexBaseControls::detail
