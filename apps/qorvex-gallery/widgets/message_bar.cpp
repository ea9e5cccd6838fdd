#include "apps/qorvex-gallery/widgets/message_bar.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QStyle>
#include <QToolButton>

#include "apps/qorvex-gallery/widgets/tool_tip.h"
#include "qorvex/base_controls/custom_edit.h"
#include "qorvex/controls/custom_matrix_edit.h"
#include "qorvex/controls/vector_edit.h"

namespace qorvex::gallery {

MessageBar::MessageBar(QWidget* parent) : QFrame(parent), shown_(new QLineEdit) {
  setObjectName("messageBar");
  auto* const icon = new QLabel;
  const int size = style()->pixelMetric(QStyle::PM_SmallIconSize);
  icon->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(size, size));

  shown_->setReadOnly(true);
  shown_->setFrame(false);
  shown_->setAccessibleName(tr("Message"));
  // All other colours follow the application.
  QPalette palette;
  palette.setColor(QPalette::Base, Qt::transparent);
  shown_->setPalette(palette);

  auto* const close = new QToolButton;
  close->setAutoRaise(true);
  close->setIcon(style()->standardIcon(QStyle::SP_TitleBarCloseButton));
  close->setToolTip(tr("Close"));
  close->setAccessibleName(tr("Close the message"));
  connect(close, &QToolButton::clicked, this, &MessageBar::Close);

  auto* const layout = new QHBoxLayout(this);
  layout->setContentsMargins(10, 5, 5, 5);
  layout->addWidget(icon);
  layout->addWidget(shown_, 1);
  layout->addWidget(close);
  QSizePolicy keeps_room(QSizePolicy::Preferred, QSizePolicy::Fixed);
  keeps_room.setRetainSizeWhenHidden(true);
  setSizePolicy(keeps_room);
  hide();
}

MessageBar::~MessageBar() = default;

void MessageBar::SetText(const QString& text) {
  text_ = text;
  ShowTexts();
}

QString MessageBar::Text() const {
  return isHidden() ? QString() : shown_->text();
}

void MessageBar::Watch(const TQorCustomEdit& cell) {
  connect(&cell, &TQorCustomEdit::Refused, this, [this, &cell] {
    SetRefusal(tr("%1: %2 The value stays.").arg(cell.accessibleName(), cell.Refusal()));
  });
  connect(&cell, &TQorCustomEdit::Changed, this, [this] { SetRefusal({}); });
}

void MessageBar::Watch(const CellPanel& editor) {
  connect(&editor, &CellPanel::OnTextRefused, this, &MessageBar::SetRefusal);
  connect(&editor, &CellPanel::OnBlockRefused, this, &MessageBar::SetRefusal);
  // The editors have signals of their own for changes, with one and with two arguments.
  if (const auto* const vector = qobject_cast<const TQorVectorEdit*>(&editor))
    connect(vector, &TQorVectorEdit::OnChange, this, [this] { SetRefusal({}); });
  if (const auto* const matrix = qobject_cast<const TQorCustomMatrixEdit*>(&editor))
    connect(matrix, &TQorCustomMatrixEdit::OnChange, this, [this] { SetRefusal({}); });
}

void MessageBar::SetRefusal(const QString& refusal) {
  if (refusal.isEmpty() && refusal_.isEmpty()) return;
  refusal_ = refusal;
  ShowTexts();
}

void MessageBar::Close() {
  refusal_.clear();
  text_.clear();
  hide();
}

void MessageBar::ShowTexts() {
  const QString text = QStringLiteral("%1 %2").arg(refusal_, text_).trimmed();
  shown_->setText(text);
  shown_->setCursorPosition(0);
  shown_->setToolTip(ToolTipOf(text));
  setAccessibleName(text);
  setVisible(!text.isEmpty());
  if (text.isEmpty()) return;
  QAccessibleEvent alert(this, QAccessible::Alert);
  QAccessible::updateAccessibility(&alert);
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
