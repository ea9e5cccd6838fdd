#include "apps/qorvex/json_writer.h"

#include <cmath>
#include <rapidjson/encodings.h>
#include <rapidjson/memorystream.h>

namespace qorvex::apps {

void JsonWriter::String(std::string_view text) {
  rapidjson::StringBuffer valid;
  while (!text.empty()) {
    rapidjson::MemoryStream bytes(text.data(), text.size());
    unsigned character = 0;
    const bool is_valid = rapidjson::UTF8<>::Decode(bytes, &character);
    rapidjson::UTF8<>::Encode(valid, is_valid ? character : 0xFFFD);
    text.remove_prefix(is_valid ? bytes.Tell() : 1);
  }
  writer_.String(valid.GetString(), static_cast<rapidjson::SizeType>(valid.GetSize()));
}

void JsonWriter::StringOrNull(std::string_view text) {
  text.empty() ? Null() : String(text);
}

void JsonWriter::Number(std::optional<Extended> value) {
  if (value && std::isfinite(*value)) {
    Number(Float2Str(*value));
  } else {
    Null();
  }
}

void JsonWriter::Numbers(std::span<const Extended> values) {
  BeginArray();
  writer_.SetFormatOptions(rapidjson::kFormatSingleLineArray);
  for (const Extended value : values) Number(value);
  EndArray();
  writer_.SetFormatOptions(rapidjson::kFormatDefault);
}

std::string JsonWriter::TakeText() {
  return std::string(text_.GetString(), text_.GetSize()) + '\n';
}

}  // namespace qorvex::apps
