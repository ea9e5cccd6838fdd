#include <QList>
#include <QObject>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>
#include <memory>
#include <vector>

#include "designer_widget.h"
#include "designer_widgets.h"

namespace qorvex {

/// Offers the widgets to Qt Designer and QUiLoader.
class DesignerPlugin final : public QObject, public QDesignerCustomWidgetCollectionInterface {
  Q_OBJECT
  Q_INTERFACES(QDesignerCustomWidgetCollectionInterface)
  Q_PLUGIN_METADATA(IID QDesignerCustomWidgetCollectionInterface_iid)

 public:
  DesignerPlugin() {
#define QORVEX_ADD(Class, header, sign, tool_tip) \
  Add({Class::staticMetaObject, header, sign, tool_tip, Create<Class>});
    QORVEX_DESIGNER_WIDGETS(QORVEX_ADD)
#undef QORVEX_ADD
  }

  [[nodiscard]] QList<QDesignerCustomWidgetInterface*> customWidgets() const override {
    QList<QDesignerCustomWidgetInterface*> list;
    for (const auto& widget : widgets_) list.append(widget.get());
    return list;
  }

 private:
  template <class Widget>
  static QWidget* Create(QWidget* parent) {
    return new Widget(parent);
  }
  void Add(WidgetEntry entry) {
    widgets_.push_back(std::make_unique<DesignerWidget>(std::move(entry)));
  }

  std::vector<std::unique_ptr<DesignerWidget>> widgets_;
};

}  // namespace qorvex

#include "designer_plugin.moc"
