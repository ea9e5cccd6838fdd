#pragma once

/// @file
/// The exceptions of the library.
///
/// `Exception` <- `EMathError` <- `EZeroDivide`, `EInvalidOp`, `EOverflow`, and `Exception` <-
/// `EConvertError` for text that cannot be converted. Running out of memory raises std::bad_alloc.

#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>

#include "qorvex/base/Qorvex_rs_math.h"
#include "qorvex/base/export.h"

namespace qorvex {

/// The base class of the library's exceptions.
class QORVEX_EXPORT Exception : public std::runtime_error {
 public:
  ~Exception() override;
  /// Identifies the message, so that a program need not compare texts.
  [[nodiscard]] MessageId message_id() const noexcept { return id_; }

 protected:
  /// what() returns the text.
  Exception(MessageId id, const std::string& text) : std::runtime_error(text), id_(id) {}

 private:
  MessageId id_;
};

/// Raised for input that a routine rejects, with the text that the message has at that moment.
/// Applications may raise it, or a class of their own derived from it, with a text of their own.
class QORVEX_EXPORT EMathError : public Exception {
 public:
  /// Uses the current text of one of the library's messages.
  explicit EMathError(MessageId id) : Exception(id, MessageText(id)) {}
  /// Uses the given text. The identifier is one of the library's, or one of the application's own:
  /// rsApplication or a larger value.
  EMathError(MessageId id, const std::string& text) : Exception(id, text) {}
  /// Uses the given text with the identifier rsApplication.
  explicit EMathError(const std::string& text) : Exception(rsApplication, text) {}
  ~EMathError() override;
};

/// Raised for the division of a non-zero value by zero, for the logarithm of zero, and for every
/// division of an amount by zero.
class QORVEX_EXPORT EZeroDivide : public EMathError {
 public:
  using EMathError::EMathError;
  /// Uses the current text of rsZeroDivide.
  EZeroDivide() : EMathError(rsZeroDivide) {}
  ~EZeroDivide() override;
};

/// Raised for an operation without a defined result, such as 0 / 0 or the square root of a negative
/// number.
class QORVEX_EXPORT EInvalidOp : public EMathError {
 public:
  using EMathError::EMathError;
  /// Uses the current text of rsInvalidOp.
  EInvalidOp() : EMathError(rsInvalidOp) {}
  ~EInvalidOp() override;
};

/// Raised if finite operands give a result beyond the extended range, or an amount beyond the range
/// of its type.
class QORVEX_EXPORT EOverflow : public EMathError {
 public:
  using EMathError::EMathError;
  /// Uses the current text of rsOverflow.
  EOverflow() : EMathError(rsOverflow) {}
  ~EOverflow() override;
};

/// Raised for text that cannot be converted. The message quotes the text.
class QORVEX_EXPORT EConvertError : public Exception {
 public:
  /// The rejected text replaces %1 in the message; long texts are shortened.
  EConvertError(MessageId id, std::string_view rejected);
  /// Also gives the position of the rejected text in a longer one: the number of its first
  /// character, from 1.
  EConvertError(MessageId id, std::string_view rejected, std::size_t position);
  ~EConvertError() override;
};

/// Raises EMathError with the current text of a message. Out of line, so that checks stay small.
[[noreturn]] QORVEX_EXPORT void RaiseMathError(MessageId id);

}  // namespace qorvex
