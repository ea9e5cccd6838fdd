#include "apps/qorvex-gallery/widgets/side_panel.h"

#include <QGroupBox>
#include <QVBoxLayout>

namespace qorvex::gallery {

SidePanel::SidePanel(QWidget* parent) : QScrollArea(parent) {
  auto* const content = new QWidget;
  groups_ = new QVBoxLayout(content);
  groups_->setContentsMargins(0, 0, 6, 0);
  groups_->setSpacing(10);
  setWidget(content);
  setWidgetResizable(true);
  setFrameShape(QFrame::NoFrame);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  // Some forty figures, so that it grows with the font.
  setFixedWidth(42 * fontMetrics().horizontalAdvance('0') + 40);
}

QVBoxLayout* SidePanel::AddGroup(const QString& title) {
  auto* const group = new QGroupBox(title);
  auto* const layout = new QVBoxLayout(group);
  layout->setSpacing(8);
  groups_->addWidget(group);
  return layout;
}

void SidePanel::Finish() {
  groups_->addStretch();
}

}  // namespace qorvex::gallery
