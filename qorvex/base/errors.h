#pragma once

/// @file
/// The exceptions of the library.
///
/// `Exception` <- `EMathError` <- `EZeroDivide`, `EInvalidOp`, `EOverflow`, and `Exception` <-
/// `EConvertError` for text that is no number. Running out of memory stays std::bad_alloc.

#include <stdexcept>
#include <string>
#include <string_view>

#include "qorvex/base/Qorvex_rs_math.h"
#include "qorvex/base/export.h"

namespace qorvex {

/// The root of the library's exceptions.
class QORVEX_EXPORT Exception : public std::runtime_error {
 public:
  ~Exception() override;
  /// The message that was raised, so that a program can branch without comparing texts.
  [[nodiscard]] MessageId message_id() const noexcept { return id_; }

 protected:
  /// The text is what() gives.
  Exception(MessageId id, const std::string& text) : std::runtime_error(text), id_(id) {}

 private:
  MessageId id_;
};

/// Input that a routine rejects. The text is the message's current text at the moment of the raise.
class QORVEX_EXPORT EMathError : public Exception {
 public:
  /// Takes the message's current text.
  explicit EMathError(MessageId id) : Exception(id, MessageText(id)) {}
  ~EMathError() override;
};

/// Division of a non-zero value by zero, or the logarithm of zero.
class QORVEX_EXPORT EZeroDivide : public EMathError {
 public:
  EZeroDivide() : EMathError(rsZeroDivide) {}
  ~EZeroDivide() override;
};

/// An operation without a value, such as 0/0 or the square root of a negative number.
class QORVEX_EXPORT EInvalidOp : public EMathError {
 public:
  EInvalidOp() : EMathError(rsInvalidOp) {}
  ~EInvalidOp() override;
};

/// Finite operands whose result is beyond the extended range.
class QORVEX_EXPORT EOverflow : public EMathError {
 public:
  EOverflow() : EMathError(rsOverflow) {}
  ~EOverflow() override;
};

/// Text that does not convert. The message names the text.
class QORVEX_EXPORT EConvertError : public Exception {
 public:
  /// offending replaces %1 in the message; long texts are cut.
  EConvertError(MessageId id, std::string_view offending);
  ~EConvertError() override;
};

/// Raises EMathError with the current text of a message; out of line, so that checks stay small.
[[noreturn]] QORVEX_EXPORT void RaiseMathError(MessageId id);

}  // namespace qorvex
