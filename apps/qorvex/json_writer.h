#pragma once

/// @file
/// JSON text whose numbers keep all 80 bits.

#include <concepts>
#include <optional>
#include <rapidjson/prettywriter.h>
#include <rapidjson/stringbuffer.h>
#include <span>
#include <string>
#include <string_view>

#include "qorvex/base/currency_text.h"
#include "qorvex/base/element_types.h"
#include "qorvex/base/text.h"

namespace qorvex::apps {

/// Writes one JSON document (RFC 8259), indented by two spaces. The caller is responsible for the
/// order of calls: in an object, a key before each value.
class JsonWriter {
 public:
  JsonWriter() { writer_.SetIndent(' ', 2); }

  void BeginObject() { writer_.StartObject(); }
  void EndObject() { writer_.EndObject(); }
  void BeginArray() { writer_.StartArray(); }
  void EndArray() { writer_.EndArray(); }

  /// The key of the next value.
  void Key(std::string_view key) { String(key); }

  /// A string; bytes that are not valid UTF-8 become U+FFFD.
  void String(std::string_view text);
  /// A string, or null for an empty one.
  void StringOrNull(std::string_view text);
  void Bool(bool value) { writer_.Bool(value); }
  void Integer(std::integral auto value) { Number(Int2EStr(value)); }
  /// The shortest text that is read back as the same 80-bit value; null for no value, NaN and
  /// infinities.
  void Number(std::optional<Extended> value);
  /// An array of such numbers on one line.
  void Numbers(std::span<const Extended> values);
  /// The exact amount, as a number with four decimals.
  void Amount(Currency amount) { Number(Currency2EStr(amount)); }
  void Null() { writer_.Null(); }

  /// The document, with a line break at the end. Nothing can be written after that.
  [[nodiscard]] std::string TakeText();

 private:
  void Number(const std::string& text) {
    writer_.RawValue(text.data(), text.size(), rapidjson::kNumberType);
  }

  rapidjson::StringBuffer text_;
  rapidjson::PrettyWriter<rapidjson::StringBuffer> writer_{text_};
};

}  // namespace qorvex::apps
