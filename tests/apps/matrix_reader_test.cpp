#include "apps/common/matrix_reader.h"

#include <gtest/gtest.h>

#include "apps/text_source.h"
#include "qorvex/base/text.h"

namespace qorvex::apps {
namespace {

using Cases = std::initializer_list<ReadingCase<TableFormat>>;

// The rows as text, each in brackets; or the error.
std::string Read(const std::string& text, const TableFormat& format) {
  return ResultOrError([&] {
    std::string rows;
    for (const TQorFloatVector& row : ReadMatrix(SourceOf(text), format)) {
      std::string cells;
      for (const Extended element : row) cells += ' ' + Float2Str(element);
      rows += '[' + cells.substr(1) + ']';
    }
    return rows;
  });
}

const TableFormat kHeader = {.header = true};

// What a matrix has in common with a table is tested with the table reader.
TEST(MatrixReader, ReadsOneRowPerLineOrSaysWhatIsWrong) {
  for (const auto& [text, rows, format] : Cases{
           {"1,2,3\n4,5,6\n", "[1 2 3][4 5 6]"},
           {"\n 1 2 \r\n3 \t4\r\n\r\n", "[1 2][3 4]"},
           {"x,\"y\nz\"\n1,2\n", "[1 2]", kHeader},
           {"1901,1902\n1,2\n3,4\n", "[1 2][3 4]", kHeader},
           {"x,y\n\n", "data.csv: there is no row below the header", kHeader},
           {"1,2\n3\n", "data.csv:2: the row has 1 cell where line 1 has 2"},
           {"\nx\na,2\n", "[2]", {.delimiter = ',', .header = true}},
           {",x\n1,2\n", "[2]", kHeader},
           {"1,5;2\n3;4\n", "[1.5 2][3 4]"},
           {"\nx\n1,2,3\n",
            "data.csv:3: the row has 3 cells where line 2 has 1",
            {.delimiter = ',', .header = true}},
           {"1,2\n\n\n3,4\n", "data.csv:2: the line is blank"},
           {"x\n\n1\n", "data.csv:2: the line is blank", kHeader},
           {"1,,3\n", "data.csv:1: column 2: the cell is empty"},
           {",b\n1,2\n", "data.csv:1: column 2: \"b\" is not a number"},
       }) {
    EXPECT_EQ(Read(text, format), rows) << text;
  }
}

}  // namespace
}  // namespace qorvex::apps
