#include "apps/common/row_reader.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>

#include "apps/text_source.h"
#include "qorvex/base/text.h"

namespace qorvex::apps {
namespace {

using Case = ReadingCase<std::optional<char>>;

// The rows as text: a dash for every blank line before a row, its line and its cells; or the error.
std::string Read(const std::string& text, std::optional<char> delimiter, std::size_t block_size) {
  RowReader reader(SourceOf(text), {.delimiter = delimiter}, block_size);
  return ResultOrError([&] {
    std::string rows;
    while (reader.Next()) {
      rows += std::string(reader.BlankLines(), '-') + Int2EStr(reader.Line()) + ':';
      for (const std::string_view cell : reader.Cells()) rows.append("[").append(cell).append("]");
    }
    return rows;
  });
}

// Reads with blocks of every size, so that every byte is the last of a block once.
void ExpectRows(std::initializer_list<Case> cases) {
  for (const auto& [text, rows, delimiter] : cases) {
    for (std::size_t block = 4; block < text.size() + 4; ++block) {
      EXPECT_EQ(Read(text, delimiter, block), rows) << "block size " << block;
    }
  }
}

TEST(RowReader, SplitsLinesWithAnyLineEnd) {
  ExpectRows({{"a,b\n1,2\n", "1:[a][b]2:[1][2]"},
              {"a,b\r\n1,2\r\n", "1:[a][b]2:[1][2]"},
              {"a,b\n1,2", "1:[a][b]2:[1][2]"},
              {"a,b\r\n1,2\r", "1:[a][b]2:[1][2]"},
              {"\xEF\xBB\xBF\"a\",b\n1,2\n\n", "1:[a][b]2:[1][2]"},
              {" a ,\tb\n 1\t, 2 \r\n", "1:[a][b]2:[1][2]"}});
}

TEST(RowReader, KeepsEmptyCellsButNotBlankLines) {
  ExpectRows({{"1,,3\n,,\n,2,\r\n\"\"\n", "1:[1][][3]2:[][][]3:[][2][]4:[]", ','},
              {"\n1\n\n  \t\n2\n3\n\n \n", "-2:[1]--5:[2]6:[3]"},
              {"\r\n1\r\n\r\n  \t\r\n2\r\n3\r\n\r\n", "-2:[1]--5:[2]6:[3]", ','},
              {"", ""},
              {" \n\n\t", ""},
              {"\xEF\xBB\xBF", ""}});
}

TEST(RowReader, ReadsQuotedCells) {
  ExpectRows({{"\"a,b\",\"say \"\"x\"\"\",\"\"\"\"\"\"\n", "1:[a,b][say \"x\"][\"\"]"},
              {"\" a \" , \"b\"\r\n", "1:[ a ][b]"},
              {"5\" pipe,a\"\"b\n", "1:[5\" pipe][a\"\"b]"},
              {"x,y\n\"say \\\"a\\\"\",\"C:\\d\"\n", "1:[x][y]2:[say \"a\"][C:\\d]"},
              {"\"C:\\\",\"\"\"\"\n", "1:[C:\\][\"]"},
              {"\"c in vacuo\" n\n\"1\"  2\n \"3\" \"4\"\t\n", "1:[c in vacuo][n]2:[1][2]3:[3][4]"},
              {"\"a\r\n\"\"\n\",b\n1,\"\n\n\"\n3,4", "1:[a\r\n\"\n][b]4:[1][\n\n]7:[3][4]"}});
}

TEST(RowReader, DetectsTheDelimiterFromTheFirstLine) {
  ExpectRows({{"a b;c,d\te\n", "1:[a b;c][d\te]"},
              {"a b;c\td\n1,5;2,5\n", "1:[a b][c\td]2:[1,5][2,5]"},
              {"a b\tc\n\t 2\n", "1:[a b][c]2:[][2]"},
              {"  a   b c  \n 1 \t 2\t\t3\r\n", "1:[a][b][c]2:[1][2][3]"},
              {"\n \r\n\"x,\n\"\"y\";z\n1,2;3", "--3:[x,\n\"y][z]5:[1,2][3]"},
              {"a,b|c\n", "1:[a,b][c]", '|'}});
}

TEST(RowReader, NamesTheLineOfAFault) {
  ExpectRows({{"a,b\n1,\"2\n3,4\n", "data.csv:2: the quote is not closed"},
              {"a,b\n\"1\n2\",\"3\n", "data.csv:3: the quote is not closed"},
              {"\"", "data.csv:1: the quote is not closed"},
              {"a,b\n\"1\"x\ty\r\n", "data.csv:2: \"x\\ty\" follows a closing quote"},
              {"\"1\"2 3\n", "data.csv:1: \"2\" follows a closing quote", ' '}});
  for (const char* const text :
       {"1\r2\r3\r", " 1\r 2\r", "1,2\r,3\r", "\"1\"\r\"2\"\r", "\"1\"\r 2\r", "1\r\r\n"})
    ExpectRows({{text, "data.csv:1: a line ends with CR alone; LF or CR LF is needed"}});
  EXPECT_EQ(Read(std::string(RowScanner::kLongestRow, '"'), ',', RowReader::kBlockSize),
            "data.csv:1: the row is too long (more than 64 MiB); a closing quote may be missing");
}

// What was found: the delimiter, the decimal sign, whether there are a header and names of rows.
std::string FormatOf(const std::string& text, const TableFormat& format) {
  RowReader reader(SourceOf(text), format);
  static_cast<void>(reader.Next());
  const TableFormat& found = reader.Format();
  return {*found.delimiter, *found.decimal_sign, found.header.value_or(false) ? 'h' : '-',
          reader.HasRowNames() ? 'r' : '-'};
}

TEST(RowReader, FindsTheFormat) {
  const std::string table = "x;y\n1,25;2\n";
  for (const auto& [text, found, format] : std::initializer_list<ReadingCase<TableFormat>>{
           {table, ";,h-"},
           {table, ",.hr", {.delimiter = ','}},
           {table, ";.h-", {.decimal_sign = '.'}},
           {table, ";,--", {.header = false}},
           // Cells that are numbers decide if the first line has several delimiters.
           {"1,5;2,5\n3;4\n", ";,--"},
           {"1,5 2,5\n3 4\n", " ,--"},
           {"1,5\t2,5\n", "\t,--"},
           {"weight, kg;n\n1,5;2\n", ";,h-"},
           {"first name,last name\nAda B,C D\n", ",.h-"},
           {"time,x\n2026-11-22 10:00,5\n", ",.h-"},
           {"1,5\n2,5\n", ",.--"},
           {"1,5\n2,5\n", " ,--", {.decimal_sign = ','}},
           {"\"1,5\",\"2\"\n", ",,--", {.decimal_sign = ','}},
           {"sep=|\n1|2\n", "|.--"},
           {"\"sep=;\"\r\nx,y;z\n", ";.h-"},
           // A comma may group digits, and a point is a decimal sign.
           {"x y\n1,234 5\n", " .h-"},
           {"x y\n1,234 -2,5\n", " ,h-"},
           {"x;y\n1,234;5\n", ";,h-"},
           {"x;y\n1,5;2.5\n", ";.h-"},
           // Names of rows.
           {"\"\",\"x\"\n\"a\",1\n", ",.hr"},
           {"x y\na 1 2\nb 3 4\n", " .hr"},
           {"x,y\n1,2,3\n4,5,\n", ",.hr"},
           {"x,y\n1,2,\n3,4,\n", ",.h-"},
           {"x,y\n1,2,3\n4,5\n", ",.h-"},
           {"1 2\n3 4 5\n", " .--"},
           {"1 2\n3 4 5\n", " .hr", {.header = true}},
           {"x,,z\n1,2,3\n", ",.h-"},
           {",,z\n1,2,3\n", ",.h-"},
           {"NA,7\n", ",.--"},
           {"", " .--"},
       }) {
    EXPECT_EQ(FormatOf(text, format), found) << text;
  }
  // The sample may be the start of a text only, and end within a quoted cell.
  std::string rows = "x;y\n";
  for (int i = 0; i < 5000; ++i) rows += "\"a\\\"b\nc\";" + Int2EStr(i) + ";0,5\n";
  EXPECT_EQ(FormatOf(rows, {}), ";,hr");
  // The sample grows until it has two rows below the first.
  EXPECT_EQ(FormatOf("x\n\"" + std::string(100000, 'a') + "\" 1\n\"b\" 2\n", {}), " .hr");
}

// What is written by the rules of RFC 4180 is read back, whatever the cells and the ends of blocks.
TEST(RowReader, ReadsBackRandomTables) {
  std::mt19937 random(20240607);
  const auto below = [&](std::size_t limit) {
    return std::uniform_int_distribution<std::size_t>(0, limit - 1)(random);
  };
  for (int repetition = 0; repetition < 20000; ++repetition) {
    const char delimiter = ",;\t "[below(4)];
    const std::size_t columns = 1 + below(4);
    std::string text;
    std::string rows;
    for (std::size_t row = 1 + below(4); row > 0; --row) {
      rows += Int2EStr(1 + std::ranges::count(text, '\n')) + ':';
      for (std::size_t column = 0; column < columns; ++column) {
        std::string cell;
        std::string quoted = "\"";
        for (std::size_t length = below(5); length > 0; --length) {
          cell += "\"\",;\t \r\n01.a"[below(12)];
          quoted.append(cell.back() == '"' ? 2 : 1, cell.back());
        }
        rows += '[' + cell + ']';
        if (column > 0) text += delimiter;
        // An empty cell without quotes could be no cell at all, or make the line blank.
        const bool plain = !cell.empty() && cell.find_first_of("\",;\t \r\n") == cell.npos;
        text += plain && below(2) == 0 ? cell : quoted + '"';
      }
      text += below(2) == 0 ? "\n" : "\r\n";
    }
    ASSERT_EQ(Read(text, delimiter, 4 + below(40)), rows) << text;
  }
}

}  // namespace
}  // namespace qorvex::apps
