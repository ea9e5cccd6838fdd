#include "apps/qorvex-gallery/widgets/tall_editor.h"

#include <QEvent>
#include <QScrollBar>
#include <algorithm>
#include <cmath>

namespace qorvex::gallery {

TallEditor::TallEditor(TQorVectorEdit* editor, QWidget* parent) : QWidget(parent), editor_(editor) {
  editor_->setParent(this);
  editor_->move(0, 0);
  // At least as high as the editor needs, so that all cells have this height.
  editor_->setCellHeight(editor_->fontMetrics().height() + 8);
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
  setFocusProxy(editor_);
  connect(editor_, &TQorVectorEdit::OnRowNoChange, this, &TallEditor::Fit);
}

TallEditor::~TallEditor() = default;

void TallEditor::FitFormat(const TQorFloatVector& values) {
  // Leaves enough space for the digits before the point.
  constexpr int decimals = 10;
  constexpr Extended least = 1e-5L;
  constexpr Extended most = 1e9L;
  const bool is_ordinary = std::ranges::all_of(values, [](Extended value) {
    const Extended size = std::fabs(value);
    return !(size > 0) || (size >= least && size < most);
  });
  editor_->setDecimalPlaces(decimals);
  editor_->setTrimTrailingZeroes(true);
  editor_->setFullAccuracy(!is_ordinary);
}

QSize TallEditor::sizeHint() const {
  return {editor_->sizeHint().width(), HeightOf(20)};
}

QSize TallEditor::minimumSizeHint() const {
  return {editor_->sizeHint().width(), HeightOf(4)};
}

bool TallEditor::event(QEvent* event) {
  // The width of the editor has changed.
  if (event->type() == QEvent::LayoutRequest) {
    updateGeometry();
    Fit();
  }
  return QWidget::event(event);
}

void TallEditor::resizeEvent(QResizeEvent*) {
  Fit();
}

void TallEditor::Fit() {
  const qint64 room = (height() - HeightOf(0)) / editor_->CellHeight();
  const qint64 cells = std::min(room, qint64{editor_->NoOfRows()});
  editor_->setNoOfEdits(static_cast<int>(std::max(qint64{1}, cells)));
  editor_->findChild<QScrollBar*>()->setVisible(cells < qint64{editor_->NoOfRows()});
  editor_->resize(editor_->sizeHint());
}

int TallEditor::HeightOf(int cells) const {
  return cells * editor_->CellHeight() + 2 * editor_->frameWidth();
}

}  // namespace qorvex::gallery
