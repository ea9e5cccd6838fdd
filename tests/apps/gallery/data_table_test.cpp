#include "apps/qorvex-gallery/model/data_table.h"

#include <cmath>

#include "apps/qorvex-gallery/model/table_input.h"
#include "apps/text_source.h"
#include "qorvex/base/text.h"
#include "support/test.h"

namespace qorvex::gallery {
namespace {

DataTable TableOf(const std::string& text) {
  return DataTable(apps::SourceOf(text));
}

std::string Csv(const DataTable& table) {
  std::string csv;
  table.WriteCsv([&csv](std::string_view text) { csv += text; });
  return csv;
}

TEST(DataTable, WritesWhatWasNotChangedLetterByLetter) {
  DataTable table = TableOf("name;a;b\n\"x;\"\"y\"\"\";1.50;+2e0\n\n z ;;0x\n");
  EXPECT_EQ(table.Rows(), 3U);
  EXPECT_EQ(table.Title(1), "a");
  EXPECT_EQ(table.RowName(0), "x;\"y\"");
  EXPECT_EQ(table.Find("b"), 2U);
  EXPECT_EQ(table.Find("c"), 1U);
  const std::string unchanged = "name,a,b\n\"x;\"\"y\"\"\",1.50,+2e0\n,,\nz,,0x\n";
  EXPECT_EQ(Csv(table), unchanged);

  table.SetNumber(1, 1, 0.1L);
  table.SetNumber(0, 1, kNaN);
  EXPECT_TRUE(table.IsChanged());
  EXPECT_EQ(Csv(table), "name,a,b\n\"x;\"\"y\"\"\",,+2e0\n,0.1,\nz,,0x\n");
  EXPECT_TRUE(std::isnan(table.Numbers(1)[0]));
  EXPECT_EQ(table.Numbers(1)[1], 0.1L);

  table.SetSaved();
  EXPECT_FALSE(table.IsChanged());
  table.SetNumber(0, 1, 1.5L);
  table.SetNumber(1, 1, kNaN);
  EXPECT_TRUE(table.IsChanged());
  EXPECT_EQ(Csv(table), unchanged);
}

TEST(DataTable, WritesTablesThatCanBeReadAgain) {
  // Cells with each character that must be quoted; a single column with empty cells.
  for (const char* csv : {"\"a,b\",\"c;d\",\"e\rf\",\"g\nh\"\n\"i\tj\",\"k l\",\"\"\"\",m\n",
                          "h\n\"\"\n1\n\"\"\n", "1\n\"\"\n"})
    EXPECT_EQ(Csv(TableOf(csv)), csv);
}

TEST(DataTable, NamesTheLineOfACellThatIsNotANumber) {
  const DataTable table = TableOf("a,b\n1,\"two\nlines\"\n\n3,4\n");
  EXPECT_EQ(apps::ResultOrError([&] { return Float2Str(table.Numbers(1)[0]); }),
            "data.csv:2: column 2 (b): \"two\\nlines\" is not a number");
  EXPECT_EQ(table.Numbers(0).size(), 3U);
}

TEST(DataTable, IsNotReadWhenStopped) {
  std::size_t read = 0;
  const auto input =
      Observed(apps::SourceOf("a,b\n1,2\n"), [&](std::size_t bytes) { return (read = bytes) < 6; });
  EXPECT_THROW(DataTable{input}, ReadingStopped);
  EXPECT_EQ(read, 6U);
}

}  // namespace
}  // namespace qorvex::gallery
