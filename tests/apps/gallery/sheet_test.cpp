#include "apps/qorvex-gallery/model/sheet.h"

#include <QAbstractItemModelTester>
#include <QLocale>
#include <cmath>

#include "apps/common/input_error.h"
#include "apps/qorvex-gallery/model/sheet_file.h"
#include "apps/qorvex-gallery/model/table_input.h"
#include "apps/text_source.h"
#include "support/test.h"

namespace qorvex::gallery {
namespace {

struct SheetTest : testing::Test {
  void Read(const std::string& text, const apps::TableFormat& format = {}) {
    sheet.SetData(ReadSheet(apps::SourceOf(text), format));
  }
  std::string Csv() {
    std::string csv;
    WriteSheet(sheet.Data(), {}, [&csv](std::string_view text) { csv += text; });
    return csv;
  }
  bool Set(int row, int column, const QVariant& value) {
    return sheet.setData(sheet.index(row, column), value);
  }
  QVariant At(int row, int column) { return sheet.index(row, column).data(Qt::EditRole); }

  Sheet sheet;
  QAbstractItemModelTester tester{&sheet, QAbstractItemModelTester::FailureReportingMode::Fatal};
};

TEST_F(SheetTest, WritesWhatWasNotChangedLetterByLetter) {
  Read("name;a;b\n\"x;\"\"y\"\"\";1.50;+2e0\n\n z ;;0x\n");
  const std::string unchanged = "name,a,b\n\"x;\"\"y\"\"\",1.50,+2e0\n,,\nz,,0x\n";
  EXPECT_EQ(Csv(), unchanged);

  EXPECT_TRUE(Set(1, 1, QVariant::fromValue(0.1L)));
  EXPECT_TRUE(Set(0, 1, {}));
  EXPECT_TRUE(sheet.IsChanged());
  EXPECT_EQ(Csv(), "name,a,b\n\"x;\"\"y\"\"\",,+2e0\n,0.1,\nz,,0x\n");
  // The number, or the text, that was there before.
  EXPECT_TRUE(Set(0, 1, "1.5") && Set(1, 1, {}));
  EXPECT_EQ(Csv(), unchanged);
  EXPECT_FALSE(sheet.IsChanged());

  EXPECT_TRUE(Set(0, 1, 7.0));
  sheet.SetSaved(sheet.Data().Format());
  EXPECT_FALSE(sheet.IsChanged());
  EXPECT_TRUE(Set(0, 1, 1.5));
  EXPECT_TRUE(sheet.IsChanged());
}

TEST_F(SheetTest, WritesTablesThatCanBeReadAgain) {
  // Cells with each character that must be quoted; a single column with empty cells.
  for (const char* csv : {"\"a,b\",\"c;d\",\"e\rf\",\"g\nh\"\n\"i\tj\",\"k l\",\"\"\"\",m\n",
                          "h\n\"\"\n1\n\"\"\n", "1\n\"\"\n"}) {
    Read(csv);
    EXPECT_EQ(Csv(), csv);
  }
}

TEST_F(SheetTest, TellsNumbersMissingValuesAndTextsApart) {
  Read("n,t,none,mixed\n1,b,NA,1\nNA,a,,x\n2.50,b,,\n");
  EXPECT_TRUE(sheet.IsNumeric(0));
  for (const int column : {1, 2, 3}) EXPECT_FALSE(sheet.IsNumeric(column)) << column;
  const TQorFloatVector numbers = sheet.Numbers(0);
  EXPECT_TRUE(numbers[0] == 1 && std::isnan(numbers[1]) && numbers[2] == 2.5L);
  EXPECT_EQ(sheet.Labels(0), QStringList({"1", "", "2.50"}));
  const SheetGroups groups = sheet.Groups(1);
  EXPECT_EQ(groups.names, QStringList({"b", "a"}));
  EXPECT_EQ(groups.group_of_row, std::vector({0, 1, 0}));
  EXPECT_EQ(sheet.Groups(0).group_of_row, std::vector({0, -1, 1}));
  EXPECT_EQ(sheet.FirstText(3), 1);
  EXPECT_EQ(At(0, 0).metaType(), QMetaType::fromType<long double>());
  EXPECT_EQ(At(0, 3), "1") << "of a column that counts as text";

  // Others keep the numbers that they have asked for.
  EXPECT_TRUE(Set(0, 0, 9.0));
  EXPECT_EQ(numbers[0], 1);
  EXPECT_EQ(sheet.Numbers(0)[0], 9);
  EXPECT_TRUE(Set(1, 3, {}));
  EXPECT_TRUE(sheet.IsNumeric(3));
  sheet.SetMissingWords(apps::MissingWords({"9", "b"}));
  EXPECT_FALSE(sheet.IsNumeric(0));
  EXPECT_EQ(sheet.Groups(1).names, QStringList({"a"}));
}

TEST_F(SheetTest, ReadsAndWritesNumbersAsItsFileDoes) {
  Read("a;b\n1,5;2\n", {.decimal_sign = ','});
  EXPECT_EQ(sheet.Numbers(0)[0], 1.5L);
  const QLocale before;
  QLocale::setDefault(QLocale::German);
  EXPECT_TRUE(Set(0, 1, 0.25));
  EXPECT_EQ(sheet.Text(0, 1), "0,25");
  EXPECT_TRUE(Set(0, 1, "007,50"));
  EXPECT_EQ(sheet.Text(0, 1), "007,50");
  Read("a\n1\n");
  EXPECT_TRUE(Set(0, 0, "2,5"));
  EXPECT_EQ(sheet.Text(0, 0), "2.5") << "a number in the locale of the user";
  QLocale::setDefault(before);
}

TEST_F(SheetTest, UndoesInsertedAndRemovedRowsAndColumns) {
  const std::string csv = "a,b,c\n1,x,3\n2,y,6\n";
  Read(csv);
  EXPECT_EQ(sheet.Numbers(2)[1], 6);
  EXPECT_TRUE(sheet.removeColumns(0, 2));
  EXPECT_EQ(sheet.Numbers(0)[1], 6);
  EXPECT_TRUE(sheet.removeRows(0, 1));
  EXPECT_TRUE(sheet.insertColumns(1, 1));
  EXPECT_EQ(sheet.Title(1), "Column 2");
  EXPECT_TRUE(sheet.insertRows(0, 2));
  EXPECT_EQ(Csv(), "c,\n,\n,\n6,\n");
  EXPECT_FALSE(sheet.removeRows(2, 2) || sheet.insertColumns(4, 1));
  for (int step = 0; step < 4; ++step) sheet.UndoLines();
  EXPECT_FALSE(sheet.CanUndoLines());
  EXPECT_EQ(Csv(), csv);
  EXPECT_TRUE(sheet.IsNumeric(0) && !sheet.IsNumeric(1));
  // Rows that are typed one after the other.
  EXPECT_TRUE(sheet.insertRows(2, 1) && sheet.insertRows(3, 1));
  sheet.UndoLines();
  EXPECT_EQ(Csv(), csv);
  sheet.TakeNamesFromFirstRow();
  EXPECT_EQ(Csv(), "1,x,3\n2,y,6\n");
}

TEST_F(SheetTest, IsNotReadWhenStopped) {
  std::size_t read = 0;
  const auto input =
      Observed(apps::SourceOf("a,b\n1,2\n"), [&](std::size_t bytes) { return (read = bytes) < 6; });
  EXPECT_THROW(static_cast<void>(ReadSheet(input, {})), ReadingStopped);
  EXPECT_EQ(read, 6U);
}

}  // namespace
}  // namespace qorvex::gallery
