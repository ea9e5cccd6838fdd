#include "apps/qorvex-gallery/widgets/message_bar.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QStyle>
#include <QToolButton>

#include "apps/qorvex-gallery/widgets/tool_tip.h"

namespace qorvex::gallery {

MessageBar::MessageBar(QWidget* parent) : QFrame(parent), text_(new QLineEdit) {
  setObjectName("messageBar");
  auto* const icon = new QLabel;
  const int size = style()->pixelMetric(QStyle::PM_SmallIconSize);
  icon->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(size, size));

  text_->setReadOnly(true);
  text_->setFrame(false);
  // All other colours follow the application.
  QPalette palette;
  palette.setColor(QPalette::Base, Qt::transparent);
  text_->setPalette(palette);

  auto* const close = new QToolButton;
  close->setAutoRaise(true);
  close->setIcon(style()->standardIcon(QStyle::SP_TitleBarCloseButton));
  close->setToolTip(tr("Close"));
  close->setAccessibleName(tr("Close the message"));
  connect(close, &QToolButton::clicked, this, &QWidget::hide);

  auto* const layout = new QHBoxLayout(this);
  layout->setContentsMargins(10, 5, 5, 5);
  layout->addWidget(icon);
  layout->addWidget(text_, 1);
  layout->addWidget(close);
  QSizePolicy keeps_room(QSizePolicy::Preferred, QSizePolicy::Fixed);
  keeps_room.setRetainSizeWhenHidden(true);
  setSizePolicy(keeps_room);
  hide();
}

MessageBar::~MessageBar() = default;

void MessageBar::SetText(const QString& text) {
  text_->setText(text);
  text_->setCursorPosition(0);
  text_->setToolTip(ToolTipOf(text));
  setAccessibleName(text);
  setVisible(!text.isEmpty());
  if (text.isEmpty()) return;
  QAccessibleEvent alert(this, QAccessible::Alert);
  QAccessible::updateAccessibility(&alert);
}

QString MessageBar::Text() const {
  return isHidden() ? QString() : text_->text();
}

// Amber, on which text is readable in light and dark themes.
void MessageBar::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QColor(0xE6, 0x9F, 0x00));
  painter.setBrush(QColor(0xE6, 0x9F, 0x00, 45));
  painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 4, 4);
}

}  // namespace qorvex::gallery
