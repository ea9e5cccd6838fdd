#include "apps/common/format_finder.h"

#include <algorithm>
#include <string>
#include <vector>

#include "apps/common/cells.h"
#include "apps/common/input_error.h"
#include "apps/common/row_scanner.h"

namespace qorvex::apps {

namespace {

using Row = std::vector<std::string>;

constexpr std::size_t kMostRows = 1000;

// The first rows of a text as a delimiter divides them.
struct Division {
  RowSyntax syntax = {};
  char decimal_sign = '.';
  std::vector<Row> rows = {};
  // Of the last row.
  bool starts_with_quotes = false;
  bool is_faulty = false;
  bool is_even = false;
  bool first_row_is_short = false;
  // Below the first row, if there are any.
  std::size_t cells = 0;
  std::size_t texts = 0;

  [[nodiscard]] bool IsPerfect() const { return is_even && texts == 0; }
  // Rows of the same length are better than a short header, and that is better than other rows.
  [[nodiscard]] int Grade() const { return is_even ? 0 : first_row_is_short ? 1 : 2; }
  [[nodiscard]] bool IsBetterThan(const Division& other) const {
    // Blanks are also between the words of a cell. They delimit if nothing but numbers is left.
    if (syntax.delimiter == ' ' && !(IsPerfect() && rows[0].size() > 1 && other.texts > 0))
      return false;
    if (Grade() != other.Grade()) return Grade() < other.Grade();
    return texts * other.cells < other.texts * cells;
  }
};

// Thrown where a sample ends within the text.
struct SampleEnded {};

TextInput SourceOf(std::string_view sample, bool is_whole) {
  return {"", [sample, is_whole](char* buffer, std::size_t size) mutable {
            if (sample.empty() && !is_whole) throw SampleEnded();
            const std::size_t count = sample.copy(buffer, size);
            sample.remove_prefix(count);
            return count;
          }};
}

// Returns whether there is no fault.
bool ReadRows(std::string_view sample, bool is_whole, Division& division) {
  // The first block takes the whole sample, before its end is noticed.
  RowScanner rows(SourceOf(sample, is_whole), division.syntax, sample.size() + 1);
  try {
    while (division.rows.size() < kMostRows && rows.Next()) {
      division.rows.emplace_back(rows.Cells().begin(), rows.Cells().end());
      division.starts_with_quotes = rows.StartsWithQuotes();
    }
  } catch (const InputError&) {
    return false;
  } catch (SampleEnded) {
  }
  return true;
}

// With backslashes if there is a fault without them only.
Division RowsOf(std::string_view sample, bool is_whole, char delimiter) {
  Division division{.syntax = {.delimiter = delimiter}};
  if (ReadRows(sample, is_whole, division)) return division;
  Division other{.syntax = {.delimiter = delimiter, .has_backslashes = true}};
  if (ReadRows(sample, is_whole, other)) return other;
  division.is_faulty = true;
  return division;
}

char DecimalSignOf(const std::vector<Row>& rows, char delimiter) {
  if (delimiter == ',') return '.';
  bool has_commas = false;
  for (const Row& row : rows) {
    for (const std::string& cell : row) {
      if (cell.find('.') != cell.npos && IsNumber(cell)) return '.';
      has_commas = has_commas || (cell.find(',') != cell.npos && IsNumber(cell, ',') &&
                                  (delimiter == ';' || !MayHaveGroups(cell, ',')));
    }
  }
  return has_commas ? ',' : '.';
}

// Whether all rows below the first have one cell more than it, and not only because each of them
// ends with a delimiter.
bool HasShortHeader(const Division& division, const TableFormat& wanted) {
  const std::vector<Row>& rows = division.rows;
  const auto is_text = [&](const std::string& cell) {
    return IsText(cell, division.decimal_sign) && !wanted.missing.Contains(cell);
  };
  return rows.size() > 1 && wanted.header.value_or(std::ranges::any_of(rows[0], is_text)) &&
         std::all_of(rows.begin() + 1, rows.end(),
                     [&](const Row& row) { return row.size() == rows[0].size() + 1; }) &&
         std::any_of(rows.begin() + 1, rows.end(),
                     [](const Row& row) { return !row.back().empty(); });
}

Division Divide(std::string_view sample, bool is_whole, char delimiter, const TableFormat& wanted) {
  Division division = RowsOf(sample, is_whole, delimiter);
  const std::vector<Row>& rows = division.rows;
  division.decimal_sign = wanted.decimal_sign.value_or(DecimalSignOf(rows, delimiter));
  if (rows.empty()) return division;
  division.is_even = !division.is_faulty && std::ranges::all_of(rows, [&](const Row& row) {
    return row.size() == rows[0].size();
  });
  division.first_row_is_short = !division.is_faulty && HasShortHeader(division, wanted);
  for (std::size_t i = rows.size() > 1 ? 1 : 0; i < rows.size(); ++i) {
    division.cells += rows[i].size();
    division.texts +=
        static_cast<std::size_t>(std::ranges::count_if(rows[i], [&](const auto& cell) {
          return IsText(cell, division.decimal_sign) && !wanted.missing.Contains(cell);
        }));
  }
  return division;
}

// Comma, semicolon and tab as far as the first line that is not blank contains them outside quotes,
// then blanks.
std::string PossibleDelimiters(std::string_view sample) {
  std::string found;
  bool in_quotes = false;
  bool blank_line = true;
  char previous = '\n';
  for (const char c : sample) {
    // A quote opens a quoted cell only at its start or right after the quote that it doubles.
    constexpr std::string_view before_quote = "\n\" \t,;";
    if (c == '"') {
      in_quotes = !in_quotes && before_quote.find(previous) != std::string_view::npos;
    } else if (!in_quotes) {
      if (c == '\n') {
        if (!blank_line) break;
        found.clear();
      }
      if (c == ',' || c == ';' || c == '\t') found += c;
    }
    blank_line &= c == ' ' || c == '\t' || c == '\r' || c == '\n';
    previous = c;
  }
  if (blank_line) found.clear();
  std::string delimiters;
  for (const char delimiter : {',', ';', '\t'})
    if (found.find(delimiter) != found.npos) delimiters += delimiter;
  return delimiters + ' ';
}

}  // namespace

std::optional<DelimiterLine> FindDelimiterLine(std::string_view text) {
  const std::size_t end = std::min(text.find('\n'), text.size());
  std::string_view line = text.substr(0, end);
  if (line.ends_with('\r')) line.remove_suffix(1);
  if (line.size() > 2 && line.starts_with('"') && line.ends_with('"'))
    line = line.substr(1, line.size() - 2);
  if (line.size() != 5 || (!line.starts_with("sep=") && !line.starts_with("SEP=")))
    return std::nullopt;
  return DelimiterLine{line[4], std::min(end + 1, text.size())};
}

FoundFormat FindFormat(std::string_view sample, bool is_whole, const TableFormat& wanted) {
  std::string delimiters =
      wanted.delimiter ? std::string(1, *wanted.delimiter) : PossibleDelimiters(sample);
  // If the decimal sign is the comma, it is the last that would delimit.
  if (wanted.decimal_sign == ',')
    std::stable_partition(delimiters.begin(), delimiters.end(), [](char c) { return c != ','; });
  Division best;
  for (const char delimiter : delimiters) {
    Division division = Divide(sample, is_whole, delimiter, wanted);
    const bool is_first = delimiter == delimiters.front();
    if (is_first || division.IsBetterThan(best)) best = std::move(division);
    if (best.IsPerfect()) break;
  }
  return {best.syntax, best.decimal_sign, best.first_row_is_short,
          best.first_row_is_short && !best.starts_with_quotes};
}

}  // namespace qorvex::apps
