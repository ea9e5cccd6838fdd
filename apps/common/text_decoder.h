#pragma once

/// @file
/// Texts as UTF-8, whatever their encoding.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "apps/common/table_format.h"
#include "apps/common/text_input.h"

namespace qorvex::apps {

/// Reads a text and converts it to UTF-8, without its byte order mark.
///
/// - The encoding, if not given: UTF-16 by its byte order mark, or if most of the first bytes at
///   even, or at odd, places are NUL; otherwise the first character beyond ASCII decides between
///   UTF-8 and Latin-1.
/// - Latin-1 is Windows-1252: 0x80 to 0x9F are quotes, dashes and the sign of the euro.
/// - UTF-8 passes through without a copy, at the speed of memory.
class TextDecoder {
 public:
  TextDecoder(TextInput input, std::optional<Encoding> encoding);

  /// Reads bytes of UTF-8 into the buffer and returns how many; 0 only at the end of the text.
  /// Throws InputError (kMalformed) for NUL characters, which only binary files have, and
  /// (kWrongEncoding) for bytes that are no character. Exceptions of the input pass through.
  std::size_t Read(char* buffer, std::size_t size);

  /// The bytes that Read will return first: that many, or fewer if the text ends before. Valid
  /// until the next call of any function. Throws the same.
  [[nodiscard]] std::string_view Peek(std::size_t size);

  /// Leaves out bytes that Peek has returned.
  void Skip(std::size_t count) { taken_ += count; }

  /// The encoding of what was read so far: UTF-8 for a text of ASCII.
  [[nodiscard]] Encoding Found() const { return encoding_.value_or(Encoding::kUtf8); }

 private:
  // Follows a text of UTF-8 byte by byte.
  struct Utf8State {
    int missing = 0;
    std::uint8_t least = 0x80;
    std::uint8_t most = 0xBF;

    // Returns false for a byte that cannot follow.
    bool Accept(std::uint8_t byte);
  };

  void Start();
  [[nodiscard]] bool PassesThrough() const { return Found() == Encoding::kUtf8; }
  std::size_t ReadBytes(char* buffer, std::size_t size);
  std::size_t FillUnread(std::size_t size);
  std::size_t PassThrough(char* buffer, std::size_t size);
  std::size_t CheckBytes(const char* buffer, std::size_t size);
  void DecideBetweenUtf8AndLatin1();
  bool Convert();
  void ConvertLatin1();
  void ConvertUtf16();
  [[noreturn]] void RefuseBinary(std::size_t offset) const;
  [[noreturn]] void RefuseBytes(std::size_t offset) const;

  TextInput input_;
  std::optional<Encoding> encoding_;
  bool started_ = false;
  // Bytes of the input that are read again, and how many came before these.
  std::string unread_;
  std::size_t offset_ = 0;
  Utf8State utf8_;
  // Converted text, of which a part has been taken.
  std::string ready_;
  std::size_t taken_ = 0;
};

}  // namespace qorvex::apps
