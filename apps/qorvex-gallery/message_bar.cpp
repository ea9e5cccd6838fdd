#include "apps/qorvex-gallery/message_bar.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QStyle>
#include <QToolButton>

namespace qorvex::gallery {

MessageBar::MessageBar(QWidget* parent) : QFrame(parent), label_(new QLabel) {
  setObjectName("messageBar");
  auto* const icon = new QLabel;
  const int size = style()->pixelMetric(QStyle::PM_SmallIconSize);
  icon->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(size, size));

  label_->setWordWrap(true);
  label_->setTextFormat(Qt::PlainText);
  label_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);

  auto* const close = new QToolButton;
  close->setAutoRaise(true);
  close->setIcon(style()->standardIcon(QStyle::SP_TitleBarCloseButton));
  close->setToolTip(tr("Close"));
  close->setAccessibleName(tr("Close the message"));
  connect(close, &QToolButton::clicked, this, &QWidget::hide);

  auto* const layout = new QHBoxLayout(this);
  layout->setContentsMargins(10, 5, 5, 5);
  layout->addWidget(icon);
  layout->addWidget(label_, 1);
  layout->addWidget(close);
  hide();
}

MessageBar::~MessageBar() = default;

void MessageBar::SetText(const QString& text) {
  label_->setText(text);
  setAccessibleName(text);
  setVisible(!text.isEmpty());
  if (text.isEmpty()) return;
  QAccessibleEvent alert(this, QAccessible::Alert);
  QAccessible::updateAccessibility(&alert);
}

QString MessageBar::Text() const {
  return isHidden() ? QString() : label_->text();
}

// An amber that lets the text of light and dark themes stay readable.
void MessageBar::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QColor(0xE6, 0x9F, 0x00));
  painter.setBrush(QColor(0xE6, 0x9F, 0x00, 45));
  painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 4, 4);
}

}  // namespace qorvex::gallery
