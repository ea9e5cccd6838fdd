#pragma once

/// @file
/// What is wrong with the text that a program was given.

#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>

namespace qorvex::apps {

/// The kind of fault, so that a command can say which of its options helps.
enum class InputFault {
  kUnreadable,      ///< the file cannot be opened or read
  kMalformed,       ///< quotes, ragged rows, rows without end, another encoding
  kNoValues,        ///< no row, or no value in a column
  kNoSuchColumn,    ///< a column that is not there, or whose name is not unique
  kTextInFirstRow,  ///< text where a finite number belongs and a header may stand
  kNotANumber,      ///< text where a finite number or an amount belongs
  kEmptyCell,       ///< nothing where a number belongs
  kOutOfRange,      ///< numbers or amounts beyond their range, or whose results are
  kNoResult,        ///< no inverse, no product, or parameters that a distribution refuses
};

/// A fault of the input. The text reads "name: what" or "name:line: what".
class InputError : public std::runtime_error {
 public:
  InputError(InputFault fault, const std::string& text) : std::runtime_error(text), fault_(fault) {}
  InputError(InputFault fault, const std::string& name, const std::string& what);
  InputError(InputFault fault, const std::string& name, std::size_t line, const std::string& what);

  [[nodiscard]] InputFault Fault() const noexcept { return fault_; }

 private:
  InputFault fault_;
};

/// The text on one line: control characters become escapes (\n, \t, \x1B), everything else stays.
[[nodiscard]] std::string OnOneLine(std::string_view text);

/// The text in double quotes, on one line, cut after 40 bytes.
[[nodiscard]] std::string Excerpt(std::string_view text);

}  // namespace qorvex::apps
