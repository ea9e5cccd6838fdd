#include <QMetaProperty>
#include <QStringList>
#include <utility>
#include <vector>

#include "changed_value.h"
#include "qorvex/base_controls/fract_edit.h"
#include "qorvex/components/desc_stats_holder.h"
#include "qorvex/components/uictrl_holder.h"
#include "qorvex/controls/QorvexMatrixEdit.h"
#include "qorvex/controls/QorvexMatrixFractEdit.h"
#include "qorvex/controls/QorvexVectorEdit.h"
#include "support/test.h"

namespace qorvex {
namespace {

// The published properties of a class in their order, with their defaults.
using Table = std::vector<std::pair<const char*, QVariant>>;

Table operator+(Table first, const Table& second) {
  first.insert(first.end(), second.begin(), second.end());
  return first;
}

const QString kNullStr = QString::fromUtf8(QorNullStr.data(), qsizetype{QorNullStr.size()});

const Table kColors{{"ColorSetText", QColor()},
                    {"ColorSetBackground", QColor()},
                    {"ColorSetNegativeText", QColor()},
                    {"ColorSetFocusBackground", QColor()},
                    {"ColorSetReadOnlyBackground", QColor()},
                    {"ColorSetInvalidText", QColor()},
                    {"ColorSetInvalidBackground", QColor()}};
const Table kFormat{{"TrimTrailingZeroes", false}, {"FullAccuracy", false}};
const Table kAlignment{{"Alignment", int{Qt::AlignRight | Qt::AlignVCenter}}};
const Table kSelection{{"AutoSelectClick", false}, {"AutoSelect", true}};
const Table kNulls{{"AllowKbdNull", true}, {"BlankWhenZero", false}, {"BlankWhenNull", false}};
const Table kCell = kAlignment + kSelection + kNulls;
const Table kState{{"Null", false}, {"NullStr", kNullStr}, {"ReadOnly", false}};

const Table kVectorEdit =
    Table{{"UICtrl", ""}, {"UIUsage", 15}} + kColors + kFormat + kCell +
    Table{{"CellHeight", 21},  {"CellWidth", 81}, {"DecimalPlaces", 4},  {"DisplayTopRow", 0U},
          {"NoOfEdits", 4},    {"Null", false},   {"NullStr", kNullStr}, {"NoOfRows", 0U},
          {"ReadOnly", false}, {"TabStop", true}, {"VirtualMode", false}};
const Table kLabelledVectorEdit = kVectorEdit + Table{{"LabelAlignment", int{Qt::AlignCenter}},
                                                      {"LabelNumOffSet", 1},
                                                      {"LabelType", 1},
                                                      {"LabelsEditable", false},
                                                      {"LabelWidth", 81}};
const Table kMatrixEdit =
    Table{{"UICtrl", ""}, {"UIUsage", 15}} + kColors + kFormat +
    Table{{"AutoSelectClick", false}, {"BlankWhenZero", false},
          {"BlankWhenNull", false},   {"Null", false},
          {"ReadOnly", false},        {"VirtualMode", false},
          {"AutoSelect", true},       {"AllowKbdNull", true},
          {"TabStop", true}} +
    kAlignment +
    Table{{"CellHeight", 21},    {"CellWidth", 81},    {"DecimalPlaces", 4}, {"DisplayLeftCol", 0U},
          {"DisplayTopRow", 0U}, {"NoOfColEdits", 3},  {"NoOfRowEdits", 4},  {"NoOfCols", 0U},
          {"NoOfRows", 0U},      {"NullStr", kNullStr}};
const Table kMatrixFractEdit = kMatrixEdit + Table{{"FractionDisplay", 0}, {"DecimalsFract", 9}};
const Table kFloatEdit = kFormat + kCell + Table{{"DecimalPlaces", 4}} + kState + kColors;
const Table kFractEdit =
    kCell + Table{{"DecimalsFract", 9}, {"FractionDisplay", 0}} + kState + kColors;
const Table kUICtrlHolder = kFormat + kAlignment + Table{{"DecimalPlaces", 4}} + kNulls +
                            Table{{"NullStr", kNullStr}} + kSelection + kColors;

// Resets run in the other order, so that no property depends on one that has been reset.
template <class Widget>
void ExpectPublished(const Table& table) {
  Widget widget;
  const QMetaObject& meta = Widget::staticMetaObject;
  SCOPED_TRACE(meta.className());
  int index = meta.propertyCount() - static_cast<int>(table.size());
  ASSERT_FALSE(QByteArray(meta.property(index - 1).enclosingMetaObject()->className())
                   .startsWith("qorvex::"));
  std::vector<QMetaProperty> properties;
  for (const auto& [name, initial] : table) {
    SCOPED_TRACE(name);
    const QMetaProperty property = properties.emplace_back(meta.property(index++));
    EXPECT_STREQ(property.name(), name);
    EXPECT_TRUE(property.hasStdCppSet());
    EXPECT_TRUE(property.isStored());
    EXPECT_EQ(PlainValue(property, property.read(&widget)), initial);
  }
  for (auto i = properties.size(); i-- > 0;) {
    SCOPED_TRACE(properties[i].name());
    EXPECT_TRUE(properties[i].write(&widget, ChangedValue(properties[i], table[i].second)));
    EXPECT_NE(PlainValue(properties[i], properties[i].read(&widget)), table[i].second);
  }
  for (std::size_t i = 0; i < properties.size(); ++i) {
    SCOPED_TRACE(properties[i].name());
    EXPECT_TRUE(properties[i].reset(&widget));
    EXPECT_EQ(PlainValue(properties[i], properties[i].read(&widget)), table[i].second);
  }
}

TEST(PublishedProperties, HaveTheirOrderAndDefaults) {
  ExpectPublished<TQorVectorEdit>(kVectorEdit);
  ExpectPublished<TQorLabelledVectorEdit>(kLabelledVectorEdit);
  ExpectPublished<TQorMatrixEdit>(kMatrixEdit);
  ExpectPublished<TQorMatrixFractEdit>(kMatrixFractEdit);
  ExpectPublished<TQorFloatEdit>(kFloatEdit);
  ExpectPublished<TQorFractEdit>(kFractEdit);
  ExpectPublished<TQorUICtrlHolder>(kUICtrlHolder);
}

TEST(PublishedProperties, OfStatisticsAreThoseOfTheComponent) {
  TQorDescStatsHolder holder;
  const QMetaObject* component = holder.Stats()->metaObject();
  const QMetaObject* shown = holder.metaObject();
  ASSERT_EQ(shown->propertyCount() - shown->propertyOffset(),
            component->propertyCount() - component->propertyOffset());
  holder.setItems({"18", "14", "27", "17", "24", "18", "23", "19"});
  for (int i = component->propertyOffset(); i < component->propertyCount(); ++i) {
    const QMetaProperty expected = component->property(i);
    const QMetaProperty property =
        shown->property(i - component->propertyOffset() + shown->propertyOffset());
    SCOPED_TRACE(expected.name());
    EXPECT_STREQ(property.name(), expected.name());
    EXPECT_EQ(property.isStored(), expected.isStored());
    EXPECT_EQ(property.hasStdCppSet(), expected.hasStdCppSet());
    const QVariant value = property.read(&holder);
    EXPECT_EQ(value, expected.read(holder.Stats()));
    if (property.isStored()) continue;
    EXPECT_TRUE(property.write(&holder, ChangedValue(property, value)));
    EXPECT_TRUE(property.reset(&holder));
    EXPECT_EQ(property.read(&holder), value);
  }
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
