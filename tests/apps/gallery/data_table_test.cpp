#include "apps/qorvex-gallery/model/data_table.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include "apps/qorvex-gallery/model/table_input.h"
#include "apps/text_source.h"
#include "qorvex/base/text.h"

namespace qorvex::gallery {
namespace {

constexpr Extended kNull = std::numeric_limits<Extended>::quiet_NaN();

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
  table.SetNumber(0, 1, kNull);
  EXPECT_TRUE(table.IsChanged());
  EXPECT_EQ(Csv(table), "name,a,b\n\"x;\"\"y\"\"\",,+2e0\n,0.1,\nz,,0x\n");
  EXPECT_TRUE(std::isnan(table.Numbers(1)[0]));
  EXPECT_EQ(table.Numbers(1)[1], 0.1L);

  table.SetSaved();
  EXPECT_FALSE(table.IsChanged());
  table.SetNumber(0, 1, 1.5L);
  table.SetNumber(1, 1, kNull);
  EXPECT_TRUE(table.IsChanged());
  EXPECT_EQ(Csv(table), unchanged);
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

// What was written reads as the same table, whatever the cells contain.
TEST(DataTable, ReadsWhatItHasWritten) {
  std::mt19937 random(1);
  const std::string letters = "a1,;\"\n\r\t .";
  for (int round = 0; round < 500; ++round) {
    const std::size_t columns = 1 + random() % 3;
    std::string text = "h";
    text.append(columns - 1, ',').append("\n");
    for (std::size_t i = 1; i <= columns * 4; ++i) {
      text += '"';
      for (auto length = random() % 5; length > 0; --length) {
        const char letter = letters[random() % letters.size()];
        text.append(letter == '"' ? 2 : 1, letter);
      }
      text.append("\"").append(i % columns == 0 ? "\n" : ",");
    }
    const std::string csv = Csv(TableOf(text));
    EXPECT_EQ(TableOf(text).Rows(), 4U);
    EXPECT_EQ(TableOf(csv).Rows(), 4U) << csv;
    EXPECT_EQ(Csv(TableOf(csv)), csv) << text;
  }
}

}  // namespace
}  // namespace qorvex::gallery
