#include "apps/qorvex/output_format.h"

#include <algorithm>
#include <string>

#include "apps/common/input_error.h"
#include "qorvex/base/text.h"

namespace qorvex::apps {

namespace {

void AddCount(CLI::App& command, const char* option, int least, std::optional<int>& count,
              const std::string& description) {
  const std::string range = Int2EStr(least) + " to " + Int2EStr(kMostDigits);
  // Prevents the parser of options from reading 010 as eight and 0x10 as sixteen. Returns the
  // error.
  const auto plain_decimal = [range, least](std::string& text) -> std::string {
    const std::string wrong = Excerpt(text) + " is not a whole number from " + range;
    if (text.empty() || text.find_first_not_of("0123456789") != std::string::npos) return wrong;
    text.erase(0, std::min(text.find_first_not_of('0'), text.size() - 1));
    constexpr std::size_t most_figures = 3;
    const int value = text.size() > most_figures ? kMostDigits + 1 : std::stoi(text);
    return value < least || value > kMostDigits ? wrong : "";
  };
  command.add_option(option, count, description)
      ->transform(CLI::Validator(plain_decimal, ""))
      ->option_text("N (" + range + ')');
}

}  // namespace

void OutputFormat::AddDigitsTo(CLI::App& command, const char* default_digits) {
  AddCount(command, "--digits", 1, digits,
           std::string("Significant digits of every figure. Default: ") + default_digits);
  AddCount(command, "--decimals", 0, decimals, "Decimals of every figure; excludes --digits");
  command.get_option("--decimals")->excludes(command.get_option("--digits"));
  command.add_flag("--group", grouped, "A blank between groups of three digits");
}

void OutputFormat::AddTo(CLI::App& command, const char* default_digits) {
  AddDigitsTo(command, default_digits);
  CLI::Option* const group = command.get_option("--group");
  const auto add_form = [&](const char* option, OutputForm of_option, const char* description) {
    return command.add_flag_callback(
        option, [this, of_option] { form = of_option; }, description);
  };
  CLI::Option* const table =
      add_form("--table", OutputForm::kTable, "Columns side by side, aligned by blanks");
  CLI::Option* const csv =
      add_form("--csv", OutputForm::kCsv,
               "CSV; figures keep all 80 bits unless there is --digits or --decimals");
  CLI::Option* const json =
      add_form("--json", OutputForm::kJson,
               "One JSON document; each figure is the shortest text that keeps all 80 bits,\n"
               "or null if it does not exist");
  csv->excludes(table)->excludes(group);
  for (CLI::Option* const other :
       {table, csv, group, command.get_option("--digits"), command.get_option("--decimals")}) {
    json->excludes(other);
  }
}

FigureFormat OutputFormat::ForNumbers() const {
  if (digits) return {FigureFormat::Kind::kDigits, *digits, grouped};
  if (decimals) return {FigureFormat::Kind::kDecimals, *decimals, grouped};
  return {.grouped = grouped};
}

FigureFormat OutputFormat::ForReport(int significant_digits) const {
  if (digits || decimals || form == OutputForm::kCsv) return ForNumbers();
  FigureFormat format = FormatFor(significant_digits);
  format.grouped = grouped;
  return format;
}

}  // namespace qorvex::apps
