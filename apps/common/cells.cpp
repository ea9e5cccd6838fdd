#include "apps/common/cells.h"

#include <algorithm>
#include <cmath>

#include "qorvex/base/currency_text.h"
#include "qorvex/base/errors.h"
#include "qorvex/base/text.h"

namespace qorvex::apps {

namespace {

[[noreturn]] void FailAt(const CellPlace& place, InputFault fault, const std::string& what) {
  throw InputError(fault, place.input, place.line,
                   ColumnTitle(place.column, place.column_name) + ": " + what);
}

[[noreturn]] void RefuseAmount(std::string_view cell, const CellPlace& place, char decimal_sign) {
  const bool is_number = FindNumber(cell, decimal_sign).has_value();
  FailAt(place, is_number ? InputFault::kOutOfRange : InputFault::kNotANumber,
         Excerpt(cell) + " is not an amount: digits with at most four decimals");
}

// Whether Str2Currency would read the cell, if it is a number, without rounding.
bool IsWrittenAsAmount(std::string_view cell) {
  if (cell.find_first_of("eE") != std::string_view::npos) return false;
  const std::size_t point = cell.find('.');
  return point == std::string_view::npos ||
         cell.find_last_of("0123456789") <= point + Currency::kDecimals;
}

// Most texts are known by their first character, without the cost of an exception.
bool MayBeNumber(std::string_view text) {
  constexpr std::string_view starts = "0123456789.iInN";
  const std::size_t start = text.find_first_not_of(" \t+-");
  return start != text.npos && starts.find(text[start]) != starts.npos;
}

}  // namespace

std::string_view WithDecimalPoint(std::string_view cell, std::string& buffer) {
  buffer.assign(cell);
  for (char& c : buffer) c = c == ',' ? '.' : c == '.' ? ',' : c;
  buffer.resize(cell.size() + RowScanner::kReadableBehind);
  return std::string_view(buffer).substr(0, cell.size());
}

bool IsNumber(std::string_view text, char decimal_sign) {
  std::string buffer;
  if (decimal_sign == ',') text = WithDecimalPoint(text, buffer);
  if (!MayBeNumber(text)) return false;
  try {
    static_cast<void>(Str2Float(text));
  } catch (const EConvertError& error) {
    return error.message_id() == rsNumberTooLarge;
  }
  return true;
}

std::optional<Extended> FindNumber(std::string_view cell, char decimal_sign) {
  std::string buffer;
  if (decimal_sign == ',') cell = WithDecimalPoint(cell, buffer);
  if (!MayBeNumber(cell)) return std::nullopt;
  try {
    const Extended value = Str2Float(cell);
    if (std::isfinite(value)) return value;
  } catch (const EConvertError&) {
  }
  return std::nullopt;
}

bool IsText(std::string_view cell, char decimal_sign) {
  return !cell.empty() && !IsNumber(cell, decimal_sign);
}

bool MayHaveGroups(std::string_view text, char group_sign) {
  constexpr std::string_view digits = "0123456789";
  text.remove_prefix(std::min(text.find_first_not_of(" \t+-"), text.size()));
  std::size_t length = std::min(text.find_first_not_of(digits), text.size());
  if (length < 1 || length > 3 || length == text.size() || text[length] != group_sign) return false;
  while (length < text.size() && text[length] == group_sign) {
    text.remove_prefix(length + 1);
    length = std::min(text.find_first_not_of(digits), text.size());
    if (length != 3) return false;
  }
  const std::string_view decimals = text.substr(length);
  return decimals.empty() || (decimals[0] == (group_sign == ',' ? '.' : ',') &&
                              decimals.find_first_not_of(digits, 1) == decimals.npos);
}

std::string ColumnTitle(std::size_t number, std::string_view name) {
  std::string title = "column " + Int2EStr(number);
  if (!name.empty()) title += " (" + Shortened(name) + ')';
  return title;
}

std::string Cardinal(std::size_t count, const char* noun) {
  return Int2EStr(count) + ' ' + noun + (count == 1 ? "" : "s");
}

Extended NumberIn(std::string_view cell, const CellPlace& place, char decimal_sign) {
  if (cell.empty()) RefuseEmptyCell(place);
  std::string buffer;
  Extended value = 0;
  try {
    value = Str2Float(decimal_sign == ',' ? WithDecimalPoint(cell, buffer) : cell);
  } catch (const EConvertError& error) {
    if (error.message_id() == rsNumberTooLarge) {
      FailAt(place, InputFault::kOutOfRange,
             Excerpt(cell) + " is beyond the range of extended precision");
    }
    const char other_sign = decimal_sign == ',' ? '.' : ',';
    if (MayHaveGroups(cell, other_sign))
      FailAt(place, InputFault::kGroupedDigits,
             Excerpt(cell) + " may have groups of digits, which are not read");
    const bool is_other = FindNumber(cell, other_sign).has_value();
    FailAt(place, is_other ? InputFault::kOtherDecimalSign : InputFault::kNotANumber,
           Excerpt(cell) + " is not a number");
  }
  if (!std::isfinite(value)) {
    FailAt(place, InputFault::kNotANumber, Excerpt(cell) + " is not a finite number");
  }
  return value;
}

Currency AmountIn(std::string_view cell, const CellPlace& place, char decimal_sign) {
  if (cell.empty()) RefuseEmptyCell(place);
  std::string buffer;
  const std::string_view text = decimal_sign == ',' ? WithDecimalPoint(cell, buffer) : cell;
  if (!IsWrittenAsAmount(text)) RefuseAmount(cell, place, decimal_sign);
  try {
    return Str2Currency(text);
  } catch (const EConvertError& error) {
    if (error.message_id() != rsNumberTooLarge) RefuseAmount(cell, place, decimal_sign);
  }
  FailAt(place, InputFault::kOutOfRange, Excerpt(cell) + " is beyond the range of amounts");
}

void RefuseEmptyCell(const CellPlace& place) {
  FailAt(place, InputFault::kEmptyCell, "the cell is empty");
}

void RequireFirstRow(RowReader& rows) {
  if (rows.Next()) return;
  throw InputError(InputFault::kNoValues, rows.Name(), "there is nothing to read");
}

void RequireWidth(const RowScanner& rows, std::size_t width, std::size_t first_line) {
  const std::size_t cells = rows.Cells().size();
  if (cells == width) return;
  throw InputError(InputFault::kMalformed, rows.Name(), rows.Line(),
                   "the row has " + Cardinal(cells, "cell") + " where line " +
                       Int2EStr(first_line) + " has " + Int2EStr(width));
}

}  // namespace qorvex::apps
