#include "qorvex/controls/matrix_edit.h"

#include "qorvex/base_controls/detail/number_text.h"

namespace qorvex::inline QorvexMatrixEdit {

TQorMatrixEdit::TQorMatrixEdit(QWidget* parent)
    : TQorCustomMatrixEdit(parent, [this](QWidget* panel) {
        auto* const cell = new TQorFloatEdit(panel);
        cell->OnConvert = [this](const QString& text) { return DoConvert(text); };
        return cell;
      }) {
  BuildGrid();
}

TQorMatrixEdit::~TQorMatrixEdit() = default;

std::optional<Extended> TQorMatrixEdit::DoConvert(const QString& text) const {
  return OnConvert ? OnConvert(text) : QorvexBaseControls::detail::ParseLocalNumber(text, locale());
}

}  // namespace qorvex::inline QorvexMatrixEdit
