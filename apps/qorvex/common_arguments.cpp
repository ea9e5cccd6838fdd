#include "apps/qorvex/common_arguments.h"

#include <algorithm>
#include <string_view>

#include "apps/common/input_error.h"
#include "qorvex/base/text.h"

namespace qorvex::apps {

const char* const kTextHelp = R"(
  The delimiter is the comma, semicolon or tab (the first of these three that the
  first line contains outside quotes), otherwise any run of blanks.
  Cells may be quoted: "1.5", "a, b", "say ""hello""", even across lines.
  UTF-8 with or without byte order mark; lines end with LF or CR LF.
  Numbers have a decimal point and an optional exponent, whatever the locale. They
  are rounded correctly to 80 bits (64 bits of mantissa). Infinities and NaN are
  refused. There is no syntax for comments.)";

const char* const kExitStatusHelp = R"(

Exit status:
  0 success; 2 wrong usage or bad input; 1 any other failure.)";

const char* const kNothingPrintedHelp = R"( Nothing is
  printed on standard output unless all input is valid.)";

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

}  // namespace

void AddFile(CLI::App& command, std::string& file, const std::string& name,
             const std::string& description) {
  command.add_option(name, file, description + "; - is standard input")->type_name("")->required();
}

void AddDelimiter(CLI::App& command, std::optional<char>& delimiter) {
  command
      .add_option_function<std::string>(
          "--delimiter",
          [&delimiter](const std::string& text) { delimiter = ParseDelimiter(text); },
          "One character, or the word comma, semicolon, tab or space\n"
          "(space: any run of blanks). Default: detected")
      ->type_name("C");
}

CLI::Option* AddThreads(CLI::App& command, unsigned& threads, const std::string& description) {
  return command.add_option("--threads", threads, description)
      ->check(CLI::Range(1U, kMostThreads))
      ->option_text("N (1 to 256)");
}

}  // namespace qorvex::apps
