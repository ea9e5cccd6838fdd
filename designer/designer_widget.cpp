#include "designer_widget.h"

#include <QFontMetrics>
#include <QGuiApplication>
#include <QMetaProperty>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QWidget>
#include <QXmlStreamWriter>
#include <algorithm>

#include "qorvex/components/component_holder.h"

namespace qorvex {
namespace {

bool IsOurs(const QMetaObject& meta) {
  return QByteArrayView(meta.className()).startsWith("qorvex::");
}

// The nearest base class that belongs to Qt.
const QMetaObject& QtClass(const QMetaObject& meta) {
  const QMetaObject* ancestor = &meta;
  while (IsOurs(*ancestor)) ancestor = ancestor->superClass();
  return *ancestor;
}

// Form loaders and previews create widgets through the plugin too.
bool IsBeingDesigned(const QObject* form_part) {
  while (form_part != nullptr && !form_part->inherits("QDesignerFormWindowInterface")) {
    form_part = form_part->parent();
  }
  return form_part != nullptr;
}

// For example uiCtrlHolder for TQorUICtrlHolder.
QString FirstObjectName(const QMetaObject& meta) {
  QString name = QString::fromLatin1(meta.className()).section("::", -1).remove(0, 4);
  const auto word_end =
      std::find_if(name.cbegin(), name.cend(), [](QChar c) { return c.isLower(); });
  const auto capitals = std::max<qsizetype>(word_end - name.cbegin() - 1, 1);
  return name.left(capitals).toLower() + name.mid(capitals);
}

// Texts that users read. All others are numbers and names, which must not be translated.
bool IsTranslatable(const QMetaProperty& property) {
  static const QByteArrayList kNames{"Caption", "NullStr"};
  return kNames.contains(property.name());
}

}  // namespace

QIcon DesignerWidget::icon() const {
  constexpr int kExtent = 96;
  constexpr int kWidest = 84;
  constexpr qreal kCorner = 16;
  QPixmap pixmap(kExtent, kExtent);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  painter.setRenderHint(QPainter::Antialiasing);
  const QPalette palette = QGuiApplication::palette();
  painter.setPen(Qt::NoPen);
  painter.setBrush(palette.highlight());
  painter.drawRoundedRect(pixmap.rect(), kCorner, kCorner);
  QFont font = painter.font();
  font.setBold(true);
  font.setPixelSize(kExtent / 2);
  const int width = std::max(QFontMetrics(font).horizontalAdvance(entry_.sign), kWidest);
  font.setPixelSize(kExtent / 2 * kWidest / width);
  painter.setFont(font);
  painter.setPen(palette.highlightedText().color());
  painter.drawText(pixmap.rect(), Qt::AlignCenter, entry_.sign);
  return pixmap;
}

QWidget* DesignerWidget::createWidget(QWidget* parent) {
  QWidget* widget = entry_.create(parent);
  auto* holder = qobject_cast<ComponentHolder*>(widget);
  if (holder != nullptr && IsBeingDesigned(parent)) holder->ShowAtDesignTime(icon());
  return widget;
}

QString DesignerWidget::domXml() const {
  const QMetaObject& qt_class = QtClass(entry_.meta);
  QString xml;
  QXmlStreamWriter writer(&xml);
  writer.writeStartElement("ui");
  writer.writeAttribute("language", "c++");
  writer.writeAttribute("displayname", name().section("::", -1));
  writer.writeStartElement("widget");
  writer.writeAttribute("class", name());
  writer.writeAttribute("name", FirstObjectName(entry_.meta));
  writer.writeEndElement();
  writer.writeStartElement("customwidgets");
  writer.writeStartElement("customwidget");
  writer.writeTextElement("class", name());
  writer.writeTextElement("extends", qt_class.className());
  writer.writeTextElement("header", entry_.header);
  writer.writeStartElement("propertyspecifications");
  for (int i = qt_class.propertyCount(); i < entry_.meta.propertyCount(); ++i) {
    const QMetaProperty property = entry_.meta.property(i);
    const int type = property.typeId();
    if (type != QMetaType::QString && type != QMetaType::QStringList) continue;
    writer.writeEmptyElement("stringpropertyspecification");
    writer.writeAttribute("name", property.name());
    const bool lines =
        type == QMetaType::QStringList || QByteArrayView(property.name()) == "Caption";
    writer.writeAttribute("type", lines ? "multiline" : "singleline");
    if (!IsTranslatable(property)) writer.writeAttribute("notr", "true");
  }
  writer.writeEndDocument();
  return xml;
}

}  // namespace qorvex
