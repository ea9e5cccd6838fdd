#include "qorvex/controls/detail/block_text.h"

#include <gtest/gtest.h>
#include <random>
#include <utility>

namespace qorvex::inline QorvexControls::detail {
namespace {

TEST(BlockText, ReadsWhatSpreadsheetsWrite) {
  const std::pair<std::string_view, TextBlock> cases[] = {
      {"", {}},
      {"1\t2\r\n3\t4\r\n", {{"1", "2"}, {"3", "4"}}},
      {"1\t2\n3", {{"1", "2"}, {"3"}}},
      {"1\r2\r", {{"1"}, {"2"}}},
      {"1\n\r2", {{"1"}, {""}, {"2"}}},
      {"\r\n\r\n", {{""}, {""}}},
      {"1\t\n\t2", {{"1", ""}, {"", "2"}}},
      {" 1 \t1,5", {{" 1 ", "1,5"}}},
      {"\"a\tb\r\nc\"\t2\n", {{"a\tb\r\nc", "2"}}},
      {"\"say \"\"yes\"\"\"\n\"\"", {{"say \"yes\""}, {""}}},
      {"5\" tube\t\"5\" tube", {{"5\" tube", "\"5\" tube"}}},
      {"\"open\t1\n2", {{"\"open", "1"}, {"2"}}},
      {"\"\"\"\t1", {{"\"\"\"", "1"}}},
      {"\"", {{"\""}}},
  };
  for (const auto& [text, cells] : cases) EXPECT_EQ(ParseBlock(text), cells) << text;
}

TEST(BlockText, QuotesOnlyWhatNeedsIt) {
  EXPECT_EQ(FormatBlock({{"1", "", "a b"}, {"5\" tube"}}), "1\t\ta b\n5\" tube\n");
  EXPECT_EQ(FormatBlock({{"\"x", "a\tb", "c\nd\"", "e\rf"}}),
            "\"\"\"x\"\t\"a\tb\"\t\"c\nd\"\"\"\t\"e\rf\"\n");
  EXPECT_EQ(FormatBlock({{}, {"1"}}), "\n1\n");
}

TEST(BlockText, BlocksComeBack) {
  const auto seed = std::random_device{}();
  SCOPED_TRACE(seed);
  std::mt19937 engine(seed);
  for (int i = 0; i < 2000; ++i) {
    TextBlock cells(engine() % 4);
    for (auto& row : cells) {
      row.resize(1 + engine() % 4);
      for (std::string& cell : row) {
        for (auto length = engine() % 6; length > 0; --length) {
          cell += std::string_view("\"\"\t\n\ra")[engine() % 6];
        }
      }
    }
    ASSERT_EQ(ParseBlock(FormatBlock(cells)), cells) << FormatBlock(cells);
  }
}

}  // namespace
}  // namespace qorvex::inline QorvexControls::detail
