#include "apps/common/table_reader.h"

#include <algorithm>
#include <cstdint>
#include <gtest/gtest.h>
#include <random>
#include <string>
#include <vector>

#include "apps/text_source.h"
#include "qorvex/base/text.h"

namespace qorvex::apps {
namespace {

using Cases = std::initializer_list<ReadingCase<TableSelection>>;

const TableFormat kComplete{.missing = MissingWords::None()};

// The columns as text, with title, values and the number of skipped cells; or the error.
std::string Read(const std::string& text, const TableSelection& selection, unsigned threads = 1,
                 std::size_t block_size = RowReader::kBlockSize) {
  return ResultOrError([&] {
    std::string columns;
    const Table table = ReadTable(SourceOf(text), selection, threads, block_size);
    for (const TableColumn& column : table.columns) {
      columns += column.Title() + ':';
      for (const Extended value : column.numbers.Values()) columns += ' ' + Float2Str(value);
      for (const std::uint32_t code : column.labels.Codes())
        columns += ' ' + column.labels.Texts()[code];
      columns += "; " + Int2EStr(column.missing);
      for (const std::size_t gap : column.gaps) columns += " gap " + Int2EStr(gap);
      columns += '\n';
    }
    for (const std::size_t row : table.skipped_rows) columns += "skipped " + Int2EStr(row) + '\n';
    for (const LeftOutColumn& column : table.left_out) columns += column.title + " left out\n";
    return columns;
  });
}

void ExpectResult(const std::string& text, const TableSelection& selection,
                  const std::string& result) {
  EXPECT_EQ(Read(text, selection), result) << text;
  for (std::size_t block_size = 4; block_size < text.size() + 4; ++block_size) {
    for (const unsigned threads : {1U, 2U, 3U})
      ASSERT_EQ(Read(text, selection, threads, block_size), result)
          << text << threads << " threads, blocks of " << block_size;
  }
}

TEST(TableReader, ReadsAllColumnsOrTheChosenOnesInTheirOrder) {
  const char* const table = "x, y ,2\n1,2,3\n4,5,6\n";
  for (const auto& [text, columns, selection] : Cases{
           {table, "column 1 (x): 1 4; 0\ncolumn 2 (y): 2 5; 0\ncolumn 3 (2): 3 6; 0\n"},
           // The name 2 belongs to the third column and takes precedence over the number.
           {table,
            "column 3 (2): 3 6; 0\ncolumn 1 (x): 1 4; 0\n",
            {.columns = {"2", "1", "x", "3"}}},
           {"\n\n1 2\n3 4\n", "column 1: 1 3; 0\ncolumn 2: 2 4; 0\n"},
           {"x,2\n3,4\n", "column 2: 2 4; 0\n", {.columns = {"2"}, .format = {.header = false}}},
           {"x;y\n1,5;2\n.5;1\n", "column 2 (y): 2 1; 0\n", {.columns = {"2"}}},
           {"x;y\n-1,5e1;2\n;,25\n", "column 1 (x): -15; 1\ncolumn 2 (y): 2 0.25; 0\n"},
           {"0.1\n\" +1e4000 \"\n18446744073709551615\n-1.25E-3\n",
            "column 1: 0.1 1e+4000 18446744073709551615 -0.00125; 0\n"},
       }) {
    ExpectResult(text, selection, columns);
  }
}

TEST(TableReader, SkipsMissingValuesAndLeavesOutColumnsWithoutNumbers) {
  const TableFormat words{.missing = MissingWords({"-", "n/a", "-99"})};
  for (const auto& [text, columns, selection] : Cases{
           {"1,\n3,4\n", "column 1: 1 3; 0\ncolumn 2: 4; 1\n"},
           {"NA,NaN\n3,4\nnull,nan\n", "column 1: 3; 2\ncolumn 2: 4; 2\n"},
           {"1,\n3,4\n,5\n\n6,7\n", "column 1: 3 6; 3\ncolumn 2: 4 7; 3\n", {.whole_rows = true}},
           {"x,y,z\n1,2,a\n3,4,\n,5,b\n\n6,7,c\n",
            "column 1 (x): 1 3 6; 2\ncolumn 2 (y): 2 4 7; 2\ncolumn 3 (z) left out\n",
            {.whole_rows = true}},
           {"x,y\n1,2\n\n3,\n\n\n4,5\n,6\n",
            "column 1 (x): 1 4; 5\ncolumn 2 (y): 2 5; 5\n"
            "skipped 1\nskipped 2\nskipped 3\nskipped 4\nskipped 6\n",
            {.columns = {"x", "y"}, .whole_rows = true}},
           {"x,y,z\n1,g,a\n,h,\n3,h,\n4,,\n",
            "column 1 (x): 1 3; 2\ncolumn 2 (y): g h; 2\ncolumn 3 (z) left out\n",
            {.labels = {"y"}, .whole_rows = true}},
           {"x,y,z\n1,,a\n\n  ,4,b\n3,5,c\n\n\n",
            "column 1 (x): 1 3; 2\ncolumn 2 (y): 4 5; 2\ncolumn 3 (z) left out\n"},
           {"x,y,z\n-99,1,-99\nn/a,2,\n3,-,-\n",
            "column 1 (x): 3; 2\ncolumn 2 (y): 1 2; 1\ncolumn 3 (z) left out\n",
            {.format = words}},
           {",x,y\n1,3,a\n2,4,5b\n", "column 2 (x): 3 4; 0\ncolumn 3 (y) left out\n"},
           {",x\n7,3\n8,4\n", "column 1: 7 8; 0\n", {.columns = {"1"}}},
           {"x y\na 1 2\nb 3 NA\n", "column 2 (x): 1 3; 0\ncolumn 3 (y): 2; 1\n"},
       }) {
    ExpectResult(text, selection, columns);
  }
}

TEST(TableReader, SaysWhatIsWrongAndWhere) {
  for (const auto& [text, message, selection] : Cases{
           {"", " there is nothing to read"},
           {"x,y\n", " column 1 (x) has no values"},
           {"x,y\nNA,1\n", " column 1 (x) has no values", {.columns = {"x"}}},
           {"x\n\n\"\"\n", " column 1 (x) has no values"},
           {"x,y\na,\n", " no column has a number"},
           {"1,\n,2\n", " every row has a missing value", {.whole_rows = true}},
           {"x\na\n", "2: column 1 (x): \"a\" is not a number"},
           {"x,y\n1,2\n\n3,a b\n",
            "3: column 1 (x): the cell is empty",
            {.columns = {"x"}, .format = kComplete}},
           {"x,y\n1,2\n3,\n", "3: column 2 (y): the cell is empty", {.format = kComplete}},
           {"x,y\n1,2\n3,a\tb\n", "3: column 2 (y): \"a\\tb\" is not a number"},
           {"x,y\n1,a\n3,b\n4,5\nc,6\n", "2: column 2 (y): \"a\" is not a number"},
           {"a\nb\n2\n", "1: column 1: \"a\" is not a number", {.format = {.header = false}}},
           {"x\nNA\n2\n", "2: column 1 (x): \"NA\" is not a number", {.format = kComplete}},
           {"1\nnan\n", "2: column 1: \"nan\" is not a finite number", {.format = kComplete}},
           {"x\n-inf\n1\n", "2: column 1 (x): \"-inf\" is not a finite number"},
           {"x\ty\n1\t1,500\n",
            "2: column 2 (y): \"1,500\" may have groups of digits, which are not read"},
           {"x;y\n1,5;1.234,5\n2;3\n",
            "2: column 2 (y): \"1.234,5\" may have groups of digits, which are not read"},
           {"1e5000\n", "1: column 1: \"1e5000\" is beyond the range of extended precision"},
           {"\nx,y\n1,2\n3\n", "4: the row has 1 cell where line 2 has 2"},
           {"x,y\n", " there is no column \"3\"; the columns are 1 (x), 2 (y)", {{"3"}}},
           {"x,\n", " there is no column \"0\"; the columns are 1 (x), 2", {{"0"}}},
           {"1\n", " there is no column \"1x\"; the table has 1 column and no header", {{"1x"}}},
           {"x,y,x\n1,2,3\n", " columns 1 and 3 are both named \"x\"", {{"x"}}},
       }) {
    ExpectResult(text, selection, "data.csv:" + message);
  }
}

// Blank lines, quotes, faults, and numbers that turn a column of integers into one of values, at
// any place of a block.
TEST(TableReader, HasTheSameResultForAnyBlocksAndThreads) {
  std::mt19937_64 engine(19);
  const char* const pieces[] = {"1.5,2\n",     "0.125,-7\n",   "-0,9223372036854775807\n",
                                "1e-30,0.5\n", "3,4\r\n",      "4,1e-27\n",
                                "\n",          " \t\n",        "5,\n",
                                "\"6\",7\n",   "\"8\n9\",1\n", "1,2,3\n",
                                "1,x\n",       "1\r2\n",       "922337203685477580.8,0\n",
                                "NA,x\n",      "1,NA\n",       "x,NaN\n"};
  for (int repetition = 0; repetition < 1500; ++repetition) {
    const char* const starts[] = {"", "a,b\n", "a,b\nx,1\n", "a,b\nx,y\nx,y\n"};
    std::string text = starts[engine() % 4];
    const std::size_t usual = 1 + engine() % std::size(pieces);
    for (std::size_t rows = engine() % 30; rows > 0; --rows)
      text += pieces[engine() % (engine() % 8 == 0 ? std::size(pieces) : std::min(usual, 6UL))];
    TableSelection selection{.whole_rows = engine() % 2 == 0};
    if (engine() % 2 == 0) selection.format = kComplete;
    if (engine() % 2 == 0) selection.labels = {"2"};
    if (engine() % 2 == 0) selection.columns = {"1"};
    const std::string result = Read(text, selection);
    const std::size_t block_size = 4 + engine() % 60;
    ASSERT_EQ(Read(text, selection, static_cast<unsigned>(1 + engine() % 3), block_size), result)
        << text << "blocks of " << block_size;
  }
  std::string wide = "0";
  std::string columns = "column 1: 0 1; 0\n";
  for (int i = 1; i < 300; ++i) {
    wide += ',' + Int2EStr(i);
    columns += "column " + Int2EStr(i + 1) + ": " + Int2EStr(i) + ' ' + Int2EStr(i + 1) + "; 0\n";
  }
  wide += '\n' + wide.substr(2) + ",300\n";
  EXPECT_EQ(Read(wide, {}, 2, 64), columns);
}

// The integers of a single column and their decimals; nothing for values.
std::string IntegersOf(const std::string& text, bool currency) {
  const Table table =
      ReadTable(SourceOf(text), {.format = {.header = false}, .currency = currency});
  const ColumnNumbers& numbers = table.columns[0].numbers;
  if (!numbers.AreDecimal()) return "";
  std::string integers;
  for (const std::int64_t integer : numbers.Integers()) integers += Int2EStr(integer) + ' ';
  return integers + '/' + Int2EStr(numbers.Decimals());
}

TEST(TableReader, KeepsDecimalNumbersAsIntegersWhileTheyFit) {
  const struct {
    const char* text;
    const char* integers;
    bool currency = false;
  } cases[] = {
      {"0.1\n-0.25\n3\n\" .5 \"\n", "10 -25 300 50 /2"},
      {"1e3\n2.5E-3\n-0.0\n0e-99\n", "10000000 25 0 0 /4"},
      {"9223372036854775807\n-9223372036854775807\n",
       "9223372036854775807 -9223372036854775807 /0"},
      {"1e-27\n9223372036.854775807e-18\n", "1 9223372036854775807 /27"},
      {"1e-28\n", ""},
      {"9223372036854775808\n", ""},
      {"922337203685477581\n0.1\n", ""},
      {"0.1\n922337203685477580.8\n", ""},
      {"0.1\n1e99\n0.2\n", ""},
      {"5\n12.5\n", "50000 125000 /4", true},
      {"-922337203685477.5808\n0\n", "-9223372036854775808 0 /4", true},
  };
  for (const auto& [text, integers, currency] : cases)
    EXPECT_EQ(IntegersOf(text, currency), integers) << text;
}

TEST(TableReader, HasTheSameValuesForIntegersAsForTexts) {
  std::mt19937_64 engine(18);
  std::string text;
  std::vector<Extended> values;
  for (int i = 0; i < 2000; ++i) {
    std::string number = Int2EStr(static_cast<std::int64_t>(engine()) >> engine() % 60);
    // Columns change from integers to values at different rows.
    number += 'e' + Int2EStr(-static_cast<int>(engine() % 28));
    text += number + '\n';
    values.push_back(Str2Float(number));
    if (engine() % 20 != 0) continue;
    const Table table = ReadTable(SourceOf(text), {}, 1, 4 + engine() % 100);
    EXPECT_TRUE(std::ranges::equal(table.columns[0].numbers.Values(), values)) << text;
    text.clear();
    values.clear();
  }
}

TEST(Excerpt, IsCutBetweenCharacters) {
  EXPECT_EQ(Excerpt("\x1B[31m"), "\"\\x1B[31m\"");
  EXPECT_EQ(Excerpt(std::string(40, 'x')), '"' + std::string(40, 'x') + '"');
  EXPECT_EQ(Excerpt(std::string(39, 'x') + "\u00E9y"), '"' + std::string(39, 'x') + "\u00E9...\"");
}

}  // namespace
}  // namespace qorvex::apps
