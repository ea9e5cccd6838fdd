#include "apps/qorvex-gallery/tall_editor.h"

#include <QEvent>
#include <algorithm>

namespace qorvex::gallery {

TallEditor::TallEditor(TQorVectorEdit* editor, QWidget* parent) : QWidget(parent), editor_(editor) {
  editor_->setParent(this);
  editor_->move(0, 0);
  // Never lower than what the editor needs, so that all cells have this height.
  editor_->setCellHeight(editor_->fontMetrics().height() + 8);
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
  setFocusProxy(editor_);
}

TallEditor::~TallEditor() = default;

QSize TallEditor::sizeHint() const {
  return {editor_->sizeHint().width(), HeightOf(20)};
}

QSize TallEditor::minimumSizeHint() const {
  return {editor_->sizeHint().width(), HeightOf(4)};
}

bool TallEditor::event(QEvent* event) {
  // The editor has become wider or narrower.
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
  const int cells = (height() - HeightOf(0)) / editor_->CellHeight();
  editor_->setNoOfEdits(std::max(1, cells));
  editor_->resize(editor_->sizeHint());
}

int TallEditor::HeightOf(int cells) const {
  return cells * editor_->CellHeight() + 2 * editor_->frameWidth();
}

}  // namespace qorvex::gallery
