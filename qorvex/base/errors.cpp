#include "qorvex/base/errors.h"

#include <cstddef>

namespace qorvex {

namespace {

constexpr std::size_t kLongestOffendingText = 60;

constexpr bool IsUtf8Continuation(char c) {
  return (static_cast<unsigned char>(c) & 0xC0) == 0x80;
}

std::string TextWith(MessageId id, std::string_view offending) {
  std::string shown(offending);
  if (offending.size() > kLongestOffendingText) {
    std::size_t end = kLongestOffendingText;
    while (end > 0 && IsUtf8Continuation(offending[end])) --end;
    shown.replace(end, std::string::npos, "...");
  }
  std::string text = MessageText(id);
  constexpr std::string_view placeholder = "%1";
  if (const std::size_t at = text.find(placeholder); at != std::string::npos) {
    text.replace(at, placeholder.size(), shown);
  }
  return text;
}

}  // namespace

// The destructors are defined here so that each type has one home for its type information across
// modules.
Exception::~Exception() = default;
EMathError::~EMathError() = default;
EZeroDivide::~EZeroDivide() = default;
EInvalidOp::~EInvalidOp() = default;
EOverflow::~EOverflow() = default;
EConvertError::~EConvertError() = default;

EConvertError::EConvertError(MessageId id, std::string_view offending)
    : Exception(id, TextWith(id, offending)) {}

void RaiseMathError(MessageId id) {
  throw EMathError(id);
}

}  // namespace qorvex
