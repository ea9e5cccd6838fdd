#include "qorvex/components/component_holder.h"

#include <QDebug>
#include <QPainter>
#include <QStyle>
#include <algorithm>

namespace qorvex::inline QorvexControls {
namespace {

constexpr int kMargin = 4;

}  // namespace

ComponentHolder::ComponentHolder(QWidget* parent) : QWidget(parent) {
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  hide();
}

ComponentHolder::~ComponentHolder() = default;

void ComponentHolder::ShowAtDesignTime(const QIcon& icon) {
  icon_ = icon;
  show();
}

QSize ComponentHolder::sizeHint() const {
  const int text_width = fontMetrics().horizontalAdvance(Text());
  const int height = std::max(IconExtent(), fontMetrics().height());
  return {IconExtent() + text_width + 3 * kMargin, height + 2 * kMargin};
}

void ComponentHolder::ShareName(QObject* component) {
  connect(this, &QObject::objectNameChanged, component,
          [component](const QString& name) { component->setObjectName(name); });
}

void ComponentHolder::SetProblem(const QString& message) {
  problem_ = message;
  if (!problem_.isEmpty()) qWarning().noquote() << objectName() + ": " + problem_;
  updateGeometry();
  update();
}

void ComponentHolder::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QRect inside = rect().adjusted(kMargin, kMargin, -kMargin, -kMargin);
  const QRect icon_rect = QStyle::alignedRect(
      layoutDirection(), Qt::AlignLeading | Qt::AlignVCenter, {IconExtent(), IconExtent()}, inside);
  icon_.paint(&painter, icon_rect);
  const int text_width = inside.width() - IconExtent() - kMargin;
  const QRect text_rect = QStyle::alignedRect(layoutDirection(), Qt::AlignTrailing,
                                              {text_width, inside.height()}, inside);
  painter.drawText(text_rect, Qt::AlignLeading | Qt::AlignVCenter, Text());
}

QString ComponentHolder::Text() const {
  const QString class_name = QString::fromLatin1(metaObject()->className()).section("::", -1);
  return problem_.isEmpty() ? class_name : problem_;
}

int ComponentHolder::IconExtent() const {
  return style()->pixelMetric(QStyle::PM_LargeIconSize, nullptr, this);
}

}  // namespace qorvex::inline QorvexControls
