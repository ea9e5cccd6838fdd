#include "apps/qorvex-gallery/widgets/form_rows.h"

#include <QLabel>
#include <QWidget>

namespace qorvex::gallery {

void SetRows(QFormLayout& form, const QList<FormRow>& rows) {
  while (form.rowCount() > 0) {
    const QFormLayout::TakeRowResult row = form.takeRow(0);
    if (row.labelItem != nullptr) delete row.labelItem->widget();
    delete row.labelItem;
    delete row.fieldItem;
  }
  for (const FormRow& row : rows) {
    row.field->setParent(form.parentWidget());
    row.field->setVisible(row.is_shown);
    if (!row.is_shown) continue;
    if (row.label.isEmpty()) {
      form.addRow(row.field);
    } else {
      form.addRow(row.label, row.field);
    }
  }
}

}  // namespace qorvex::gallery
