// The headings of a matrix edit, and the widths and formats of its columns.

#include "qorvex/controls/custom_matrix_edit.h"
#include "qorvex/controls/panel/detail/panel_parts.h"

namespace qorvex::inline QorvexMatrixEdit {

bool TQorCustomMatrixEdit::RowHeadings() const noexcept {
  return Parts().headings.HasRows();
}

void TQorCustomMatrixEdit::setRowHeadings(bool on) {
  Parts().layout.SetRowHeadings(on);
}

bool TQorCustomMatrixEdit::ColHeadings() const noexcept {
  return Parts().headings.HasCols();
}

void TQorCustomMatrixEdit::setColHeadings(bool on) {
  Parts().layout.SetColHeadings(on);
}

QString TQorCustomMatrixEdit::RowHeading(quint32 row) const {
  if (OnGetRowHeading) return OnGetRowHeading(row);
  return Model() ? Parts().model.Heading(CellAxis::kRows, row) : CellTable::RowHeading(row);
}

QString TQorCustomMatrixEdit::ColHeading(quint32 col) const {
  if (OnGetColHeading) return OnGetColHeading(col);
  return Model() ? Parts().model.Heading(CellAxis::kCols, col) : CellTable::ColHeading(col);
}

int TQorCustomMatrixEdit::ColWidth(quint32 col) const {
  return Parts().geometry.ColWidths().Size(col);
}

void TQorCustomMatrixEdit::setColWidth(quint32 col, int width) {
  Parts().geometry.ColWidths().Set(col, width);
  Parts().layout.Arrange();
}

void TQorCustomMatrixEdit::resetColWidth(quint32 col) {
  Parts().geometry.ColWidths().Reset(col);
  Parts().layout.Arrange();
}

NumberSettings TQorCustomMatrixEdit::ColFormat(quint32 col) const {
  const auto& formats = Parts().grid.ColFormats();
  const auto format = formats.find(col);
  return format != formats.end() ? format->second : EffectiveSettings().number;
}

void TQorCustomMatrixEdit::setColFormat(quint32 col, const NumberSettings& format) {
  Parts().grid.ColFormats()[col] = format;
  ApplySettings();
}

void TQorCustomMatrixEdit::resetColFormat(quint32 col) {
  Parts().grid.ColFormats().erase(col);
  ApplySettings();
}

}  // namespace qorvex::inline QorvexMatrixEdit
