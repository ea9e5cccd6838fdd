#pragma once

/// @file
/// InputError, a fault in the input of a program.

#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>

namespace qorvex::apps {

/// The kind of fault. A command uses it to suggest an option.
enum class InputFault {
  kUnreadable,        ///< the file cannot be opened or read
  kMalformed,         ///< wrong quotes, ragged or endless rows, binary files
  kWrongEncoding,     ///< bytes that are not UTF-8
  kNoValues,          ///< no row, or no value in a column
  kNoSuchColumn,      ///< a column that does not exist, or whose name is ambiguous
  kTextInFirstRow,    ///< text instead of a finite number, where a header may be
  kNotANumber,        ///< text instead of a finite number or an amount
  kOtherDecimalSign,  ///< a number that is one with the other decimal sign
  kGroupedDigits,     ///< a number that may have signs between groups of digits
  kEmptyCell,         ///< no text where a number is needed
  kOutOfRange,        ///< numbers, amounts or results beyond their range
  kNoResult,          ///< no inverse, no product, or parameters outside the domain
};

/// A fault in the input. The text is "name: what" or "name:line: what".
class InputError : public std::runtime_error {
 public:
  InputError(InputFault fault, const std::string& text) : std::runtime_error(text), fault_(fault) {}
  InputError(InputFault fault, const std::string& name, const std::string& what);
  InputError(InputFault fault, const std::string& name, std::size_t line, const std::string& what);

  [[nodiscard]] InputFault Fault() const noexcept { return fault_; }

 private:
  InputFault fault_;
};

/// The text on one line: control characters become escapes (\n, \t, \x1B).
[[nodiscard]] std::string OnOneLine(std::string_view text);

/// The text on one line, cut after 40 characters.
[[nodiscard]] std::string Shortened(std::string_view text);

/// The same in double quotes.
[[nodiscard]] std::string Excerpt(std::string_view text);

}  // namespace qorvex::apps
