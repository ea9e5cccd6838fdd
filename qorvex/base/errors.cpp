#include "qorvex/base/errors.h"

namespace qorvex {

namespace {

constexpr std::size_t kLongestQuotedText = 60;

constexpr bool IsUtf8Continuation(char c) {
  return (static_cast<unsigned char>(c) & 0xC0) == 0x80;
}

void Replace(std::string& text, std::string_view placeholder, std::string_view value) {
  if (const std::size_t at = text.find(placeholder); at != std::string::npos) {
    text.replace(at, placeholder.size(), value);
  }
}

std::string TextWith(MessageId id, std::string_view rejected) {
  std::string shown(rejected);
  if (rejected.size() > kLongestQuotedText) {
    std::size_t end = kLongestQuotedText;
    while (end > 0 && IsUtf8Continuation(rejected[end])) --end;
    shown.replace(end, std::string::npos, "...");
  }
  std::string text = MessageText(id);
  Replace(text, "%1", shown);
  return text;
}

std::string TextAt(std::size_t position, std::string_view message) {
  std::string text = MessageText(rsAtCharacter);
  Replace(text, "%2", std::to_string(position));
  Replace(text, "%1", message);
  return text;
}

}  // namespace

// The destructors are defined here so that the type information of each class is emitted in this
// library only.
Exception::~Exception() = default;
EMathError::~EMathError() = default;
EZeroDivide::~EZeroDivide() = default;
EInvalidOp::~EInvalidOp() = default;
EOverflow::~EOverflow() = default;
EConvertError::~EConvertError() = default;

EConvertError::EConvertError(MessageId id, std::string_view rejected)
    : Exception(id, TextWith(id, rejected)) {}

EConvertError::EConvertError(MessageId id, std::string_view rejected, std::size_t position)
    : Exception(id, TextAt(position, TextWith(id, rejected))) {}

void RaiseMathError(MessageId id) {
  throw EMathError(id);
}

}  // namespace qorvex
