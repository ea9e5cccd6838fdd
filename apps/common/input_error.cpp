#include "apps/common/input_error.h"

#include "qorvex/base/text.h"

namespace qorvex::apps {

namespace {

constexpr std::size_t kLongestExcerpt = 40;

constexpr bool ContinuesCharacter(char c) {
  return (static_cast<unsigned char>(c) & 0xC0) == 0x80;
}

}  // namespace

InputError::InputError(InputFault fault, const std::string& name, const std::string& what)
    : InputError(fault, OnOneLine(name) + ": " + what) {}

InputError::InputError(InputFault fault, const std::string& name, std::size_t line,
                       const std::string& what)
    : InputError(fault, OnOneLine(name) + ':' + Int2EStr(line) + ": " + what) {}

std::string OnOneLine(std::string_view text) {
  constexpr std::string_view hexadecimal = "0123456789ABCDEF";
  std::string line;
  for (const char c : text) {
    const auto code = static_cast<unsigned char>(c);
    if (c == '\n') {
      line += "\\n";
    } else if (c == '\r') {
      line += "\\r";
    } else if (c == '\t') {
      line += "\\t";
    } else if (code < 0x20 || code == 0x7F) {
      line += "\\x";
      line += hexadecimal[code >> 4];
      line += hexadecimal[code & 15];
    } else {
      line += c;
    }
  }
  return line;
}

std::string Shortened(std::string_view text) {
  std::size_t length = 0;
  for (std::size_t characters = 0; length < text.size(); ++length)
    if (!ContinuesCharacter(text[length]) && ++characters > kLongestExcerpt) break;
  return OnOneLine(text.substr(0, length)) + (length < text.size() ? "..." : "");
}

std::string Excerpt(std::string_view text) {
  return '"' + Shortened(text) + '"';
}

}  // namespace qorvex::apps
