#include "support/properties.h"

#include "qorvex/base_controls/fract_edit.h"
#include "qorvex/components/desc_stats_holder.h"
#include "qorvex/components/uictrl_holder.h"
#include "qorvex/controls/QorvexMatrixEdit.h"
#include "qorvex/controls/QorvexMatrixFractEdit.h"
#include "qorvex/controls/QorvexVectorEdit.h"
#include "support/test.h"

namespace qorvex {
namespace {

const std::string kColors =
    " ColorSetText= ColorSetBackground= ColorSetNegativeText= ColorSetFocusBackground="
    " ColorSetReadOnlyBackground= ColorSetInvalidText= ColorSetInvalidBackground=";
const std::string kFormat = "TrimTrailingZeroes=false FullAccuracy=false";
const std::string kAlignment = " Alignment=" + std::to_string(Qt::AlignRight | Qt::AlignVCenter);
const std::string kSelection = " AutoSelectClick=false AutoSelect=true";
const std::string kNulls = " AllowKbdNull=true BlankWhenZero=false BlankWhenNull=false";
const std::string kCell = kAlignment + kSelection + kNulls;
const std::string kNullStr = " NullStr=" + std::string(QorNullStr);
const std::string kState = " Null=false" + kNullStr + " ReadOnly=false";
const std::string kNumbers =
    " NumberFormat=0 SignificantDigits=6 Grouping=false ReadExpressions=false";
// What all editors publish after their own properties.
const std::string kPanel = kNumbers + " AutoEdits=false CanGrow=false UndoLimit=67108864";

const std::string kVectorEdit =
    "UICtrl= UIUsage=15" + kColors + " " + kFormat + kCell +
    " CellHeight=21 CellWidth=81 DecimalPlaces=4 DisplayTopRow=0"
    " NoOfEdits=4 Null=false" +
    kNullStr + " NoOfRows=0 ReadOnly=false TabStop=true VirtualMode=false" + kPanel;
const std::string kMatrixEdit =
    "UICtrl= UIUsage=15" + kColors + " " + kFormat +
    " AutoSelectClick=false BlankWhenZero=false BlankWhenNull=false Null=false ReadOnly=false"
    " VirtualMode=false AutoSelect=true AllowKbdNull=true TabStop=true" +
    kAlignment +
    " CellHeight=21 CellWidth=81 DecimalPlaces=4 DisplayLeftCol=0 DisplayTopRow=0 NoOfColEdits=3"
    " NoOfRowEdits=4 NoOfCols=0 NoOfRows=0" +
    kNullStr + " RowHeadings=false ColHeadings=false" + kPanel;

TEST(PublishedProperties, HaveTheirOrderAndDefaults) {
  EXPECT_EQ(PropertyTable(TQorVectorEdit()), kVectorEdit);
  EXPECT_EQ(PropertyTable(TQorLabelledVectorEdit()),
            kVectorEdit + " LabelAlignment=" + std::to_string(Qt::AlignCenter) +
                " LabelNumOffSet=1 LabelType=1 LabelsEditable=false LabelWidth=81");
  EXPECT_EQ(PropertyTable(TQorMatrixEdit()), kMatrixEdit);
  EXPECT_EQ(PropertyTable(TQorMatrixFractEdit()),
            kMatrixEdit + " FractionDisplay=0 DecimalsFract=9");
  EXPECT_EQ(PropertyTable(TQorFloatEdit()),
            "Value=0 " + kFormat + kCell + " DecimalPlaces=4" + kState + kColors + kNumbers);
  EXPECT_EQ(PropertyTable(TQorFractEdit()),
            "Value=0" + kCell + " DecimalsFract=9 FractionDisplay=0" + kState + kColors);
  EXPECT_EQ(PropertyTable(TQorUICtrlHolder()), kFormat + kAlignment + " DecimalPlaces=4" + kNulls +
                                                   kNullStr + kSelection + kColors + kNumbers);
}

TEST(PublishedProperties, OfAStatisticsHolderAreThoseOfTheComponent) {
  TQorDescStatsHolder holder;
  holder.setItems({"18", "14", "27", "17", "24", "18", "23", "19"});
  EXPECT_EQ(PropertyTable(holder), PropertyTable(*holder.Stats()));
}

TEST(Holders, FollowTheirComponentsAndAreHidden) {
  QWidget window;
  auto* holder = new TQorUICtrlHolder(&window);
  auto* stats = new TQorDescStatsHolder(&window);
  window.show();
  EXPECT_FALSE(holder->isVisible());
  EXPECT_FALSE(stats->isVisible());
  int updates = 0;
  QObject::connect(stats, &TQorDescStatsHolder::StatsUpdated, [&updates] { ++updates; });
  stats->Stats()->setValues({1, 3});
  EXPECT_EQ(updates, 1);
  static QString logged;
  const auto handler = qInstallMessageHandler(
      [](QtMsgType, const QMessageLogContext&, const QString& message) { logged += message; });
  stats->setItems({"1"});
  stats->setObjectName("sample");
  stats->setItems({"one"});
  qInstallMessageHandler(handler);
  EXPECT_EQ(logged.toStdString(), "sample: \"one\" is not a number");

  holder->setObjectName("shared");
  EXPECT_EQ(window.findChild<TQorUICtrl*>("shared"), holder->UICtrl());
  CellSettings settings;
  settings.number.decimal_places = 2;
  settings.colors.text = Qt::blue;
  holder->UICtrl()->setSettings(settings);
  EXPECT_EQ(holder->Settings(), settings);
  holder->setNullStr("none");
  settings.nulls.null_str = "none";
  holder->setColorSetText(Qt::red);
  settings.colors.text = Qt::red;
  EXPECT_EQ(holder->UICtrl()->Settings(), settings);
}

}  // namespace
}  // namespace qorvex
