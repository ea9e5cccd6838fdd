#pragma once

/// @file
/// DesignerWidget, which describes one class of widgets to Qt Designer.

#include <QIcon>
#include <QMetaObject>
#include <QString>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

namespace qorvex {

/// What the plugin states about a class; the rest comes from its meta-object.
struct WidgetEntry {
  const QMetaObject& meta;
  QString header;
  QString sign;  ///< The few characters that its icon shows.
  QString tool_tip;
  QWidget* (*create)(QWidget* parent);
};

/// One class in the group Qorvex. Holders of non-visual components are visible on a form that is
/// being designed.
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
