#include "apps/qorvex/format_arguments.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "apps/common/input_error.h"
#include "apps/common/row_scanner.h"

namespace qorvex::apps {

const char* const kTextHelp = R"(
  The delimiter (comma, semicolon, tab or blanks) and the decimal sign are found from
  the first rows; a first line like sep=; tells the delimiter.
  Cells may be quoted: "1.5", "a, b", "say ""hello""", even across lines.
  UTF-8, UTF-16 or Latin-1 (Windows-1252); lines end with LF or CR LF.
  Numbers have no digit groups. They are rounded correctly to 80 bits (64 bits of
  mantissa). Infinities are refused. There is no syntax for comments.)";

namespace {

char ParseDelimiter(const std::string& text) {
  if (text == "comma") return ',';
  if (text == "semicolon") return ';';
  if (text == "tab") return '\t';
  if (text == "space") return ' ';
  constexpr std::string_view in_cells = "0123456789+-.eE\"\r\n";
  const bool one_character = text.size() == 1 && static_cast<unsigned char>(text[0]) < 0x80;
  if (!one_character || in_cells.find(text[0]) != std::string_view::npos) {
    throw CLI::ValidationError(
        "--delimiter", Excerpt(text) +
                           " is not comma, semicolon, tab, space or one ASCII character that "
                           "occurs neither in numbers nor in quoting");
  }
  return text[0];
}

char ParseDecimalSign(const std::string& text) {
  if (text == "," || text == "comma") return ',';
  if (text == "." || text == "point") return '.';
  throw CLI::ValidationError("--decimal", Excerpt(text) + " is neither the comma nor the point");
}

Encoding ParseEncoding(const std::string& text) {
  std::string name;
  for (const char c : text)
    if (c != '-' && c != '_') name += c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
  constexpr std::pair<std::string_view, Encoding> names[] = {
      {"utf8", Encoding::kUtf8},          {"utf16", Encoding::kUtf16Le},
      {"utf16le", Encoding::kUtf16Le},    {"utf16be", Encoding::kUtf16Be},
      {"latin1", Encoding::kLatin1},      {"iso88591", Encoding::kLatin1},
      {"windows1252", Encoding::kLatin1}, {"cp1252", Encoding::kLatin1}};
  const auto* const found =
      std::ranges::find(names, name, &std::pair<std::string_view, Encoding>::first);
  if (found == std::end(names))
    throw CLI::ValidationError("--encoding", Excerpt(text) + " is not utf-8, utf-16 or latin1");
  return found->second;
}

}  // namespace

void AddTextFormat(CLI::App& command, TableFormat& format) {
  command
      .add_option_function<std::string>(
          "--delimiter",
          [&format](const std::string& text) { format.delimiter = ParseDelimiter(text); },
          "One character, or the word comma, semicolon, tab or space\n"
          "(space: any run of blanks). Default: detected")
      ->type_name("C");
  command
      .add_option_function<std::string>(
          "--decimal",
          [&format](const std::string& text) { format.decimal_sign = ParseDecimalSign(text); },
          "The decimal sign of all numbers: the comma or the point. Default: detected")
      ->type_name(",|.");
  command
      .add_option_function<std::string>(
          "--encoding",
          [&format](const std::string& text) { format.encoding = ParseEncoding(text); },
          "The encoding of the text. Default: detected")
      ->type_name("utf-8|utf-16|latin1");
}

void AddMissingWords(CLI::App& command, MissingWords& words) {
  command
      .add_option_function<std::string>(
          "--na",
          [&words](const std::string& list) {
            words = list == "error" ? MissingWords::None() : MissingWords(SplitList("--na", list));
          },
          "The words for missing values, with commas between them; empty cells are\n"
          "missing, too. Missing values are skipped and counted. The word error alone:\n"
          "refuse them. Default: NA,NaN,nan,null")
      ->type_name("WORD,...");
}

std::vector<std::string> SplitList(const std::string& option, const std::string& list) {
  TextInput input{option, [rest = std::string_view(list)](char* buffer, std::size_t size) mutable {
                    const std::size_t count = rest.copy(buffer, size);
                    rest.remove_prefix(count);
                    return count;
                  }};
  RowScanner row(std::move(input), {.delimiter = ','}, list.size());
  try {
    if (!row.Next()) return {list};
  } catch (const InputError&) {
    throw CLI::ValidationError(option, Excerpt(list) + " has a quote that is not closed");
  }
  return {row.Cells().begin(), row.Cells().end()};
}

}  // namespace qorvex::apps
