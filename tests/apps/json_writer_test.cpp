#include "apps/qorvex/json_writer.h"

#include "support/test.h"

namespace qorvex::apps {

// The page about the command line has a whole document.
TEST(JsonWriter, WritesNullForNumbersThatAreNotFinite) {
  for (const Extended number : {kNaN, kInfinity, -kInfinity}) {
    JsonWriter json;
    json.Number(number);
    EXPECT_EQ(json.TakeText(), "null\n");
  }
}

TEST(JsonWriter, EscapesStringsAndReplacesInvalidUtf8) {
  const auto expect = [](std::string_view text, const std::string& written) {
    JsonWriter json;
    json.String(text);
    EXPECT_EQ(json.TakeText(), '"' + written + "\"\n");
  };
  expect("a \"b\" \\ \n\r\t\x01/", R"(a \"b\" \\ \n\r\t\u0001/)");
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
