#include "qorvex/controls/matrix_edit.h"

namespace qorvex::inline QorvexMatrixEdit {

TQorMatrixEdit::TQorMatrixEdit(QWidget* parent) : TQorCustomMatrixEdit(parent) {
  BuildGrid([this](QWidget* panel) {
    auto* const cell = new TQorFloatEdit(panel);
    cell->UseConvert(OnConvert);
    return cell;
  });
}

TQorMatrixEdit::~TQorMatrixEdit() = default;

}  // namespace qorvex::inline QorvexMatrixEdit
