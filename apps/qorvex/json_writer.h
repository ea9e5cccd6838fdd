#pragma once

/// @file
/// JSON text whose numbers keep all 80 bits.

#include <concepts>
#include <optional>
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
  void BeginObject() { Open('{'); }
  void EndObject() { Close('}'); }
  void BeginArray() { Open('['); }
  void EndArray() { Close(']'); }

  /// The key of the next value.
  void Key(std::string_view key);

  /// A string; bytes that are not valid UTF-8 become U+FFFD.
  void String(std::string_view text);
  /// A string, or null for an empty one.
  void StringOrNull(std::string_view text);
  void Bool(bool value) { Raw(value ? "true" : "false"); }
  void Integer(std::integral auto value) { Raw(Int2EStr(value)); }
  /// The shortest text that is read back as the same 80-bit value; null for no value, NaN and
  /// infinities.
  void Number(std::optional<Extended> value);
  /// The exact amount, as a number with four decimals.
  void Amount(Currency amount) { Raw(Currency2EStr(amount)); }
  void Null() { Raw("null"); }

  /// The document, with a line break at the end. Leaves the writer empty.
  [[nodiscard]] std::string TakeText();

 private:
  void Open(char bracket);
  void Close(char bracket);
  void Raw(std::string_view token);
  void StartValue();
  void StartLine();

  std::string text_;
  std::size_t depth_ = 0;
  bool first_in_container_ = true;
  bool after_key_ = false;
};

}  // namespace qorvex::apps
