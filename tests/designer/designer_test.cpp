#include <QApplication>
#include <QCoreApplication>
#include <QDesignerComponents>
#include <QDesignerFormEditorInterface>
#include <QDesignerFormWindowCursorInterface>
#include <QDesignerFormWindowInterface>
#include <QDesignerFormWindowManagerInterface>
#include <QDesignerIntegration>
#include <QDesignerPropertyEditorInterface>
#include <QDesignerPropertySheetExtension>
#include <QDesignerWidgetBoxInterface>
#include <QDir>
#include <QExtensionManager>
#include <QFileInfo>
#include <QLineEdit>
#include <QMetaProperty>
#include <QPluginLoader>
#include <QRegularExpression>
#include <QTest>
#include <QTreeWidget>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>
#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include "support/properties.h"
#include "support/test.h"

namespace qorvex {

// A Qt Designer without windows, and one form with a widget in it.
class Designer : public testing::Test {
 protected:
  static void SetUpTestSuite() {
    QDir plugins = QFileInfo(PLUGIN).dir();
    plugins.cdUp();
    QCoreApplication::addLibraryPath(plugins.path());
    core_ = QDesignerComponents::createFormEditor(nullptr);
    window_ = new QWidget;
    core_->setWidgetBox(QDesignerComponents::createWidgetBox(core_, window_));
    core_->setPropertyEditor(QDesignerComponents::createPropertyEditor(core_, window_));
    core_->setObjectInspector(QDesignerComponents::createObjectInspector(core_, window_));
    QDesignerComponents::initializePlugins(core_);
    new QDesignerIntegration(core_, core_);
  }

  static void TearDownTestSuite() {
    delete window_;
    delete core_;
  }

  static QList<QDesignerCustomWidgetInterface*> Widgets() {
    QPluginLoader loader(PLUGIN);
    return qobject_cast<QDesignerCustomWidgetCollectionInterface*>(loader.instance())
        ->customWidgets();
  }

  void Load(const QString& contents) {
    form_.reset(core_->formWindowManager()->createFormWindow());
    ASSERT_TRUE(form_->setContents(contents));
    widget_ = form_->mainContainer()->findChild<QWidget*>("tested");
    ASSERT_TRUE(widget_);
    sheet_ = qt_extension<QDesignerPropertySheetExtension*>(core_->extensionManager(), widget_);
    ASSERT_TRUE(sheet_);
  }

  void LoadNew(const QString& class_name) {
    Load(QString(R"(<ui version="4.0"><class>Form</class><widget class="QWidget" name="Form">
                    <property name="geometry"><rect><width>300</width><height>200</height></rect></property>
                    <widget class="%1" name="tested"/></widget></ui>)")
             .arg(class_name));
  }

  // What the saved form contains for the property.
  [[nodiscard]] std::string Saved(const char* property) const {
    const QRegularExpression element(
        QString(R"(<property name="%1"[^>]*>\s*(.*?)\s*</property>)").arg(property),
        QRegularExpression::DotMatchesEverythingOption);
    return element.match(form_->contents()).captured(1).toStdString();
  }

  // Types a text into the property editor.
  void Type(const char* property, const QString& text) {
    core_->formWindowManager()->setActiveFormWindow(form_.get());
    QDesignerPropertyEditorInterface* editor = core_->propertyEditor();
    window_->show();
    QApplication::processEvents();
    form_->selectWidget(widget_);
    editor->setObject(widget_);
    auto* tree = editor->findChild<QTreeWidget*>();
    ASSERT_TRUE(tree);
    const auto items = tree->findItems(property, Qt::MatchExactly | Qt::MatchRecursive);
    ASSERT_EQ(items.size(), 1);
    tree->setCurrentItem(items[0]);
    tree->editItem(items[0], 1);
    auto* line = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    ASSERT_TRUE(line);
    line->selectAll();
    QTest::keyClicks(line, text);
    QTest::keyClick(line, Qt::Key_Return);
  }

  static inline QWidget* window_ = nullptr;
  static inline QDesignerFormEditorInterface* core_ = nullptr;
  std::unique_ptr<QDesignerFormWindowInterface> form_;
  QWidget* widget_ = nullptr;
  QDesignerPropertySheetExtension* sheet_ = nullptr;
};

TEST_F(Designer, SavesEveryPropertyThatWasChangedUntilItIsReset) {
  ASSERT_FALSE(Widgets().isEmpty());
  for (QDesignerCustomWidgetInterface* entry : Widgets()) {
    SCOPED_TRACE(entry->name().toStdString());
    EXPECT_EQ(entry->group(), "Qorvex");
    EXPECT_FALSE(entry->icon().isNull());
    EXPECT_FALSE(entry->isContainer());
    ASSERT_NO_FATAL_FAILURE(LoadNew(entry->name()));
    EXPECT_EQ(widget_->metaObject()->className(), entry->name());
    const std::string initial = PropertyTable(*widget_);
    const QString unchanged = form_->contents();
    // From the last to the first, because later properties determine the range of earlier ones. The
    // value of a cell comes first, because Null discards it.
    std::vector<QMetaProperty> properties = Published(widget_);
    std::ranges::reverse(properties);
    std::ranges::stable_partition(properties, &QMetaProperty::isUser);
    EXPECT_FALSE(properties.empty());
    for (const QMetaProperty& property : properties) {
      SCOPED_TRACE(property.name());
      const int index = sheet_->indexOf(property.name());
      ASSERT_GE(index, 0);
      EXPECT_TRUE(sheet_->isVisible(index));
      EXPECT_TRUE(sheet_->hasReset(index));
      const QVariant before = property.read(widget_);
      form_->cursor()->setWidgetProperty(widget_, property.name(), ChangedValue(property, before));
      EXPECT_TRUE(sheet_->isChanged(index));
      EXPECT_EQ(ValueText(property, widget_) != ValueText(property, before), property.isStored());
      EXPECT_NE(Saved(property.name()).empty(), property.isStored());
    }
    const std::string changed = PropertyTable(*widget_);
    const QString contents = form_->contents();
    EXPECT_TRUE(contents.contains("<widget class=\"" + entry->name() + "\" name=\"tested\">"));
    EXPECT_TRUE(contents.contains("<header>" + entry->includeFile() + "</header>"));

    ASSERT_NO_FATAL_FAILURE(Load(contents));
    EXPECT_EQ(form_->contents().toStdString(), contents.toStdString());
    EXPECT_EQ(PropertyTable(*widget_), changed);
    for (const QMetaProperty& property : properties) {
      form_->cursor()->resetWidgetProperty(widget_, property.name());
    }
    EXPECT_EQ(PropertyTable(*widget_), initial);
    EXPECT_EQ(form_->contents().toStdString(), unchanged.toStdString());
  }
}

TEST_F(Designer, KeepsNumbersAndNamesFromTranslators) {
  const char* const cases[][3] = {
      {"qorvex::TQorVectorEdit", "UICtrl", "<string notr=\"true\">typed</string>"},
      {"qorvex::TQorVectorEdit", "NullStr", "<string>typed</string>"},
      {"qorvex::TQorMathLabel", "FocusControl", "<string notr=\"true\">typed</string>"},
      {"qorvex::TQorMathLabel", "Caption", "<string>typed</string>"},
  };
  for (const auto& [class_name, property, saved] : cases) {
    SCOPED_TRACE(property);
    ASSERT_NO_FATAL_FAILURE(LoadNew(class_name));
    ASSERT_NO_FATAL_FAILURE(Type(property, "typed"));
    EXPECT_EQ(Saved(property), saved);
  }
}

TEST_F(Designer, OffersWidgetsUnderTheirQtClass) {
  const auto widgets = Widgets();
  const auto* const holder = *std::ranges::find(widgets, QString("qorvex::TQorUICtrlHolder"),
                                                &QDesignerCustomWidgetInterface::name);
  EXPECT_EQ(holder->domXml().toStdString(),
            R"(<ui language="c++" displayname="TQorUICtrlHolder">)"
            R"(<widget class="qorvex::TQorUICtrlHolder" name="uiCtrlHolder"/>)"
            R"(<customwidgets><customwidget><class>qorvex::TQorUICtrlHolder</class>)"
            R"(<extends>QWidget</extends><header>qorvex/components/uictrl_holder.h</header>)"
            R"(<propertyspecifications>)"
            R"(<stringpropertyspecification name="NullStr" type="singleline"/>)"
            R"(</propertyspecifications></customwidget></customwidgets></ui>)"
            "\n");
}

TEST_F(Designer, ShowsNonVisualComponentsAndTheirResults) {
  ASSERT_NO_FATAL_FAILURE(LoadNew("qorvex::TQorDescStatsHolder"));
  EXPECT_FALSE(widget_->isHidden());
  form_->cursor()->setWidgetProperty(widget_, "Items", QStringList{"1", "2", "6"});
  EXPECT_EQ(widget_->property("Mean"), "3");
  // A line that is not a number is reported in the picture.
  widget_->resize(200, 40);
  const QImage image = widget_->grab().toImage();
  form_->cursor()->setWidgetProperty(widget_, "Items", QStringList{"1", "two"});
  EXPECT_EQ(widget_->property("Mean"), "3");
  EXPECT_NE(widget_->grab().toImage(), image);
  form_->cursor()->setWidgetProperty(widget_, "Items", QStringList{"3"});
  EXPECT_EQ(widget_->grab().toImage(), image);
}

}  // namespace qorvex
