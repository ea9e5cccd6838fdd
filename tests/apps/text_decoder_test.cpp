#include "apps/common/text_decoder.h"

#include <gtest/gtest.h>

#include "apps/text_source.h"

namespace qorvex::apps {
namespace {

using namespace std::string_literals;

// The encoding and the text in UTF-8, or the error.
std::string Decoded(const std::string& text, std::optional<Encoding> encoding, std::size_t block) {
  TextDecoder decoder(SourceOf(text), encoding);
  return ResultOrError([&] {
    std::string decoded;
    std::string buffer(block, '\0');
    if (block % 2 == 0) static_cast<void>(decoder.Peek(block));
    while (const std::size_t count = decoder.Read(buffer.data(), block))
      decoded.append(buffer, 0, count);
    return NameOf(decoder.Found()) + ": "s + decoded;
  });
}

TEST(TextDecoder, FindsTheEncodingOrSaysWhatIsWrong) {
  const std::string ascii(40, 'a');
  for (const auto& [text, decoded, encoding] :
       std::initializer_list<ReadingCase<std::optional<Encoding>>>{
           {"", "UTF-8: "},
           {"ab", "UTF-8: ab"},
           {"\xEF\xBB\xBFx\u00E9\u20AC\U0001F600", "UTF-8: x\u00E9\u20AC\U0001F600"},
           {ascii + "\u20AC" + ascii + "\u00E9", "UTF-8: " + ascii + "\u20AC" + ascii + "\u00E9"},
           {"K\xF6ln \x80", "Latin-1: K\u00F6ln \u20AC"},
           {ascii + "\xE9", "Latin-1: " + ascii + "\u00E9"},
           {"\u00E9", "Latin-1: \u00C3\u00A9", Encoding::kLatin1},
           {"\xFF\xFE\x61\0\xAC\x20\x3D\xD8\0\xDE"s, "UTF-16: a\u20AC\U0001F600"},
           {"\xFE\xFF\0\x61\x20\xAC"s, "UTF-16: a\u20AC"},
           {"a\0,\0\xAC\x20\n\0"s, "UTF-16: a,\u20AC\n"},
           {"\0a\0,"s, "UTF-16: a,"},
           {"\x61\x62", "UTF-16: \u6261", Encoding::kUtf16Le},
           {"a\0b\n"s, "data.csv: this is a binary file, not a text: byte 2 is NUL"},
           {"ab\0cd,ef"s, "data.csv: this is a binary file, not a text: byte 3 is NUL"},
           {"\xE9\0\0\0"s, "data.csv: this is a binary file, not a text: byte 2 is NUL"},
           {"\u00E9 \xE9 ", "data.csv: the text is not UTF-8 at byte 5"},
           {"\u00E9\xE2\x82", "data.csv: the text is not UTF-8 at byte 5"},
           {"\xC0\x80", "data.csv: the text is not UTF-8 at byte 1", Encoding::kUtf8},
           {"\xFF\xFE\x61", "data.csv: the text is not UTF-16 at byte 3"},
           {"\xFF\xFE\x3D\xD8\x61\0"s, "data.csv: the text is not UTF-16 at byte 3"},
           {"\xFF\xFE\0\xDE"s, "data.csv: the text is not UTF-16 at byte 3"},
       }) {
    for (std::size_t block = 1; block < text.size() + 4; ++block)
      EXPECT_EQ(Decoded(text, encoding, block), decoded) << "blocks of " << block;
  }
}

}  // namespace
}  // namespace qorvex::apps
