#pragma once

/// @file
/// DesignerWidget, what a designer asks about one class of widgets.

#include <QIcon>
#include <QMetaObject>
#include <QString>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

namespace qorvex {

/// What the plugin says about a class; the rest comes from its meta-object.
struct WidgetEntry {
  const QMetaObject& meta;
  QString header;
  QString sign;  ///< What its icon shows, a few characters.
  QString tool_tip;
  QWidget* (*create)(QWidget* parent);
};

/// One class in the group of ours. On a form that is being designed, components without a picture
/// show themselves.
class DesignerWidget final : public QDesignerCustomWidgetInterface {
 public:
  explicit DesignerWidget(WidgetEntry entry) : entry_(std::move(entry)) {}

  [[nodiscard]] QString name() const override { return entry_.meta.className(); }
  [[nodiscard]] QString group() const override { return QStringLiteral("Qorvex"); }
  [[nodiscard]] QString toolTip() const override { return entry_.tool_tip; }
  [[nodiscard]] QString whatsThis() const override { return entry_.tool_tip; }
  [[nodiscard]] QString includeFile() const override { return entry_.header; }
  [[nodiscard]] QIcon icon() const override;
  [[nodiscard]] bool isContainer() const override { return false; }
  [[nodiscard]] QWidget* createWidget(QWidget* parent) override;
  [[nodiscard]] QString domXml() const override;

 private:
  WidgetEntry entry_;
};

}  // namespace qorvex
