#include <QApplication>
#include <QFile>
#include <QRegularExpression>
#include <QUiLoader>
#include <QVBoxLayout>
#include <QWidget>
#include <QXmlStreamReader>
#include <QtTest/QTest>
#include <memory>

#include "qorvex/components/desc_stats_holder.h"
#include "qorvex/components/uictrl_holder.h"
#include "qorvex/controls/QorvexMathLabel.h"
#include "qorvex/controls/QorvexMatrixEdit.h"
#include "qorvex/controls/QorvexMatrixFractEdit.h"
#include "qorvex/controls/QorvexVectorEdit.h"
#include "support/properties.h"
#include "support/test.h"
#include "ui_by_name.h"
#include "ui_form.h"
#include "ui_tab_order.h"

namespace qorvex {
namespace {

// Compares each property in form.ui with that of the widget. The parts of colours and lists are
// read as one text, as in ValueText.
void ExpectAsWritten(QWidget& form) {
  form.show();
  QApplication::processEvents();
  QFile file(FORMS "/form.ui");
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  static const QRegularExpression kScope("\\w+::");
  int settings = 0;
  const QWidget* widget = &form;
  for (QXmlStreamReader reader(&file); !reader.atEnd(); reader.readNext()) {
    const QString name = reader.attributes().value("name").toString();
    if (reader.isStartElement() && reader.name() == u"widget" && name != "Form") {
      widget = form.findChild<QWidget*>(name);
      ASSERT_TRUE(widget) << name.toStdString();
    }
    if (!reader.isStartElement() || reader.name() != u"property") continue;
    SCOPED_TRACE((widget->objectName() + "." + name).toStdString());
    reader.readNextStartElement();
    QString written = reader.readElementText(QXmlStreamReader::IncludeChildElements);
    const QMetaObject* meta = widget->metaObject();
    const QMetaProperty property = meta->property(meta->indexOfProperty(name.toLatin1()));
    if (property.isEnumType()) {
      written =
          QString::number(property.enumerator().keysToValue(written.remove(kScope).toLatin1()));
    }
    EXPECT_EQ(ValueText(property, widget).toStdString(), written.toStdString());
    ++settings;
  }
  EXPECT_GT(settings, 150);

  const auto* shared = form.findChild<TQorUICtrlHolder*>("shared");
  EXPECT_EQ(shared->UICtrl()->Settings(), shared->Settings());
  const auto editors = form.findChildren<CellPanel*>();
  EXPECT_EQ(editors.size(), 4);
  for (const CellPanel* editor : editors) EXPECT_EQ(editor->UICtrl(), shared->UICtrl());
  const auto* sample = form.findChild<TQorDescStatsHolder*>("sample");
  EXPECT_EQ(sample->Stats()->Mean(), 3);
  EXPECT_TRUE(shared->isHidden() && sample->isHidden());
  EXPECT_EQ(form.findChild<TQorMathLabel*>("label")->FocusControl(),
            form.findChild<TQorFloatEdit*>("number"));
}

TEST(Form, WorksCompiled) {
  QWidget form;
  Ui::Form ui;
  ui.setupUi(&form);
  ExpectAsWritten(form);
}

std::unique_ptr<QWidget> Loaded(const QString& name, QWidget* parent = nullptr) {
  QUiLoader loader;
  loader.addPluginPath(PLUGIN_DIRECTORY);
  QFile file(FORMS "/" + name);
  EXPECT_TRUE(file.open(QIODevice::ReadOnly));
  std::unique_ptr<QWidget> form(loader.load(&file, parent));
  EXPECT_TRUE(form) << loader.errorString().toStdString();
  return form;
}

TEST(Form, WorksLoadedAtRunTime) {
  const auto form = Loaded("form.ui");
  ASSERT_TRUE(form);
  ExpectAsWritten(*form);
}

// Walks through tab_order.ui by the tab key and back. The cells count as their editor.
void ExpectTabOrder(QWidget& form) {
  form.show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
  const auto walk = [&form](const char* from, const char* to, Qt::Key key) {
    form.findChild<QWidget*>(from)->setFocus();
    QStringList names;
    for (int steps = 0; steps < 20 && (names.isEmpty() || names.last() != to); ++steps) {
      QTest::keyClick(form.windowHandle(), key);
      const QWidget* const focus = QApplication::focusWidget();
      const auto* const editor = qobject_cast<CellPanel*>(focus->parentWidget());
      const QString name = (editor != nullptr ? editor : focus)->objectName();
      if (names.isEmpty() || names.last() != name) names.append(name);
    }
    return names.join(' ').toStdString();
  };
  EXPECT_EQ(walk("first", "last", Qt::Key_Tab), "matrix vector last");
  EXPECT_EQ(walk("last", "first", Qt::Key_Backtab), "vector matrix first");
  QTest::keyClick(form.windowHandle(), Qt::Key_V, Qt::AltModifier);
  const auto* const vector = form.findChild<CellPanel*>("vector");
  EXPECT_TRUE(vector->hasFocus());
  EXPECT_TRUE(vector->focusPolicy() & Qt::TabFocus) << "what Qt Designer asks for";
}

TEST(Form, HasTheTabOrderOfItsDesign) {
  QWidget form;
  Ui::TabOrder().setupUi(&form);
  ExpectTabOrder(form);
  const auto loaded = Loaded("tab_order.ui");
  ASSERT_TRUE(loaded);
  ExpectTabOrder(*loaded);
}

// Each editor of by_name.ui is called after its page and the holder that it names.
void ExpectLinked(const QWidget& form) {
  const auto editors = form.findChildren<CellPanel*>();
  EXPECT_EQ(editors.size(), 11);
  for (const CellPanel* editor : editors) {
    const QString name = editor->objectName().section('_', 1);
    EXPECT_EQ(editor->UICtrl(), form.findChild<TQorUICtrlHolder*>(name)->UICtrl())
        << editor->objectName().toStdString();
    EXPECT_EQ(editor->UICtrlName(), name);
  }
}

TEST(SharedSettings, AreThoseOfTheSameCopyOfAForm) {
  QWidget window;
  auto* const layout = new QVBoxLayout(&window);
  QWidget* const forms[] = {new QWidget(&window), Loaded("by_name.ui", &window).release(),
                            new QWidget(&window), Loaded("by_name.ui").release()};
  for (QWidget* form : forms) {
    if (form->findChild<CellPanel*>() == nullptr) Ui::ByName().setupUi(form);
    layout->addWidget(form);
  }
  // Pages other than the front one have never been shown.
  QApplication::processEvents();
  for (const QWidget* form : forms) ExpectLinked(*form);
  forms[0]->findChild<TQorUICtrlHolder*>("after")->setDecimalPlaces(1);
  const auto* const editor = forms[0]->findChild<CellPanel*>("page2_after");
  EXPECT_EQ(editor->findChild<TQorFloatEdit*>()->DecimalPlaces(), 1);
}

TEST(SharedSettings, AreFoundWhenTheEditorIsShown) {
  auto* const page = new QWidget;
  auto* const editor = new TQorVectorEdit(page);
  editor->setUICtrl(QStringLiteral("late"));
  QApplication::processEvents();
  EXPECT_EQ(editor->UICtrl(), nullptr);
  QWidget window;
  TQorUICtrlHolder holder(&window);
  holder.setObjectName("late");
  page->setParent(&window);
  window.show();
  EXPECT_EQ(editor->UICtrl(), holder.UICtrl());
  editor->resetUICtrl();
  QApplication::processEvents();
  window.hide();
  window.show();
  EXPECT_EQ(editor->UICtrl(), nullptr) << "a link that was reset is not looked up again";
}

}  // namespace
}  // namespace qorvex
