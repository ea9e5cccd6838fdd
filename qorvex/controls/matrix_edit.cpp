#include "qorvex/controls/matrix_edit.h"

namespace qorvex::inline QorvexMatrixEdit {

TQorMatrixEdit::TQorMatrixEdit(QWidget* parent) : TQorCustomMatrixEdit(parent) {
  BuildGrid([this](QWidget* panel) { return new TQorFloatEdit(panel, &OnConvert); });
}

TQorMatrixEdit::~TQorMatrixEdit() = default;

}  // namespace qorvex::inline QorvexMatrixEdit
