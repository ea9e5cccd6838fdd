#include "apps/common/table_reader.h"

#include <gtest/gtest.h>

#include "apps/text_source.h"
#include "qorvex/base/text.h"

namespace qorvex::apps {
namespace {

using Cases = std::initializer_list<ReadingCase<TableSelection>>;

// The columns as text, with title, values and the number of skipped cells; or the error.
std::string Read(const std::string& text, const TableSelection& selection) {
  return ResultOrError([&] {
    std::string columns;
    for (const TableColumn& column : ReadTable(SourceOf(text), selection).columns) {
      columns += column.Title() + ':';
      for (const Extended value : column.values) columns += ' ' + Float2Str(value);
      columns += "; " + Int2EStr(column.skipped) + '\n';
    }
    return columns;
  });
}

TEST(TableReader, ReadsAllColumnsOrTheChosenOnesInTheirOrder) {
  const char* const table = "x, y ,2\n1,2,3\n4,5,6\n";
  for (const auto& [text, columns, selection] : Cases{
           {table, "column 1 (x): 1 4; 0\ncolumn 2 (y): 2 5; 0\ncolumn 3 (2): 3 6; 0\n"},
           // The name 2 belongs to the third column and takes precedence over the number.
           {table,
            "column 3 (2): 3 6; 0\ncolumn 1 (x): 1 4; 0\n",
            {.columns = {"2", "1", "x", "3"}}},
           {",x\n3,4\n", "column 1: 3; 0\ncolumn 2 (x): 4; 0\n"},
           {"1,\n3,4\n", "column 1: 1 3; 0\ncolumn 2: 4; 1\n", {.skip_empty = true}},
           {"1,\n3,4\n,5\n\n6,7\n",
            "column 1: 3 6; 3\ncolumn 2: 4 7; 3\n",
            {.skip_empty = true, .whole_rows = true}},
           {"\n\n1 2\n3 4\n", "column 1: 1 3; 0\ncolumn 2: 2 4; 0\n", {.skip_empty = true}},
           {"x,y,z\n1,,a\n\n  ,4,b\n3,5,c\n\n\n",
            "column 1 (x): 1 3; 2\ncolumn 2 (y): 4 5; 2\n",
            {.columns = {"x", "y"}, .skip_empty = true}},
           {"x,2\n3,4\n", "column 2: 2 4; 0\n", {.columns = {"2"}, .header = false}},
           {"0.1\n\" +1e4000 \"\n18446744073709551615\n-1.25E-3\n",
            "column 1: 0.1 1e+4000 18446744073709551615 -0.00125; 0\n"},
       }) {
    EXPECT_EQ(Read(text, selection), columns) << text;
  }
}

TEST(TableReader, SaysWhatIsWrongAndWhere) {
  for (const auto& [text, message, selection] : Cases{
           {"", " there is nothing to read"},
           {"x,y\n", " column 1 (x) has no values"},
           {"x\n\n\"\"\n", " column 1 (x) has no values", {.skip_empty = true}},
           {"x,y\n1,2\n\n3,a b\n", "3: column 1 (x): the cell is empty", {.columns = {"x"}}},
           {"x,y\n1,2\n3,\n", "3: column 2 (y): the cell is empty"},
           {"x,y\n1,2\n3,a\tb\n", "3: column 2 (y): \"a\\tb\" is not a number"},
           {"NA,2\n3,4\n", "1: column 1: \"NA\" is not a number", {.header = false}},
           {"1\nnan\n", "2: column 1: \"nan\" is not a finite number"},
           {"1e5000\n", "1: column 1: \"1e5000\" is beyond the range of extended precision"},
           {"\nx,y\n1,2\n3\n", "4: the row has 1 cell where line 2 has 2"},
           {"x,y\n", " there is no column \"3\"; the columns are 1 (x), 2 (y)", {{"3"}}},
           {"x,y\n", " there is no column \"0\"; the columns are 1 (x), 2 (y)", {{"0"}}},
           {"1\n", " there is no column \"1x\"; the table has 1 column and no header", {{"1x"}}},
           {"x,y,x\n1,2,3\n", " columns 1 and 3 are both named \"x\"", {{"x"}}},
       }) {
    EXPECT_EQ(Read(text, selection), "data.csv:" + message);
  }
}

TEST(Excerpt, IsCutBetweenCharacters) {
  EXPECT_EQ(Excerpt("\x1B[31m"), "\"\\x1B[31m\"");
  EXPECT_EQ(Excerpt(std::string(40, 'x')), '"' + std::string(40, 'x') + '"');
  EXPECT_EQ(Excerpt(std::string(39, 'x') + "\u00E9y"), '"' + std::string(39, 'x') + "...\"");
}

}  // namespace
}  // namespace qorvex::apps
