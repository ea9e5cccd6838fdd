#include "apps/qorvex-gallery/widgets/side_panel.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QLabel>
#include <QScrollBar>
#include <QVBoxLayout>

#include "apps/qorvex-gallery/widgets/column_box.h"
#include "apps/qorvex-gallery/widgets/heading.h"

namespace qorvex::gallery {

SidePanel::SidePanel(QWidget* parent) : QScrollArea(parent) {
  auto* const content = new QWidget;
  groups_ = new QVBoxLayout(content);
  groups_->setContentsMargins(0, 0, 12, 0);
  groups_->setSpacing(8);
  setWidget(content);
  setWidgetResizable(true);
  setFrameShape(QFrame::NoFrame);
  setFocusPolicy(Qt::NoFocus);  // it follows the focus of its widgets
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  // Wide enough for a number with all its digits in any font.
  setFixedWidth(38 * fontMetrics().horizontalAdvance('0'));
}

QVBoxLayout* SidePanel::AddGroup(const QString& title) {
  if (groups_->count() > 0) groups_->addSpacing(fontMetrics().height());
  groups_->addWidget(MakeHeading(title));
  auto* const layout = new QVBoxLayout;
  layout->setSpacing(8);
  groups_->addLayout(layout);
  return layout;
}

// Boxes with long entries are no wider than the panel, but their lists are.
void SidePanel::Finish() {
  constexpr int kLeastCharacters = 10;
  for (QComboBox* const box : findChildren<QComboBox*>()) {
    const bool may_be_wide =
        qobject_cast<ColumnBox*>(box) != nullptr || box->sizeHint().width() > width() * 3 / 5;
    if (!may_be_wide) continue;
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    box->setMinimumContentsLength(kLeastCharacters);
    box->setMaximumWidth(QWIDGETSIZE_MAX);
    box->view()->setMinimumWidth(box->view()->sizeHintForColumn(0) +
                                 box->view()->verticalScrollBar()->sizeHint().width());
  }
  groups_->addStretch();
}

}  // namespace qorvex::gallery
