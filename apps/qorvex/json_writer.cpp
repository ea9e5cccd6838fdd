#include "apps/qorvex/json_writer.h"

#include <cmath>
#include <utility>

namespace qorvex::apps {

namespace {

// The length of the UTF-8 character at the start of the text (Unicode Standard, table 3-7), or 0 if
// the text does not start with one.
std::size_t CharacterLength(std::string_view text) {
  const auto byte = [&](std::size_t i) {
    return i < text.size() ? static_cast<unsigned char>(text[i]) : 0U;
  };
  const auto continues = [&](std::size_t i) { return (byte(i) & 0xC0) == 0x80; };
  const unsigned lead = byte(0);
  if (lead < 0x80) return 1;
  if (lead >= 0xC2 && lead <= 0xDF) return continues(1) ? 2 : 0;
  if (lead >= 0xE0 && lead <= 0xEF) {
    const bool overlong = lead == 0xE0 && byte(1) < 0xA0;
    const bool surrogate = lead == 0xED && byte(1) > 0x9F;
    return continues(1) && continues(2) && !overlong && !surrogate ? 3 : 0;
  }
  if (lead >= 0xF0 && lead <= 0xF4) {
    const bool overlong = lead == 0xF0 && byte(1) < 0x90;
    const bool too_large = lead == 0xF4 && byte(1) > 0x8F;
    return continues(1) && continues(2) && continues(3) && !overlong && !too_large ? 4 : 0;
  }
  return 0;
}

void AppendEscaped(std::string& out, char c) {
  constexpr std::string_view hexadecimal = "0123456789abcdef";
  const auto code = static_cast<unsigned char>(c);
  if (c == '"' || c == '\\') {
    out += '\\';
    out += c;
  } else if (c == '\n') {
    out += "\\n";
  } else if (c == '\r') {
    out += "\\r";
  } else if (c == '\t') {
    out += "\\t";
  } else if (code < 0x20 || code == 0x7F) {
    out += "\\u00";
    out += hexadecimal[code >> 4];
    out += hexadecimal[code & 15];
  } else {
    out += c;
  }
}

std::string Quoted(std::string_view text) {
  std::string quoted = "\"";
  while (!text.empty()) {
    const std::size_t length = CharacterLength(text);
    if (length == 0) {
      quoted += "\uFFFD";
      text.remove_prefix(1);
    } else if (length == 1) {
      AppendEscaped(quoted, text[0]);
      text.remove_prefix(1);
    } else {
      quoted += text.substr(0, length);
      text.remove_prefix(length);
    }
  }
  return quoted + '"';
}

}  // namespace

void JsonWriter::Key(std::string_view key) {
  StartValue();
  text_ += Quoted(key) + ": ";
  after_key_ = true;
}

void JsonWriter::String(std::string_view text) {
  Raw(Quoted(text));
}

void JsonWriter::StringOrNull(std::string_view text) {
  text.empty() ? Null() : String(text);
}

void JsonWriter::Number(std::optional<Extended> value) {
  if (value && std::isfinite(*value)) {
    Raw(Float2Str(*value));
  } else {
    Null();
  }
}

std::string JsonWriter::TakeText() {
  return std::exchange(*this, JsonWriter()).text_ + '\n';
}

void JsonWriter::Open(char bracket) {
  StartValue();
  text_ += bracket;
  ++depth_;
  first_in_container_ = true;
}

void JsonWriter::Close(char bracket) {
  --depth_;
  if (!first_in_container_) StartLine();
  text_ += bracket;
  first_in_container_ = false;
}

void JsonWriter::Raw(std::string_view token) {
  StartValue();
  text_ += token;
}

// Writes what precedes a value or a key: nothing after a key, otherwise comma and line break.
void JsonWriter::StartValue() {
  if (std::exchange(after_key_, false)) return;
  if (!first_in_container_) text_ += ',';
  if (depth_ != 0) StartLine();
  first_in_container_ = false;
}

void JsonWriter::StartLine() {
  text_ += '\n';
  text_.append(2 * depth_, ' ');
}

}  // namespace qorvex::apps
