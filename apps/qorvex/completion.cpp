#include "apps/qorvex/completion.h"

#include <algorithm>
#include <string_view>
#include <vector>

#include "apps/qorvex/command_tree.h"

namespace qorvex::apps {

namespace {

constexpr std::string_view kFiles = ":files\n";

// Where a command line has got to.
struct Position {
  const CLI::App* command;
  // The option whose value comes next, or null.
  const CLI::Option* option = nullptr;
};

const CLI::Option* FindOption(const CLI::App& command, const std::string& name) {
  for (const CLI::Option* const option : OptionsOf(command))
    if (std::ranges::count(NamesOf(*option), name) != 0) return option;
  return nullptr;
}

Position After(const CLI::App& program, std::span<const std::string> words) {
  Position position = {&program};
  for (const std::string& word : words) {
    if (position.option != nullptr) {
      position.option = nullptr;
    } else if (const CLI::Option* const option = FindOption(*position.command, word)) {
      if (option->get_items_expected_max() != 0) position.option = option;
    } else if (const CLI::App* const command = FindCommand(*position.command, word)) {
      position.command = command;
    }
  }
  return position;
}

// The lines for words that begin with the typed text.
class Offers {
 public:
  explicit Offers(const std::string& typed) : typed_(typed) {}

  void Add(const std::string& word, const std::string& description) {
    if (word.starts_with(typed_))
      lines_ += word + '\t' + description.substr(0, description.find('\n')) + '\n';
  }
  void AddFiles() { lines_ += kFiles; }

  [[nodiscard]] const std::string& Lines() const { return lines_; }

 private:
  std::string typed_;
  std::string lines_;
};

// The values of an option are known if its type is words between bars, such as "less|greater".
void OfferValues(const CLI::Option& option, Offers& offers) {
  const std::string type = option.get_type_name();
  if (type == "FILE") return offers.AddFiles();
  if (type.find('|') == type.npos || type.find_first_of("NX") != type.npos) return;
  for (std::size_t begin = 0; begin <= type.size();) {
    const std::size_t end = std::min(type.find('|', begin), type.size());
    offers.Add(type.substr(begin, end - begin), "");
    begin = end + 1;
  }
}

void OfferOptions(const CLI::App& command, Offers& offers) {
  for (const CLI::Option* const option : OptionsOf(command))
    for (const std::string& name : NamesOf(*option)) offers.Add(name, option->get_description());
}

// Short names are offered to those who have begun to type them.
void OfferCommands(const CLI::App& app, Offers& offers) {
  for (const CLI::App* const command : CommandsOf(app))
    offers.Add(command->get_name(), command->get_description());
  if (!offers.Lines().empty()) return;
  for (const CLI::App* const command : CommandsOf(app))
    for (const std::string& name : command->get_aliases())
      offers.Add(name, command->get_description());
}

bool TakesFile(const CLI::App& command) {
  return std::ranges::any_of(OptionsOf(command),
                             [](const CLI::Option* option) { return option->get_positional(); });
}

}  // namespace

std::string Completions(const CLI::App& program, std::span<const std::string> words) {
  Offers offers(words.empty() ? "" : words.back());
  std::span<const std::string> before = words.first(words.empty() ? 0 : words.size() - 1);
  const bool asks_for_help = !before.empty() && before.front() == "help";
  if (asks_for_help) before = before.subspan(1);
  const auto [command, option] = After(program, before);
  if (option != nullptr) {
    OfferValues(*option, offers);
  } else if (!words.empty() && words.back().starts_with('-')) {
    OfferOptions(*command, offers);
  } else if (!CommandsOf(*command).empty()) {
    OfferCommands(*command, offers);
  } else if (!asks_for_help && TakesFile(*command)) {
    offers.AddFiles();
  }
  return offers.Lines();
}

}  // namespace qorvex::apps
