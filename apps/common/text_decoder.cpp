#include "apps/common/text_decoder.h"

#include <algorithm>
#include <array>
#include <emmintrin.h>
#include <utility>

#include "apps/common/input_error.h"
#include "qorvex/base/text.h"

namespace qorvex::apps {

namespace {

constexpr std::size_t kBlock = std::size_t{1} << 14;
constexpr std::size_t kLongestCharacter = 4;

// What Windows-1252 has in place of the control characters from 0x80 on; 0 for none.
constexpr std::array<char16_t, 32> kWindows1252 = {
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

constexpr std::uint8_t ByteOf(char c) {
  return static_cast<std::uint8_t>(c);
}

constexpr char16_t UnitOf(std::string_view bytes, std::size_t at, bool big_endian) {
  const std::uint8_t first = ByteOf(bytes[at]);
  const std::uint8_t second = ByteOf(bytes[at + 1]);
  return static_cast<char16_t>(big_endian ? first << 8 | second : second << 8 | first);
}

void AppendUtf8(std::string& text, char32_t character) {
  const auto append = [&text](char32_t byte) { text += static_cast<char>(byte); };
  if (character < 0x80) return append(character);
  if (character < 0x800) {
    append(0xC0 | character >> 6);
  } else {
    if (character < 0x1'0000) {
      append(0xE0 | character >> 12);
    } else {
      append(0xF0 | character >> 18);
      append(0x80 | (character >> 12 & 0x3F));
    }
    append(0x80 | (character >> 6 & 0x3F));
  }
  append(0x80 | (character & 0x3F));
}

// Whether all bytes are ASCII without NUL.
bool IsPlain(const char* text, std::size_t size) {
  const __m128i one = _mm_set1_epi8(1);
  __m128i others = _mm_setzero_si128();
  std::size_t i = 0;
  for (; i + sizeof one <= size; i += sizeof one) {
    const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(text + i));
    others = _mm_or_si128(others, _mm_cmplt_epi8(bytes, one));
  }
  const auto is_plain = [](char c) { return static_cast<signed char>(c) > 0; };
  return _mm_movemask_epi8(others) == 0 && std::all_of(text + i, text + size, is_plain);
}

// The order of bytes in UTF-16 without a mark. Three quarters of the first characters or more are
// ASCII or Latin-1, and none is NUL.
std::optional<Encoding> Utf16By(std::string_view bytes) {
  if (bytes.size() < 2) return std::nullopt;
  std::size_t nuls[2] = {};
  for (std::size_t i = 0; i < bytes.size(); ++i)
    if (bytes[i] == '\0') ++nuls[i % 2];
  const std::size_t enough = (3 * bytes.size() + 7) / 8;
  if (nuls[0] == 0 && nuls[1] >= enough) return Encoding::kUtf16Le;
  if (nuls[1] == 0 && nuls[0] >= enough) return Encoding::kUtf16Be;
  return std::nullopt;
}

}  // namespace

bool TextDecoder::Utf8State::Accept(std::uint8_t byte) {
  if (missing > 0) {
    const bool accepted = byte >= least && byte <= most;
    --missing;
    least = 0x80;
    most = 0xBF;
    return accepted;
  }
  if (byte < 0x80) return true;
  if (byte < 0xC2 || byte > 0xF4) return false;
  missing = byte < 0xE0 ? 1 : byte < 0xF0 ? 2 : 3;
  // Neither longer than necessary, nor surrogates, nor beyond the last character.
  if (byte == 0xE0) least = 0xA0;
  if (byte == 0xED) most = 0x9F;
  if (byte == 0xF0) least = 0x90;
  if (byte == 0xF4) most = 0x8F;
  return true;
}

TextDecoder::TextDecoder(TextInput input, std::optional<Encoding> encoding)
    : input_(std::move(input)), encoding_(encoding) {}

std::size_t TextDecoder::Read(char* buffer, std::size_t size) {
  if (!std::exchange(started_, true)) Start();
  while (taken_ == ready_.size()) {
    ready_.clear();
    taken_ = 0;
    if (PassesThrough()) {
      const std::size_t count = PassThrough(buffer, size);
      if (count > 0 || PassesThrough()) return count;
    } else if (!Convert()) {
      return 0;
    }
  }
  const std::size_t count = ready_.copy(buffer, size, taken_);
  taken_ += count;
  return count;
}

std::string_view TextDecoder::Peek(std::size_t size) {
  std::string text(size, '\0');
  std::size_t length = 0;
  while (length < size) {
    const std::size_t count = Read(text.data() + length, size - length);
    if (count == 0) break;
    length += count;
  }
  text.resize(length);
  text.append(ready_, taken_);
  ready_ = std::move(text);
  taken_ = 0;
  return std::string_view(ready_).substr(0, size);
}

void TextDecoder::Start() {
  constexpr std::size_t looked_at = 256;
  FillUnread(looked_at);
  const std::string_view text = unread_;
  const auto skip_mark = [this](std::string_view mark) {
    if (!unread_.starts_with(mark)) return false;
    unread_.erase(0, mark.size());
    offset_ += mark.size();
    return true;
  };
  const bool may_be_utf16 =
      !encoding_ || encoding_ == Encoding::kUtf16Le || encoding_ == Encoding::kUtf16Be;
  if (may_be_utf16 && text.starts_with("\xFF\xFE")) encoding_ = Encoding::kUtf16Le;
  if (may_be_utf16 && text.starts_with("\xFE\xFF")) encoding_ = Encoding::kUtf16Be;
  if (!encoding_) encoding_ = Utf16By(text.substr(0, looked_at));
  if (encoding_ == Encoding::kUtf16Le) skip_mark("\xFF\xFE");
  if (encoding_ == Encoding::kUtf16Be) skip_mark("\xFE\xFF");
  if (PassesThrough() && skip_mark("\xEF\xBB\xBF")) encoding_ = Encoding::kUtf8;
}

// Reads bytes of the input, those before that were left first.
std::size_t TextDecoder::ReadBytes(char* buffer, std::size_t size) {
  if (unread_.empty()) return input_.read(buffer, size);
  const std::size_t count = unread_.copy(buffer, size);
  unread_.erase(0, count);
  return count;
}

// Reads until that many bytes of the input are unread, or until its end. Returns how many there
// are.
std::size_t TextDecoder::FillUnread(std::size_t size) {
  for (std::size_t length = unread_.size(); length < size;) {
    unread_.resize(size);
    const std::size_t count = input_.read(unread_.data() + length, size - length);
    unread_.resize(length += count);
    if (count == 0) break;
  }
  return unread_.size();
}

std::size_t TextDecoder::PassThrough(char* buffer, std::size_t size) {
  const std::size_t count = ReadBytes(buffer, size);
  if (count == 0 && utf8_.missing > 0) RefuseBytes(offset_);
  const bool is_plain = utf8_.missing == 0 && IsPlain(buffer, count);
  const std::size_t accepted = is_plain ? count : CheckBytes(buffer, count);
  unread_.insert(0, buffer + accepted, count - accepted);
  offset_ += accepted;
  if (accepted < count) DecideBetweenUtf8AndLatin1();
  return accepted > 0 || count == 0 || !PassesThrough() ? accepted : PassThrough(buffer, size);
}

// Returns the number of bytes before the character that decides on the encoding, or all.
std::size_t TextDecoder::CheckBytes(const char* buffer, std::size_t size) {
  constexpr std::size_t together = 16;
  for (std::size_t i = 0; i < size; ++i) {
    while (utf8_.missing == 0 && i + together < size && IsPlain(buffer + i, together))
      i += together;
    const std::uint8_t byte = ByteOf(buffer[i]);
    if (byte == 0) RefuseBinary(offset_ + i);
    if (byte >= 0x80 && !encoding_) return i;
    if (!utf8_.Accept(byte)) RefuseBytes(offset_ + i);
  }
  return size;
}

void TextDecoder::DecideBetweenUtf8AndLatin1() {
  FillUnread(kLongestCharacter);
  Utf8State state;
  std::size_t length = 0;
  bool accepted = true;
  do {
    accepted = length < unread_.size() && state.Accept(ByteOf(unread_[length]));
    ++length;
  } while (accepted && state.missing > 0);
  encoding_ = accepted ? Encoding::kUtf8 : Encoding::kLatin1;
}

// Converts a block; returns false at the end of the text.
bool TextDecoder::Convert() {
  FillUnread(kBlock);
  if (unread_.empty()) return false;
  if (Found() == Encoding::kLatin1) {
    ConvertLatin1();
  } else {
    ConvertUtf16();
  }
  return true;
}

void TextDecoder::ConvertLatin1() {
  for (std::size_t i = 0; i < unread_.size(); ++i) {
    const std::uint8_t byte = ByteOf(unread_[i]);
    if (byte == 0) RefuseBinary(offset_ + i);
    const char16_t other = byte >= 0x80 && byte < 0xA0 ? kWindows1252[byte - 0x80] : char16_t{0};
    AppendUtf8(ready_, other != 0 ? other : byte);
  }
  offset_ += unread_.size();
  unread_.clear();
}

// Leaves the first half of a character to the next block.
void TextDecoder::ConvertUtf16() {
  const bool big_endian = encoding_ == Encoding::kUtf16Be;
  const bool is_last = unread_.size() < kBlock;
  const auto is_surrogate = [](char16_t unit, char16_t first) { return (unit & 0xFC00) == first; };
  std::size_t at = 0;
  while (at + 2 <= unread_.size()) {
    const char16_t unit = UnitOf(unread_, at, big_endian);
    std::size_t length = 2;
    char32_t character = unit;
    if (unit == 0) RefuseBinary(offset_ + at);
    if (is_surrogate(unit, 0xD800)) {
      if (at + 4 > unread_.size()) break;
      const char16_t second = UnitOf(unread_, at + 2, big_endian);
      if (!is_surrogate(second, 0xDC00)) RefuseBytes(offset_ + at);
      character = 0x1'0000 + ((unit & 0x3FFU) << 10) + (second & 0x3FFU);
      length = 4;
    } else if (is_surrogate(unit, 0xDC00)) {
      RefuseBytes(offset_ + at);
    }
    AppendUtf8(ready_, character);
    at += length;
  }
  if (is_last && at < unread_.size()) RefuseBytes(offset_ + at);
  offset_ += at;
  unread_.erase(0, at);
}

void TextDecoder::RefuseBinary(std::size_t offset) const {
  throw InputError(InputFault::kMalformed, input_.name,
                   "this is a binary file, not a text: byte " + Int2EStr(offset + 1) + " is NUL");
}

void TextDecoder::RefuseBytes(std::size_t offset) const {
  throw InputError(
      PassesThrough() ? InputFault::kWrongEncoding : InputFault::kMalformed, input_.name,
      "the text is not " + std::string(NameOf(Found())) + " at byte " + Int2EStr(offset + 1));
}

}  // namespace qorvex::apps
