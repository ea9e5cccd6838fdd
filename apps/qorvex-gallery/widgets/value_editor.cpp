#include "apps/qorvex-gallery/widgets/value_editor.h"

namespace qorvex::gallery {

void SetUpValueEditor(TQorVectorEdit& editor) {
  constexpr int preferred_rows = 20;
  constexpr int digits = 12;
  const QFontMetrics metrics = editor.fontMetrics();
  editor.setCellWidth(14 * metrics.averageCharWidth());
  editor.setCellHeight(metrics.height() + 8);
  editor.setNoOfEdits(preferred_rows);
  editor.setAutoEdits(true);
  editor.setNumberFormat(NumberSettings::nfGeneral);
  editor.setSignificantDigits(digits);
  editor.setBlankWhenNull(true);
}

}  // namespace qorvex::gallery
