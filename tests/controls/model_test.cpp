// Vectors and matrices as models of Qt, and editors over any model.

#include <QAbstractItemModelTester>
#include <QDataWidgetMapper>
#include <QHeaderView>
#include <QSignalSpy>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>
#include <QStringListModel>
#include <QTableView>
#include <cmath>
#include <limits>

#include "controls/editor_fixture.h"
#include "qorvex/controls/models/matrix_model.h"
#include "qorvex/controls/models/vector_model.h"

namespace qorvex {

namespace {

constexpr Extended kNull = std::numeric_limits<Extended>::quiet_NaN();

/// The column of a model, as texts.
std::string Column(const QAbstractItemModel& model, int role = Qt::EditRole, int col = 0) {
  QStringList texts;
  for (int row = 0; row < model.rowCount(); ++row) {
    texts.append(model.index(row, col).data(role).toString());
  }
  return texts.join('|').toStdString();
}

bool HasSameBits(Extended a, Extended b) {
  return a == b && std::signbit(a) == std::signbit(b);
}

/// Checks every change of a model.
QAbstractItemModelTester* Watch(QAbstractItemModel& model) {
  return new QAbstractItemModelTester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal,
                                      &model);
}

}  // namespace

TEST(Models, HoldEveryBitOfAVector) {
  TQorVectorModel model;
  Watch(model);
  model.setLocale(QLocale(QLocale::German));
  const Extended tiny = std::numeric_limits<Extended>::denorm_min();
  model.setVector({1 / 3.0L, -0.0L, 1e4000L, tiny, 9007199254740993.0L, kNull, INFINITY});
  EXPECT_EQ(Column(model), "0.33333333333333333334|-0|1e+4000|4e-4951|9007199254740993||inf");
  // A text that a view has read is written back to the same bits.
  const TQorFloatVector before = model.Vector();
  for (quint32 row = 0; row < 7; ++row) {
    const QModelIndex index = model.index(static_cast<int>(row), 0);
    EXPECT_TRUE(model.setData(index, index.data(Qt::EditRole).toString()));
    EXPECT_TRUE(std::isnan(before[row]) ? std::isnan(model.Element(row))
                                        : HasSameBits(model.Element(row), before[row]));
  }
  // Doubles where they reach, so that views write them and proxies sort them.
  EXPECT_EQ(Column(model, Qt::DisplayRole),
            "0.3333333333333333|0|1e+4000|4e-4951|9007199254740992||inf");
  NumberSettings format;
  format.decimal_places = 2;
  format.grouping = true;
  model.setDisplayFormat(format);
  EXPECT_EQ(model.index(0, 0).data(), "0,33");
  EXPECT_EQ(model.index(4, 0).data(), "9.007.199.254.740.993,00");
}

TEST(Models, TakeTextsAndNumbers) {
  TQorVectorModel model;
  Watch(model);
  model.setLocale(QLocale(QLocale::German));
  model.setVector({7});
  const QModelIndex index = model.index(0, 0);
  const struct {
    QVariant value;
    const char* result;
  } cases[] = {{" 1.5 ", "1.5"},
               {"1,5", "1.5"},
               {2.5F, "2.5"},
               {-3, "-3"},
               {quint64(1) << 63, "9223372036854775808"},
               {"", ""},
               {QVariant(), ""},
               {"0x1", nullptr},
               {"1.2.3", nullptr},
               {QPoint(), nullptr},
               {true, nullptr}};
  for (const auto& [value, result] : cases) {
    model.setElement(0, 7);
    EXPECT_EQ(model.setData(index, value), result != nullptr);
    EXPECT_EQ(Column(model), result ? result : "7");
  }
  EXPECT_FALSE(model.setData(index, 1, Qt::ToolTipRole));
  EXPECT_FALSE(model.setData({}, 1));
  EXPECT_MATH_ERROR(model.setElement(1, 1), rsInvalidRow);
  EXPECT_MATH_ERROR((void)TQorVectorModel().Element(0), rsVectorIsEmpty);
}

TEST(Models, InsertAndRemove) {
  TQorMatrixModel model;
  Watch(model);
  EXPECT_MATH_ERROR((void)model.Element(0, 0), rsMatrixIsEmpty);
  EXPECT_TRUE(model.insertColumns(0, 2));
  EXPECT_TRUE(model.insertRows(0, 1)) << "columns without rows";
  model.setMatrix({{1, 2}, {3, 4}});
  EXPECT_TRUE(model.insertRows(1, 2));
  EXPECT_TRUE(model.insertColumns(2, 1));
  EXPECT_EQ(Column(model), "1|||3");
  EXPECT_EQ(Column(model, Qt::EditRole, 2), "|||");
  EXPECT_TRUE(model.removeRows(0, 2));
  EXPECT_TRUE(model.removeColumns(1, 1));
  EXPECT_EQ(Column(model), "|3");
  for (const bool done : {model.insertRows(3, 1), model.insertRows(-1, 1), model.insertRows(0, 0),
                          model.insertColumns(0, INT_MAX), model.removeRows(1, 2),
                          model.removeColumns(2, 1), model.insertRows(0, 1, model.index(0, 0))}) {
    EXPECT_FALSE(done);
  }
  EXPECT_MATH_ERROR((void)model.Element(0, 2), rsInvalidCol);
  EXPECT_MATH_ERROR(model.setMatrix({{1, 2}, {3}}), rsMatrixRect);
  TQorVectorModel vector;
  Watch(vector);
  vector.setVector({1, 2});
  EXPECT_TRUE(vector.insertRows(2, 1) && vector.insertRows(0, 1) && vector.removeRows(1, 1));
  EXPECT_EQ(Column(vector), "|2|");
}

TEST(Models, SortToTheLastBit) {
  TQorVectorModel model;
  const Extended next = std::nextafter(1.0L, 2.0L);
  model.setVector({next, 1, kNull, -1e4000L, 10, -2, 0, INFINITY});
  QSortFilterProxyModel proxy;
  proxy.setSourceModel(&model);
  proxy.setSortRole(TQorCustomModel::SortRole);
  proxy.sort(0);
  EXPECT_EQ(Column(proxy), "-1e+4000|-2|0|1|" + Float2Str(next) + "|10|inf|");
  proxy.setFilterFixedString("1");
  EXPECT_EQ(proxy.rowCount(), 4);
}

/// Editors of both kinds over one column of a model.
template <class Editor>
struct ModelEdit : EditorFixture<Editor> {
  using EditorFixture<Editor>::editor;

  void Open(QAbstractItemModel* model, int edits = 4) {
    this->SetCells(edits);
    editor->setModel(model);
    this->Show();
  }
};
using BothEditors = testing::Types<TQorVectorEdit, TQorMatrixEdit>;
TYPED_TEST_SUITE(ModelEdit, BothEditors);

TYPED_TEST(ModelEdit, ReadsAndWritesItems) {
  this->editor->setLocale(QLocale(QLocale::German));
  QStandardItemModel model(8, 1);
  const QVariant items[] = {1.5, 2, "2.25", "3,5", "no number", 7, 1.5F, quint64(5)};
  for (int row = 0; row < 8; ++row) model.setData(model.index(row, 0), items[row], Qt::EditRole);
  this->Open(&model, 9);
  EXPECT_EQ(this->Texts(), "1,5000|2,0000|2,2500|3,5000||7,0000|1,5000|5,0000|");
  const struct {
    const char* typed;
    QVariant held;
  } cases[] = {{"2,5", 2.5}, {"-3", -3},     {"0,1", "0.1"},  {"4", "4"},
               {"6", "6"},   {"0,5", "0.5"}, {"0,75", 0.75F}, {"-1", "-1"}};
  this->FocusEdit(0);
  for (const auto& [typed, held] : cases) this->Enter(typed);
  for (int row = 0; row < 8; ++row) {
    EXPECT_EQ(model.index(row, 0).data(Qt::EditRole), cases[row].held) << row;
    EXPECT_EQ(model.index(row, 0).data(Qt::EditRole).metaType(), cases[row].held.metaType());
  }
  this->FocusEdit(0);
  this->Press(Qt::Key_Delete);
  this->Press(Qt::Key_Return);
  EXPECT_FALSE(model.index(0, 0).data(Qt::EditRole).isValid());
  this->Take();
  this->editor->Undo();
  EXPECT_EQ(model.index(0, 0).data(Qt::EditRole), "2.5");
  EXPECT_NE(this->Take().find("change 0"), std::string::npos);
}

TYPED_TEST(ModelEdit, HasItsOwnElementsBeforeAndAfter) {
  this->SetRows(2);
  this->Set(1, 8);
  TQorVectorModel model;
  model.setVector({1, 2, 3});
  this->Open(&model);
  EXPECT_TRUE(this->editor->VirtualMode());
  EXPECT_EQ(this->editor->NoOfRows(), 3U);
  this->Set(1, 5);
  EXPECT_EQ(Column(model), "1|5|3");
  this->editor->Sqr();
  EXPECT_EQ(Column(model), "1|5|3") << "commands only redisplay";
  // The size is the model's.
  this->editor->setNoOfRows(5);
  EXPECT_EQ(model.rowCount(), 5);
  this->editor->setNoOfRows(1);
  EXPECT_EQ(Column(model), "1");
  EXPECT_EQ(this->editor->NoOfRows(), 1U);
  this->editor->setModel(nullptr);
  EXPECT_FALSE(this->editor->VirtualMode());
  EXPECT_EQ(this->Texts(), "0.0000|8.0000||");
  {
    QStringListModel texts({"4", "5"});
    this->editor->setModel(&texts);
    this->FocusEdit(1);
    this->Type("9");
  }
  EXPECT_EQ(this->editor->Model(), nullptr);
  EXPECT_EQ(this->Texts(), "0.0000|8.0000||") << "what was typed belonged to the model";
}

TYPED_TEST(ModelEdit, FollowsItsModel) {
  TQorVectorModel model;
  model.setVector({0, 1, 2, 3, 4, 5, 6});
  this->Open(&model);
  model.setElement(2, 9);
  EXPECT_EQ(this->Texts(), "0.0000|1.0000|9.0000|3.0000");
  model.removeRows(0, 1);
  EXPECT_EQ(this->Texts(), "1.0000|9.0000|3.0000|4.0000");
  EXPECT_EQ(this->Take(), "rows 6");
  model.setVector({7, 8});
  EXPECT_EQ(this->Texts(), "7.0000|8.0000||");

  // What is typed stays with its element: it waits while nothing moves under the cell, is stored
  // where the element has gone, and goes with it.
  this->FocusEdit(1);
  this->Type("1");
  model.insertRows(2, 1);
  model.setElement(1, 6);
  this->Type("2");
  model.insertRows(0, 1);
  QApplication::processEvents();
  EXPECT_EQ(Column(model), "|7|12|");
  EXPECT_EQ(this->Texts(), "|7.0000|12.0000|");
  this->Type("3");
  model.removeRows(1, 1);
  QApplication::processEvents();
  EXPECT_EQ(Column(model), "|12|");
  EXPECT_EQ(this->Texts(), "|12.0000||");
  EXPECT_FALSE(this->editor->CanUndo());
}

TYPED_TEST(ModelEdit, FollowsElementsThatAreSortedAndFiltered) {
  TQorVectorModel model;
  model.setVector({30, 10, 20});
  QSortFilterProxyModel proxy;
  proxy.setSourceModel(&model);
  proxy.sort(0);
  this->Open(&proxy);
  EXPECT_EQ(this->Texts(), "10.0000|20.0000|30.0000|");
  this->FocusEdit(0);
  this->Type("25");
  this->Press(Qt::Key_Return);
  EXPECT_EQ(this->Texts(), "20.0000|25.0000|30.0000|");
  EXPECT_EQ(Column(model), "30|25|20");
  EXPECT_NE(this->Take().find("change 1"), std::string::npos) << "where the element is now";
  this->editor->Undo();
  EXPECT_EQ(Column(model), "30|10|20");
  proxy.setFilterFixedString("0");
  this->FocusEdit(1);
  this->Type("21");
  this->Press(Qt::Key_Return);
  EXPECT_EQ(this->Texts(), "10.0000|30.0000||");
  EXPECT_EQ(Column(model), "30|10|21");
}

/// Items of which the first can only be read, and the second refuses numbers below 0. The rows come
/// two at a time.
class Stubborn : public QStringListModel {
 public:
  Stubborn() : QStringListModel({"0", "1", "2", "3", "4", "5", "6"}) {}

  int rowCount(const QModelIndex& parent) const override {
    return std::min(QStringListModel::rowCount(parent), fetched_);
  }
  bool canFetchMore(const QModelIndex& parent) const override {
    return rowCount(parent) < QStringListModel::rowCount(parent);
  }
  void fetchMore(const QModelIndex& parent) override {
    const int more = std::min(2, QStringListModel::rowCount(parent) - fetched_);
    beginInsertRows(parent, fetched_, fetched_ + more - 1);
    fetched_ += more;
    endInsertRows();
  }
  Qt::ItemFlags flags(const QModelIndex& index) const override {
    const Qt::ItemFlags flags = QStringListModel::flags(index);
    return index.row() == 0 ? flags & ~Qt::ItemIsEditable : flags;
  }
  bool setData(const QModelIndex& index, const QVariant& value, int role) override {
    return value.toDouble() >= 0 && QStringListModel::setData(index, value, role);
  }

 private:
  int fetched_ = 2;
};

TYPED_TEST(ModelEdit, RespectsWhatItsModelRefuses) {
  Stubborn model;
  this->Open(&model);
  QApplication::processEvents();
  EXPECT_EQ(this->editor->NoOfRows(), 6U) << "what is in sight, and whether there is more";
  this->editor->ScrollBottom();
  QApplication::processEvents();
  EXPECT_EQ(this->editor->NoOfRows(), 7U);
  this->editor->ScrollTop();
  EXPECT_TRUE(this->Cell(0)->QLineEdit::isReadOnly());
  EXPECT_FALSE(this->Cell(1)->QLineEdit::isReadOnly());
  this->FocusEdit(1);
  this->Type("-7");
  this->Take();
  this->Press(Qt::Key_Return);
  EXPECT_EQ(this->Take().substr(0, 8), "refused ");
  EXPECT_EQ(this->Cell(1)->text(), "1.0000");
  EXPECT_FALSE(this->editor->CanUndo());
  this->editor->ScrollDown(1);
  EXPECT_FALSE(this->Cell(0)->QLineEdit::isReadOnly());
}

TYPED_TEST(ModelEdit, ChangesBlocksAsAWhole) {
  Stubborn refusing;
  this->Open(&refusing);
  QApplication::processEvents();
  this->FocusEdit(1);
  this->Take();
  EXPECT_FALSE(this->editor->PasteBlock("5\n6\n-1\n"));
  EXPECT_EQ(this->Take().substr(0, 8), "refused ");
  this->editor->Select({0, 2, 0, 1});
  EXPECT_FALSE(this->editor->DeleteSelected());
  EXPECT_NE(this->Take().find("refused Row 1"), std::string::npos) << "it can only be read";
  EXPECT_EQ(this->Texts(), "0.0000|1.0000|2.0000|3.0000");
  EXPECT_FALSE(this->editor->CanUndo());

  // The rows of the block are those that were in sight before the first one was sorted away.
  TQorVectorModel model;
  model.setVector({30, 10, 20});
  QSortFilterProxyModel proxy;
  proxy.setSourceModel(&model);
  proxy.sort(0);
  this->editor->setModel(&proxy);
  this->FocusEdit(0);
  EXPECT_TRUE(this->editor->PasteBlock("25\n15\n"));
  EXPECT_EQ(Column(model), "30|25|15");
  EXPECT_EQ(this->Texts(), "15.0000|25.0000|30.0000|");
  // Values that move their rows are undone and redone where they are now.
  const auto there_and_back = [&](const char* changed, const char* before) {
    SCOPED_TRACE(changed);
    for (int i = 0; i < 2; ++i) {
      EXPECT_EQ(Column(model), changed);
      this->editor->Undo();
      EXPECT_EQ(Column(model), before);
      this->editor->Redo();
    }
    EXPECT_EQ(Column(model), changed);
  };
  there_and_back("30|25|15", "30|10|20");
  this->FocusEdit(0);
  this->Enter("40");
  there_and_back("30|25|40", "30|25|15");
  this->editor->Undo();
  EXPECT_FALSE(this->editor->CanUndo());
}

TYPED_TEST(ModelEdit, LetsHandlersSetAnotherModel) {
  this->SetRows(2);
  this->Set(1, 8);
  TQorVectorModel model;
  model.setVector({1, 2, 3});
  this->Open(&model);
  const auto leave = [this] { this->editor->setModel(nullptr); };
  // When the number of rows changes, in the midst of an insertion, and for the first time.
  const auto rows_changed = [] {
    if constexpr (TestFixture::kIsVector)
      return &TypeParam::OnRowNoChange;
    else
      return &TypeParam::OnNoRowsChange;
  }();
  this->editor->setAllowKbdNull(false);
  auto handler = this->On(rows_changed, leave);
  this->editor->InsertRows(1, 2);
  EXPECT_EQ(this->Texts(), "0.0000|8.0000||");
  this->editor->setModel(&model);
  EXPECT_EQ(this->editor->Model(), nullptr);
  EXPECT_EQ(this->Texts(), "0.0000|8.0000||");
  handler.reset();

  // When a move takes the steps away.
  const auto type = [this, &model] {
    this->editor->setModel(&model);
    this->FocusEdit(0);
    this->Enter("7");
  };
  type();
  handler = this->On(&TypeParam::OnCanUndoChange, [&](bool can) {
    if (!can) leave();
  });
  model.removeRows(2, 1);
  EXPECT_EQ(this->Texts(), "0.0000|8.0000||");
  type();
  leave();
  EXPECT_EQ(this->Texts(), "0.0000|8.0000||");
  EXPECT_FALSE(this->editor->VirtualMode());
}

TYPED_TEST(ModelEdit, AppendsToAModelThatSortsNewRowsElsewhere) {
  TQorVectorModel model;
  model.setVector({10, 20});
  QSortFilterProxyModel proxy;
  proxy.setSourceModel(&model);
  proxy.setSortRole(TQorVectorModel::SortRole);
  this->Open(&proxy);
  for (const bool nulls : {true, false}) {
    for (const Qt::SortOrder order : {Qt::AscendingOrder, Qt::DescendingOrder}) {
      SCOPED_TRACE(testing::Message() << "nulls " << nulls << ", order " << order);
      model.setVector({10, 20});
      proxy.sort(0, order);
      this->editor->setAllowKbdNull(nulls);
      this->editor->setCanGrow(true);
      this->FocusEdit(2);
      this->Enter("15");
      EXPECT_EQ(Column(model), "10|20|15");
      this->editor->InsertRows(1, 1);
      EXPECT_EQ(model.rowCount(), 4);
      for (const int kept : {0, 1, 2}) {
        const auto texts = QString::fromStdString(Column(model)).split('|');
        EXPECT_TRUE(texts.contains(QStringList{"10", "20", "15"}[kept])) << Column(model);
      }
    }
  }
}

TYPED_TEST(ModelEdit, GrowsItsModel) {
  TQorVectorModel model;
  model.setVector({1});
  this->editor->setCanGrow(true);
  this->Open(&model);
  this->editor->setCellHeight(22);
  this->editor->setDecimalPlaces(2);
  EXPECT_FALSE(this->Cell(1)->QLineEdit::isReadOnly()) << "the spare row";
  this->FocusEdit(0);
  this->Enter("2");
  this->Enter("3");
  EXPECT_EQ(Column(model), "2|3");
  EXPECT_TRUE(this->editor->PasteBlock("4\n5\n")) << "in the row after the last one";
  EXPECT_EQ(Column(model), "2|3|4|5");
  // Rows at the end move none, so everything can be undone but their number.
  for (int i = 0; i < 3; ++i) this->editor->Undo();
  EXPECT_EQ(Column(model), "1|||");
  this->editor->InsertRows(1, 2);
  this->editor->DeleteRows(3, 3);
  EXPECT_EQ(Column(model), "1||");
  EXPECT_FALSE(this->editor->CanUndo());
  // What is being typed in the spare row stays there when a row comes from elsewhere.
  this->FocusEdit(3);
  this->Type("7");
  model.insertRows(3, 1);
  EXPECT_EQ(Column(model), "1|||");
  this->Enter("8");
  EXPECT_EQ(Column(model), "1||||78");
}

TEST(Models, TakeWidthsAndFormatsAlongWithTheirColumns) {
  TQorMatrixModel model;
  model.setMatrix({{1, 2, 3}});
  TQorMatrixEdit editor;
  editor.setModel(&model);
  NumberSettings format;
  format.decimal_places = 2;
  editor.setColFormat(1, format);
  editor.setColWidth(1, 120);
  const auto follows_to = [&](quint32 col) {
    for (quint32 c = 0; c < editor.NoOfCols(); ++c) {
      EXPECT_EQ(editor.ColWidth(c), c == col ? 120 : 81) << c;
      EXPECT_EQ(editor.ColFormat(c).decimal_places, c == col ? 2 : 4) << c;
    }
    EXPECT_EQ(editor.findChildren<TQorFloatEdit*>()[static_cast<int>(col)]->text(), "2.00");
  };
  model.insertColumns(0, 1);
  follows_to(2);
  model.removeColumns(0, 2);
  follows_to(0);
  model.removeColumns(0, 1);
  EXPECT_EQ(editor.ColWidth(0), 81);
  EXPECT_EQ(editor.findChildren<TQorFloatEdit*>()[0]->text(), "3.0000");
}

TEST(Models, MayHoldTextsBesideNumbers) {
  QLocale::setDefault(QLocale::c());
  QStandardItemModel model(3, 2);
  for (int row = 0; row < 3; ++row) model.setData(model.index(row, 0), row + 0.5);
  model.setData(model.index(0, 1), "red");
  TQorMatrixEdit editor;
  editor.setModel(&model);
  QStringList nulls;
  QObject::connect(&editor, &TQorMatrixEdit::OnNull,
                   [&](quint32 row, quint32 col) { nulls += QString("%1,%2").arg(row).arg(col); });
  // Three in a row.
  const auto cells = editor.findChildren<TQorFloatEdit*>();
  EXPECT_EQ(cells[1]->text(), "") << "unless it is allowed";
  editor.setTextItems(true);
  EXPECT_EQ(cells[1]->text(), "red");
  EXPECT_EQ(cells[1]->alignment() & Qt::AlignHorizontal_Mask, Qt::AlignLeft);
  EXPECT_TRUE(std::isnan(editor.Element(0, 1)));
  editor.show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&editor));
  cells[4]->setFocus();
  QTest::keyClicks(cells[4], "007\r");
  // An item that holds a number keeps its type, unless the text is not a number.
  cells[3]->setFocus();
  QTest::keyClicks(cells[3], "2.50\r");
  EXPECT_EQ(model.index(1, 0).data(Qt::EditRole), 2.5);
  cells[3]->setFocus();
  QTest::keyClicks(cells[3], "blue\r");
  EXPECT_EQ(Column(model), "0.5|blue|2.5");
  EXPECT_EQ(Column(model, Qt::EditRole, 1), "red|007|");
  editor.Select({.row = 0, .rows = 2, .col = 0, .cols = 2});
  EXPECT_TRUE(editor.Copy());
  EXPECT_EQ(QApplication::clipboard()->text(), "0.5\tred\nblue\t007\n");
  editor.Select({.row = 1, .rows = 1, .col = 0, .cols = 2});
  EXPECT_TRUE(editor.Paste());
  EXPECT_EQ(Column(model, Qt::EditRole, 1), "red|red|007");
  EXPECT_TRUE(nulls.isEmpty()) << nulls.join(' ').toStdString();
  for (int step = 0; step < 4; ++step) editor.Undo();
  EXPECT_EQ(Column(model), "0.5|1.5|2.5");
  EXPECT_EQ(Column(model, Qt::EditRole, 1), "red||");
  EXPECT_EQ(nulls, QStringList({"2,1", "1,1"}));
}

TEST(Models, AreSharedByViewsAndMappers) {
  QLocale::setDefault(QLocale::c());
  TQorMatrixModel model;
  model.setMatrix({{1, 2}, {3, 4}, {5, 6}});
  Watch(model);
  QWidget form;
  auto* const layout = new QVBoxLayout(&form);
  auto* const table = new QTableView;
  auto* const column = new TQorLabelledVectorEdit;
  auto* const matrix = new TQorMatrixFractEdit;
  auto* const field = new TQorFloatEdit;
  for (QWidget* widget : {static_cast<QWidget*>(table), static_cast<QWidget*>(column),
                          static_cast<QWidget*>(matrix), static_cast<QWidget*>(field)}) {
    layout->addWidget(widget);
  }
  table->setModel(&model);
  column->setModelColumn(1);
  column->setLabelType(TQorLabelledVectorEdit::ltSupplied);
  column->setModel(&model);
  matrix->setModel(&model);
  EXPECT_EQ(column->Label(2), "3");
  QDataWidgetMapper mapper;
  mapper.setModel(&model);
  mapper.addMapping(field, 1);
  mapper.setCurrentIndex(1);
  form.show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&form));

  // Typed into the table, the editor and the field.
  table->setCurrentIndex(model.index(0, 1));
  table->edit(model.index(0, 1));
  auto* const table_field = table->findChild<QLineEdit*>();
  ASSERT_NE(table_field, nullptr);
  QTest::keyClicks(table_field, "0.1");
  QTest::keyClick(table_field, Qt::Key_Return);
  QApplication::processEvents();
  EXPECT_EQ(model.Element(0, 1), 0.1L);
  EXPECT_EQ(column->Element(0), 0.1L);
  EXPECT_EQ(matrix->FractElement(0, 1).denominator, 10);
  column->setEditFocus(1);
  QTest::keyClicks(QApplication::focusWidget(), "0.7");
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
  EXPECT_EQ(field->Value(), 0.7L);
  field->setValue(1 / 3.0L);
  EXPECT_TRUE(mapper.submit());
  EXPECT_EQ(column->Element(1), 1 / 3.0L);
  // What is typed goes with its column, which is not the one that is shown now.
  column->setEditFocus(2);
  QTest::keyClicks(QApplication::focusWidget(), "9");
  model.insertColumns(0, 1);
  QApplication::processEvents();
  EXPECT_EQ(Column(model, Qt::EditRole, 2), "0.1|0.33333333333333333334|9");
  EXPECT_EQ(Column(model, Qt::EditRole, 1), "1|3|5");
  model.removeColumns(0, 2);
  EXPECT_EQ(matrix->NoOfCols(), 1U);
  EXPECT_TRUE(std::isnan(column->Element(1))) << "its column is gone";
}

}  // namespace qorvex
