#include <QApplication>
#include <QFile>
#include <QUiLoader>
#include <QVBoxLayout>
#include <QWidget>
#include <memory>

#include "qorvex/base_controls/fract_edit.h"
#include "qorvex/components/desc_stats_holder.h"
#include "qorvex/components/uictrl_holder.h"
#include "qorvex/controls/QorvexMathLabel.h"
#include "qorvex/controls/QorvexMatrixEdit.h"
#include "qorvex/controls/QorvexMatrixFractEdit.h"
#include "qorvex/controls/QorvexVectorEdit.h"
#include "support/test.h"
#include "ui_by_name.h"
#include "ui_form.h"

namespace qorvex {
namespace {

// What the form sets in every widget that has the setting.
CellSettings SettingsOfForm() {
  CellSettings settings;
  settings.number = {true, true, 7, Qt::AlignHCenter | Qt::AlignTop};
  settings.nulls = {false, true, true, "none"};
  settings.selection = {false, true};
  settings.colors = {{10, 20, 30}, {20, 20, 30}, {30, 20, 30}, {40, 20, 30},
                     {50, 20, 30}, {60, 20, 30}, {70, 20, 30}};
  settings.read_only = true;
  return settings;
}

// What the form sets in every editor of a vector or a matrix.
template <class Editor>
void ExpectEditor(const Editor& edit, const TQorUICtrl* shared) {
  EXPECT_EQ(edit.UICtrl(), shared);
  EXPECT_EQ(edit.UIUsage(), TQorUICtrl::uuColors | TQorUICtrl::uuNullHandling);
  EXPECT_EQ(edit.Settings(), SettingsOfForm());
  EXPECT_EQ(edit.CellHeight(), 30);
  EXPECT_EQ(edit.CellWidth(), 90);
  EXPECT_EQ(edit.DisplayTopRow(), 5U);
  EXPECT_TRUE(edit.Null());
  EXPECT_EQ(edit.NoOfRows(), 12U);
  EXPECT_FALSE(edit.TabStop());
  EXPECT_TRUE(edit.VirtualMode());
}

void ExpectVectorEdit(const TQorVectorEdit& edit, const TQorUICtrl* shared) {
  ExpectEditor(edit, shared);
  EXPECT_EQ(edit.NoOfEdits(), 6);
}

void ExpectMatrixEdit(const TQorCustomMatrixEdit& edit, const TQorUICtrl* shared) {
  ExpectEditor(edit, shared);
  EXPECT_EQ(edit.DisplayLeftCol(), 3U);
  EXPECT_EQ(edit.NoOfColEdits(), 2);
  EXPECT_EQ(edit.NoOfRowEdits(), 6);
  EXPECT_EQ(edit.NoOfCols(), 8U);
}

void ExpectAsWritten(QWidget& form) {
  form.show();
  QApplication::processEvents();

  const auto* shared = form.findChild<TQorUICtrlHolder*>("shared");
  ASSERT_TRUE(shared);
  EXPECT_TRUE(shared->isHidden());
  CellSettings settings = SettingsOfForm();
  settings.read_only = false;
  settings.colors = {{10, 200, 30}, {20, 200, 30}, {30, 200, 30}, {40, 200, 30},
                     {50, 200, 30}, {60, 200, 30}, {70, 200, 30}};
  EXPECT_EQ(shared->Settings(), settings);
  EXPECT_EQ(shared->UICtrl()->Settings(), settings);

  const auto* vector = form.findChild<TQorVectorEdit*>("vector");
  ASSERT_TRUE(vector);
  ExpectVectorEdit(*vector, shared->UICtrl());

  const auto* labelled = form.findChild<TQorLabelledVectorEdit*>("labelled");
  ASSERT_TRUE(labelled);
  ExpectVectorEdit(*labelled, shared->UICtrl());
  EXPECT_EQ(labelled->LabelAlignment(), Qt::AlignRight | Qt::AlignBottom);
  EXPECT_EQ(labelled->LabelNumOffSet(), -3);
  EXPECT_EQ(labelled->LabelType(), TQorLabelledVectorEdit::ltCustom);
  EXPECT_TRUE(labelled->LabelsEditable());
  EXPECT_EQ(labelled->LabelWidth(), 100);

  const auto* matrix = form.findChild<TQorMatrixEdit*>("matrix");
  ASSERT_TRUE(matrix);
  ExpectMatrixEdit(*matrix, shared->UICtrl());

  const auto* fractions = form.findChild<TQorMatrixFractEdit*>("fractions");
  ASSERT_TRUE(fractions);
  ExpectMatrixEdit(*fractions, shared->UICtrl());
  EXPECT_EQ(fractions->FractionDisplay(), TQorFractEdit::fdImproper);
  EXPECT_EQ(fractions->DecimalsFract(), 3);

  const auto* number = form.findChild<TQorFloatEdit*>("number");
  ASSERT_TRUE(number);
  EXPECT_EQ(number->Settings(), SettingsOfForm());
  EXPECT_TRUE(number->Null());

  const auto* fraction = form.findChild<TQorFractEdit*>("fraction");
  ASSERT_TRUE(fraction);
  settings = SettingsOfForm();
  settings.number = NumberFormat();
  settings.number.alignment = SettingsOfForm().number.alignment;
  EXPECT_EQ(fraction->Settings(), settings);
  EXPECT_TRUE(fraction->Null());
  EXPECT_EQ(fraction->DecimalsFract(), 3);
  EXPECT_EQ(fraction->FractionDisplay(), TQorFractEdit::fdImproper);

  const auto* sample = form.findChild<TQorDescStatsHolder*>("sample");
  ASSERT_TRUE(sample);
  EXPECT_TRUE(sample->isHidden());
  EXPECT_EQ(sample->DecimalPlaces(), 3);
  EXPECT_EQ(sample->Items(), (QStringList{"1", "2", "6"}));
  EXPECT_TRUE(sample->Population());
  EXPECT_EQ(sample->Stats()->Mean(), 3);

  const auto* label = form.findChild<TQorMathLabel*>("label");
  ASSERT_TRUE(label);
  EXPECT_EQ(label->Alignment(), TQorMathLabel::laCentered);
  EXPECT_FALSE(label->AutoSize());
  EXPECT_EQ(label->Caption(), "&Mean");
  EXPECT_EQ(label->EmbossedStyle(), TQorMathLabel::esLowered);
  EXPECT_EQ(label->FocusControl(), number);
  EXPECT_EQ(label->Layout(), TQorMathLabel::llBottom);
  EXPECT_FALSE(label->ShowAccelChar());
  EXPECT_FALSE(label->Transparent());
  EXPECT_TRUE(label->WordWrap());
  EXPECT_EQ(label->SymbolFamily(), "DejaVu Serif");
}

TEST(Form, BecomesAProgram) {
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

TEST(Form, LoadsWhileTheProgramRuns) {
  const auto form = Loaded("form.ui");
  ASSERT_TRUE(form);
  ExpectAsWritten(*form);
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

TEST(SharedSettings, AreFoundByNameFromEveryPageOfAProgram) {
  QWidget form;
  Ui::ByName ui;
  ui.setupUi(&form);
  // The pages that are not in front have never been shown.
  QApplication::processEvents();
  ExpectLinked(form);
  ui.after->setDecimalPlaces(1);
  EXPECT_EQ(ui.page2_after->findChild<TQorFloatEdit*>()->DecimalPlaces(), 1);
}

TEST(SharedSettings, AreFoundByNameFromEveryPageOfALoadedForm) {
  const auto form = Loaded("by_name.ui");
  ASSERT_TRUE(form);
  QApplication::processEvents();
  ExpectLinked(*form);
}

TEST(SharedSettings, AreThoseOfTheOwnCopyOfAForm) {
  QWidget window;
  auto* const layout = new QVBoxLayout(&window);
  QWidget* const forms[] = {new QWidget(&window), Loaded("by_name.ui", &window).release(),
                            new QWidget(&window), Loaded("by_name.ui").release()};
  for (QWidget* form : forms) {
    if (form->findChild<CellPanel*>() == nullptr) Ui::ByName().setupUi(form);
    layout->addWidget(form);
  }
  QApplication::processEvents();
  for (const QWidget* form : forms) ExpectLinked(*form);
}

TEST(SharedSettings, AreFoundWhenAnEditorIsShownAmongThem) {
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
  EXPECT_EQ(editor->UICtrl(), nullptr) << "nothing is looked up any more";
}

}  // namespace
}  // namespace qorvex
