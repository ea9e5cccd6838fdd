#include "apps/qorvex/table_reader.h"

#include "apps/qorvex/input_error.h"
#include "apps/text_source.h"

#include <gtest/gtest.h>
#include <limits>
#include <string>
#include <vector>

namespace qorvex::cli {
namespace {

struct Failure {
  const char* text;
  std::vector<std::string> columns;
  InputFault fault;
  const char* message;
};

TEST(TableReader, TakesEveryColumnOrTheChosenOnesInTheirOrder) {
  const std::string text = "x, y ,2\n1,2,3\n4,5,6\n";
  std::vector<TableColumn> all = ReadTable(SourceOf(text), {});
  ASSERT_EQ(all.size(), 3U);
  EXPECT_EQ(all[0].Title(), "column 1 (x)");
  EXPECT_EQ(all[1].Title(), "column 2 (y)");
  EXPECT_EQ(all[1].values, (TQorFloatVector{2, 5}));

  // The name 2 belongs to the third column and wins over the number.
  std::vector<TableColumn> chosen = ReadTable(SourceOf(text), {.columns = {"2", "1", "x", "3"}});
  ASSERT_EQ(chosen.size(), 2U);
  EXPECT_EQ(chosen[0].number, 3U);
  EXPECT_EQ(chosen[0].values, (TQorFloatVector{3, 6}));
  EXPECT_EQ(chosen[1].values, (TQorFloatVector{1, 4}));
}

TEST(TableReader, TellsHeaderFromData) {
  const auto count = [](const std::string& text) {
    return ReadTable(SourceOf(text), {.skip_empty = true})[0].values.size();
  };
  EXPECT_EQ(count("1,2\n3,4\n"), 2U);
  EXPECT_EQ(count("1,b\n3,4\n"), 1U);
  EXPECT_EQ(count("1,\n3,4\n"), 2U);  // an empty cell is no text
  EXPECT_EQ(count("\n\n1 2\n3 4\n"), 2U);
  const std::vector<TableColumn> columns = ReadTable(SourceOf(",x\n3,4\n"), {});
  EXPECT_EQ(columns[0].Title(), "column 1");
  EXPECT_EQ(columns[1].Title(), "column 2 (x)");
}

TEST(TableReader, ConvertsToEightyBits) {
  const TQorFloatVector values =
      ReadTable(SourceOf("x\n0.1\n\" +1e4000 \"\n18446744073709551615\n-1.25E-3\n"), {})[0].values;
  EXPECT_EQ(values, (TQorFloatVector{0.1L, 1e4000L, 18446744073709551615.0L, -1.25e-3L}));
}

TEST(TableReader, SkipsEmptyCellsAndBlankLinesOnlyWhenAsked) {
  const std::string text = "x,y,z\n1,,a\n\n  ,4,b\n3,5,c\n\n\n";
  const std::vector<TableColumn> columns =
      ReadTable(SourceOf(text), {.columns = {"x", "y"}, .skip_empty = true});
  EXPECT_EQ(columns[0].values, (TQorFloatVector{1, 3}));
  EXPECT_EQ(columns[0].skipped, 2U);
  EXPECT_EQ(columns[1].values, (TQorFloatVector{4, 5}));
  EXPECT_EQ(columns[1].skipped, 2U);
}

TEST(TableReader, SaysWhatIsWrongAndWhere) {
  using enum InputFault;
  const Failure failures[] = {
      {"", {}, kNoValues, "data.csv: there is nothing to read"},
      {"\n \n", {}, kNoValues, "data.csv: there is nothing to read"},
      {"x,y\n", {}, kNoValues, "data.csv: column 1 (x) has no values"},
      {"x,y\n1,2\n\n3,a b\n", {"x"}, kEmptyCell, "data.csv:3: column 1 (x): the cell is empty"},
      {"x,y\n1,2\n3,\n", {}, kEmptyCell, "data.csv:3: column 2 (y): the cell is empty"},
      {"x,y\n1,2\n3,a\tb\n",
       {},
       kNotANumber,
       "data.csv:3: column 2 (y): \"a\\tb\" is not a number"},
      {"1\n1e\n", {}, kNotANumber, "data.csv:2: column 1: \"1e\" is not a number"},
      {"1\nnan\n", {}, kNotANumber, "data.csv:2: column 1: \"nan\" is not a finite number"},
      {"-inf\n1\n", {}, kNotANumber, "data.csv:1: column 1: \"-inf\" is not a finite number"},
      {"1e5000\n1\n",
       {},
       kOutOfRange,
       "data.csv:1: column 1: \"1e5000\" is beyond the range of extended precision"},
      {"\nx,y\n1,2\n3\n", {}, kMalformed, "data.csv:4: the row has 1 cell where line 2 has 2"},
      {"1 2\n3 4 5\n", {}, kMalformed, "data.csv:2: the row has 3 cells where line 1 has 2"},
      {"x,y\n1,2\n",
       {"z"},
       kNoSuchColumn,
       "data.csv: there is no column \"z\"; the columns are 1 (x), 2 (y)"},
      {"x,y\n1,2\n",
       {"3"},
       kNoSuchColumn,
       "data.csv: there is no column \"3\"; the columns are 1 (x), 2 (y)"},
      {"x,y\n1,2\n",
       {"0"},
       kNoSuchColumn,
       "data.csv: there is no column \"0\"; the columns are 1 (x), 2 (y)"},
      {"1\n",
       {"1x"},
       kNoSuchColumn,
       "data.csv: there is no column \"1x\"; the table has 1 column and no header"},
      {"x,y,x\n1,2,3\n", {"x"}, kNoSuchColumn, "data.csv: columns 1 and 3 are both named \"x\""},
  };
  for (const Failure& failure : failures) {
    SCOPED_TRACE(failure.text);
    try {
      static_cast<void>(ReadTable(SourceOf(failure.text), {.columns = failure.columns}));
      ADD_FAILURE() << "no error";
    } catch (const InputError& error) {
      EXPECT_STREQ(error.what(), failure.message);
      EXPECT_EQ(error.Fault(), failure.fault);
    }
  }
}

TEST(TableReader, CutsLongTextInMessagesBetweenCharacters) {
  EXPECT_EQ(Excerpt("\x1B[31m"), "\"\\x1B[31m\"");
  EXPECT_EQ(Excerpt(std::string(40, 'x')), '"' + std::string(40, 'x') + '"');
  EXPECT_EQ(Excerpt(std::string(39, 'x') + "\u00E9y"), '"' + std::string(39, 'x') + "...\"");
}

}  // namespace
}  // namespace qorvex::cli
