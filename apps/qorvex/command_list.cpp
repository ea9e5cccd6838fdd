#include "apps/qorvex/command_list.h"

#include <string>

#include "apps/qorvex/command_tree.h"
#include "apps/qorvex/help_tree.h"
#include "apps/qorvex/result_table.h"

namespace qorvex::apps {

namespace {

// Without the last line break, which the parser adds.
std::string ListOf(const CLI::App& app) {
  ResultTable list = {.columns = {{"name", "Name"},
                                  {"other_names", "Other Names"},
                                  {"options", "Options"},
                                  {"summary", "Summary"}}};
  for (const HelpNode& command : HelpTree(app).commands) {
    std::string aliases, options;
    for (const std::string& alias : command.aliases)
      aliases += (aliases.empty() ? "" : " ") + alias;
    for (const HelpEntry& option : command.options)
      if (option.exceptions.empty())
        options +=
            (options.empty() ? "" : " ") + option.title.substr(0, option.title.find_first_of(", "));
    list.rows.push_back({command.name, aliases, options, command.summary});
  }
  std::string text = AlignedTextOf(list, {});
  text.pop_back();
  return text;
}

}  // namespace

void AddList(CLI::App& app) {
  app.add_flag_callback(
      "--list",
      [&app] {
        // Words that are left over are errors, which the parser reports.
        if (app.remaining_size() > 0) return;
        // The parser prints the text and ends, as for --version.
        throw CLI::CallForVersion(ListOf(app), 0);
      },
      "List the " + WordForCommands(app) + "s with their other names and options");
}

}  // namespace qorvex::apps
