#include "apps/qorvex/row_reader.h"

#include "apps/text_source.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>
#include <string>
#include <vector>

namespace qorvex::cli {
namespace {

using Row = std::vector<std::string>;
using Rows = std::vector<Row>;

struct NumberedRow {
  std::size_t line;
  std::size_t blank_lines;
  Row cells;

  friend bool operator==(const NumberedRow&, const NumberedRow&) = default;
};

void PrintTo(const NumberedRow& row, std::ostream* out) {
  *out << row.line << " (" << row.blank_lines << ")";
  for (const std::string& cell : row.cells) *out << " [" << cell << ']';
}

std::vector<NumberedRow> NumberedRowsOf(const std::string& text, std::optional<char> delimiter,
                                        std::size_t block_size) {
  RowReader reader(SourceOf(text, 3), delimiter, block_size);
  std::vector<NumberedRow> rows;
  while (reader.Next()) {
    rows.push_back(
        {reader.Line(), reader.BlankLines(), Row(reader.Cells().begin(), reader.Cells().end())});
  }
  return rows;
}

// Reads with blocks of every size up to the text, so that each byte is once the last of a block.
std::vector<NumberedRow> NumberedRowsOf(const std::string& text,
                                        std::optional<char> delimiter = std::nullopt) {
  const std::vector<NumberedRow> rows = NumberedRowsOf(text, delimiter, RowReader::kBlockSize);
  for (std::size_t block = 4; block < text.size() + 4; ++block) {
    EXPECT_EQ(NumberedRowsOf(text, delimiter, block), rows) << "block size " << block;
  }
  return rows;
}

Rows RowsOf(const std::string& text, std::optional<char> delimiter = std::nullopt) {
  Rows rows;
  for (const NumberedRow& row : NumberedRowsOf(text, delimiter)) rows.push_back(row.cells);
  return rows;
}

std::string ErrorOf(const std::string& text, std::optional<char> delimiter = std::nullopt) {
  std::string message;
  for (const std::size_t block : {std::size_t{4}, RowReader::kBlockSize}) {
    try {
      NumberedRowsOf(text, delimiter, block);
      return "no error";
    } catch (const InputError& error) {
      EXPECT_EQ(error.Fault(), InputFault::kMalformed);
      if (!message.empty()) {
        EXPECT_EQ(error.what(), message);
      }
      message = error.what();
    }
  }
  return message;
}

TEST(RowReader, SplitsLinesWithEveryKindOfEnd) {
  const Rows expected = {{"a", "b"}, {"1", "2"}};
  EXPECT_EQ(RowsOf("a,b\n1,2\n"), expected);
  EXPECT_EQ(RowsOf("a,b\n1,2"), expected);
  EXPECT_EQ(RowsOf("a,b\r\n1,2\r\n"), expected);
  EXPECT_EQ(RowsOf("a,b\r\n1,2\r"), expected);
  EXPECT_EQ(RowsOf("\xEF\xBB\xBF\"a\",b\n1,2\n\n"), expected);
  EXPECT_EQ(RowsOf(" a ,\tb\n 1\t, 2 \r\n"), expected);
}

TEST(RowReader, KeepsEmptyCellsButNotBlankLines) {
  EXPECT_EQ(RowsOf("1,,3\n,,\n,2,\r\n\"\"\n", ','),
            (Rows{{"1", "", "3"}, {"", "", ""}, {"", "2", ""}, {""}}));
  const std::vector<NumberedRow> expected = {{2, 1, {"1"}}, {5, 2, {"2"}}, {6, 0, {"3"}}};
  EXPECT_EQ(NumberedRowsOf("\n1\n\n  \t\n2\n3\n\n \n"), expected);
  EXPECT_EQ(NumberedRowsOf("\r\n1\r\n\r\n  \t\r\n2\r\n3\r\n\r\n", ','), expected);
  EXPECT_EQ(RowsOf(""), Rows{});
  EXPECT_EQ(RowsOf(" \n\n\t"), Rows{});
  EXPECT_EQ(RowsOf("\xEF\xBB\xBF"), Rows{});
}

TEST(RowReader, ReadsQuotedCells) {
  EXPECT_EQ(RowsOf("\"a,b\",\"say \"\"x\"\"\",\"\"\"\"\"\"\n"),
            (Rows{{"a,b", "say \"x\"", "\"\""}}));
  EXPECT_EQ(RowsOf("\" a \" , \"b\"\r\n"), (Rows{{" a ", "b"}}));
  EXPECT_EQ(RowsOf("5\" pipe,a\"\"b\n"), (Rows{{"5\" pipe", "a\"\"b"}}));
  EXPECT_EQ(RowsOf("\"speed of light\" n\n\"1\"  2\n \"3\" \"4\"\t\n"),
            (Rows{{"speed of light", "n"}, {"1", "2"}, {"3", "4"}}));
  EXPECT_EQ(NumberedRowsOf("\"a\r\n\"\"\n\",b\n1,\"\n\n\"\n3,4"),
            (std::vector<NumberedRow>{
                {1, 0, {"a\r\n\"\n", "b"}}, {4, 0, {"1", "\n\n"}}, {7, 0, {"3", "4"}}}));
}

TEST(RowReader, DetectsTheDelimiterFromTheFirstLine) {
  EXPECT_EQ(RowsOf("a b;c,d\te\n"), (Rows{{"a b;c", "d\te"}}));
  EXPECT_EQ(RowsOf("a b;c\td\n1,5;2,5\n"), (Rows{{"a b", "c\td"}, {"1,5", "2,5"}}));
  EXPECT_EQ(RowsOf("a b\tc\n\t 2\n"), (Rows{{"a b", "c"}, {"", "2"}}));
  EXPECT_EQ(RowsOf("  a   b c  \n 1 \t 2\t\t3\r\n"), (Rows{{"a", "b", "c"}, {"1", "2", "3"}}));
  EXPECT_EQ(RowsOf("\n \r\n\"x,\n\"\"y\";z\n1,2;3"), (Rows{{"x,\n\"y", "z"}, {"1,2", "3"}}));
  EXPECT_EQ(RowsOf("5\" pipe,b\n"), (Rows{{"5\" pipe", "b"}}));
  EXPECT_EQ(RowsOf("a,b|c\n", '|'), (Rows{{"a,b", "c"}}));
}

TEST(RowReader, NamesTheLineOfAFault) {
  EXPECT_EQ(ErrorOf("a,b\n1,\"2\n3,4\n"), "data.csv:2: the quote is not closed");
  EXPECT_EQ(ErrorOf("a,b\n\"1\n2\",\"3\n"), "data.csv:3: the quote is not closed");
  EXPECT_EQ(ErrorOf("\""), "data.csv:1: the quote is not closed");
  EXPECT_EQ(ErrorOf("a,b\n\"1\"x\ty\r\n"), "data.csv:2: \"x\\ty\" follows a closing quote");
  EXPECT_EQ(ErrorOf("\"1\"2 3\n", ' '), "data.csv:1: \"2\" follows a closing quote");
  EXPECT_EQ(ErrorOf("\xFF\xFE"
                    "1\0,\0",
                    ','),
            "data.csv:1: the text is UTF-16; UTF-8 is needed");
}

TEST(RowReader, RefusesARowWithoutEnd) {
  TextInput endless{"data.csv", [](char* buffer, std::size_t size) {
                      std::fill_n(buffer, size, '"');
                      return size;
                    }};
  RowReader reader(std::move(endless), ',');
  EXPECT_THROW(reader.Next(), InputError);
}

std::string QuotedCell(const std::string& cell, bool always) {
  const bool needed = cell.find_first_of("\",;\t \r\n") != std::string::npos;
  if (!needed && !always) return cell;
  std::string quoted = "\"";
  for (const char c : cell) quoted.append(c == '"' ? 2 : 1, c);
  return quoted + '"';
}

// What is written by the rules of RFC 4180 is read back, whatever the cells and wherever the blocks
// end.
TEST(RowReader, ReadsBackRandomTables) {
  const unsigned seed = 20240607;
  SCOPED_TRACE(seed);
  std::mt19937 random(seed);
  const auto below = [&](std::size_t limit) {
    return std::uniform_int_distribution<std::size_t>(0, limit - 1)(random);
  };
  const std::string alphabet = "\"\",;\t \r\n01.a";
  for (int repetition = 0; repetition < 20000; ++repetition) {
    const char delimiter = ",;\t "[below(4)];
    Rows rows(1 + below(4), Row(1 + below(4)));
    std::string text;
    for (Row& row : rows) {
      for (std::string& cell : row) {
        for (std::size_t length = below(5); length > 0; --length)
          cell += alphabet[below(alphabet.size())];
        // An empty cell that is not quoted would be no cell, or make a blank line.
        const bool always = cell.empty() || below(2) == 0;
        text += QuotedCell(cell, always) + delimiter;
      }
      text.pop_back();
      text += below(2) == 0 ? "\n" : "\r\n";
    }
    Rows read;
    for (const NumberedRow& row : NumberedRowsOf(text, delimiter, 4 + below(40)))
      read.push_back(row.cells);
    ASSERT_EQ(read, rows) << text;
  }
}

}  // namespace
}  // namespace qorvex::cli
