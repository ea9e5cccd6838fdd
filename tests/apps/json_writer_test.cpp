#include "apps/qorvex/json_writer.h"

#include <gtest/gtest.h>
#include <limits>
#include <string>

namespace qorvex::cli {
namespace {

std::string JsonString(std::string_view text) {
  JsonWriter json;
  json.String(text);
  return json.TakeText();
}

std::string JsonNumber(std::optional<Extended> value) {
  JsonWriter json;
  json.Number(value);
  return json.TakeText();
}

TEST(JsonWriter, NestsObjectsAndArrays) {
  JsonWriter json;
  json.BeginObject();
  json.Key("empty");
  json.BeginArray();
  json.EndArray();
  json.Key("rows");
  json.BeginArray();
  json.BeginObject();
  json.EndObject();
  json.Integer(-7);
  json.EndArray();
  json.Key("ok");
  json.Bool(true);
  json.Key("none");
  json.Null();
  json.EndObject();
  EXPECT_EQ(json.TakeText(), R"({
  "empty": [],
  "rows": [
    {},
    -7
  ],
  "ok": true,
  "none": null
}
)");
}

TEST(JsonWriter, WritesNumbersThatKeepAllBits) {
  EXPECT_EQ(JsonNumber(0.1L), "0.1\n");
  EXPECT_EQ(JsonNumber(1.0L + 0x1p-63L), "1.0000000000000000001\n");
  EXPECT_EQ(JsonNumber(std::numeric_limits<Extended>::max()), "1.189731495357231765e+4932\n");
  EXPECT_EQ(JsonNumber(std::numeric_limits<Extended>::quiet_NaN()), "null\n");
  EXPECT_EQ(JsonNumber(-std::numeric_limits<Extended>::infinity()), "null\n");
  EXPECT_EQ(JsonNumber(std::nullopt), "null\n");
}

TEST(JsonWriter, EscapesStrings) {
  EXPECT_EQ(JsonString("a \"b\" \\ \n\r\t\x01\x7F/"),
            "\"a \\\"b\\\" \\\\ \\n\\r\\t\\u0001\\u007f/\"\n");
  EXPECT_EQ(JsonString(std::string_view("\0", 1)), "\"\\u0000\"\n");
}

TEST(JsonWriter, ReplacesWhatIsNotUtf8) {
  // The first and last characters of each length, and both neighbours of the surrogates.
  const std::string valid = "\u007E\u0080\u07FF\u0800\uD7FF\uE000\uFFFF\U00010000\U0010FFFF";
  EXPECT_EQ(JsonString(valid), '"' + valid + "\"\n");
  const std::string mark = "\uFFFD";
  EXPECT_EQ(JsonString("caf\xE9"), "\"caf" + mark + "\"\n");
  EXPECT_EQ(JsonString("\xC1\xBF"), '"' + mark + mark + "\"\n");             // overlong
  EXPECT_EQ(JsonString("\xE0\x9F\xBF"), '"' + mark + mark + mark + "\"\n");  // overlong
  EXPECT_EQ(JsonString("\xED\xA0\x80"), '"' + mark + mark + mark + "\"\n");  // surrogate
  EXPECT_EQ(JsonString("\xF4\x90\x80\x80"),
            '"' + mark + mark + mark + mark + "\"\n");            // beyond the last
  EXPECT_EQ(JsonString("\xE2\x82"), '"' + mark + mark + "\"\n");  // cut off
}

}  // namespace
}  // namespace qorvex::cli
