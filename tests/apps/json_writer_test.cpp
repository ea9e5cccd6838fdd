#include "apps/qorvex/json_writer.h"

#include <gtest/gtest.h>
#include <limits>

namespace qorvex::apps {

TEST(JsonWriter, NestsValuesAndKeepsTheirBits) {
  using Limits = std::numeric_limits<Extended>;
  JsonWriter json;
  json.BeginObject();
  json.Key("\"\n");
  json.BeginArray();
  json.BeginObject();
  json.EndObject();
  json.Integer(-7);
  for (const Extended value : {0.1L, 1.0L + 0x1p-63L, Limits::max()}) json.Number(value);
  for (const Extended value : {Limits::quiet_NaN(), -Limits::infinity()}) json.Number(value);
  json.Number(std::nullopt);
  json.EndArray();
  json.Key("ok");
  json.Bool(true);
  json.EndObject();
  EXPECT_EQ(json.TakeText(), R"({
  "\"\n": [
    {},
    -7,
    0.1,
    1.0000000000000000001,
    1.189731495357231765e+4932,
    null,
    null,
    null
  ],
  "ok": true
}
)");
}

TEST(JsonWriter, EscapesStringsAndReplacesInvalidUtf8) {
  const auto expect = [](std::string_view text, const std::string& written) {
    JsonWriter json;
    json.String(text);
    EXPECT_EQ(json.TakeText(), '"' + written + "\"\n");
  };
  expect("a \"b\" \\ \n\r\t\x01\x7F/", R"(a \"b\" \\ \n\r\t\u0001\u007f/)");
  expect({"\0", 1}, "\\u0000");
  // The first and last characters of each length, and the neighbours of the surrogates.
  const std::string valid = "\u007E\u0080\u07FF\u0800\uD7FF\uE000\uFFFF\U00010000\U0010FFFF";
  expect(valid, valid);
  // Single bytes, truncated, overlong, a surrogate, beyond the last character.
  for (const char* invalid : {"\xE9", "\x80", "\xC3", "\xE2\x82", "\xC1\xBF", "\xE0\x9F\xBF",
                              "\xF0\x8F\xBF\xBF", "\xED\xA0\x80", "\xF4\x90\x80\x80"}) {
    std::string marks;
    for (const char* at = invalid; *at != '\0'; ++at) marks += "\uFFFD";
    expect(invalid, marks);
    expect(std::string("caf") + invalid + "(", "caf" + marks + '(');
  }
}

}  // namespace qorvex::apps
