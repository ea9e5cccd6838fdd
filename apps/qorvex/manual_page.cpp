#include "apps/qorvex/manual_page.h"

#include <algorithm>
#include <cctype>
#include <sstream>
#include <string_view>
#include <utility>
#include <vector>

#include "apps/qorvex/command_tree.h"
#include "apps/qorvex/help_tree.h"
#include "qorvex/base/version.h"

namespace qorvex::apps {

namespace {

// Text in which the formatter finds no instructions of its own.
std::string Plain(std::string_view text) {
  std::string plain;
  for (const char c : text) {
    const bool starts_line = plain.empty() || plain.back() == '\n';
    if (starts_line && (c == '.' || c == '\'')) plain += "\\&";
    if (c == '\\') {
      plain += "\\e";
    } else if (c == '-') {
      plain += "\\-";
    } else {
      plain += c;
    }
  }
  return plain;
}

std::string Upper(std::string text) {
  for (char& c : text) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
  return text;
}

std::string Joined(const std::vector<std::string>& words) {
  std::string text;
  for (const std::string& word : words) text += (text.empty() ? "" : ", ") + word;
  return text;
}

std::string Heading(const std::string& title) {
  return ".SH " + Plain(Upper(title)) + '\n';
}

std::string Term(const std::string& title, const std::string& text) {
  return ".TP\n\\fB" + Plain(title) + "\\fR\n" + Plain(text.empty() ? "\\&" : text) + '\n';
}

// Examples keep their lines; other text is filled.
std::string Paragraphs(const std::string& text) {
  std::string paragraphs;
  std::istringstream lines(text);
  bool is_example = false;
  for (std::string line; std::getline(lines, line);) {
    const bool was_example = std::exchange(is_example, line.starts_with("qorvex "));
    if (is_example && !was_example) paragraphs += ".nf\n";
    if (!is_example && was_example) paragraphs += ".fi\n";
    paragraphs += line.empty() ? ".PP\n" : Plain(line) + '\n';
  }
  return paragraphs + (is_example ? ".fi\n" : "");
}

std::string Exceptions(const HelpEntry& entry) {
  return entry.exceptions.empty() ? "" : Plain("(all but " + Joined(entry.exceptions) + ")\n");
}

std::string Terms(const std::vector<HelpEntry>& entries) {
  std::string terms;
  for (const HelpEntry& entry : entries) terms += Term(entry.title, entry.text) + Exceptions(entry);
  return terms;
}

std::string NamesOfNode(const HelpNode& node) {
  std::string names = node.name;
  for (const std::string& alias : node.aliases) names += ", " + alias;
  return names;
}

// What belongs to one command only, below its name.
std::string Details(const HelpNode& node) {
  std::string details = Terms(node.positionals) + Terms(node.options);
  for (const HelpEntry& section : node.sections)
    details += ".PP\n" + Plain(section.title) + ":\n" + Paragraphs(section.text);
  return details.empty() ? "" : ".RS\n" + details + ".RE\n";
}

// Commands of the same text below several others, such as the questions about distributions.
struct SharedCommand {
  const HelpNode* command;
  std::string details;
  std::vector<std::string> owners;
};

std::vector<SharedCommand> CommandsBelow(const std::vector<HelpNode>& nodes) {
  std::vector<SharedCommand> shared;
  for (const HelpNode& node : nodes) {
    for (const HelpNode& command : node.commands) {
      const std::string details = Details(command);
      const auto same = std::ranges::find_if(shared, [&](const SharedCommand& other) {
        return other.command->name == command.name && other.details == details &&
               other.command->summary == command.summary;
      });
      if (same != shared.end()) {
        same->owners.push_back(node.name);
      } else {
        shared.push_back({&command, details, {node.name}});
      }
    }
  }
  return shared;
}

// "(gamma, beta)", or "(all but gamma, beta)" if that is shorter; nothing for all of them.
std::string OwnersText(const std::vector<std::string>& owners,
                       const std::vector<std::string>& all_owners) {
  if (owners == all_owners) return "";
  std::vector<std::string> others = all_owners;
  std::erase_if(others,
                [&](const std::string& name) { return std::ranges::count(owners, name) != 0; });
  return Plain(others.size() < owners.size() ? "(all but " + Joined(others) + ")\n"
                                             : '(' + Joined(owners) + ")\n");
}

// The commands below a node, and those below these.
std::string CommandSections(const HelpNode& node) {
  std::string page = Heading(node.word + 's');
  const HelpNode* deeper = nullptr;
  std::vector<std::string> owners;
  for (const HelpNode& command : node.commands) {
    page += Term(NamesOfNode(command), command.summary) + Details(command);
    if (command.commands.empty()) continue;
    deeper = &command;
    owners.push_back(command.name);
  }
  if (deeper == nullptr) return page;
  page += Heading(owners.size() == 1 ? deeper->word + "s of " + deeper->name
                                     : deeper->word + "s of each " + node.word);
  for (const auto& [command, details, names] : CommandsBelow(node.commands)) {
    page += Term(NamesOfNode(*command), command->summary) + OwnersText(names, owners) + details;
  }
  return page;
}

std::string Synopsis(const std::string& invocation, const HelpNode& node) {
  std::string text = Heading("Synopsis") + "\\fB" + Plain(invocation) + "\\fR";
  for (const HelpNode* below = &node; !below->commands.empty(); below = &below->commands.front())
    text += " \\fI" + Plain(Upper(below->word)) + "\\fR";
  for (const HelpEntry& positional : node.positionals)
    text += " \\fI" + Plain(positional.title) + "\\fR";
  return text + " [\\fIoptions\\fR]\n";
}

std::string SeeAlso(const HelpNode& node, bool is_program) {
  if (!is_program) return "\\fBqorvex\\fR(1)\n";
  std::string pages;
  for (const HelpNode& command : node.commands)
    pages += (pages.empty() ? "" : ",\n") + ("\\fBqorvex\\-" + command.name) + "\\fR(1)";
  return pages + '\n';
}

}  // namespace

std::string ManualPage(const CLI::App& command) {
  HelpNode node = HelpTree(command);
  const bool is_program = command.get_parent() == nullptr;
  const std::string path = PathOf(command);
  const std::string invocation = is_program ? "qorvex" : "qorvex " + path;
  const std::string name = is_program ? "qorvex" : "qorvex-" + path;
  // The commands of the program have pages of their own.
  if (is_program) {
    for (HelpNode& below : node.commands) below = {.name = below.name, .summary = below.summary};
  }
  std::string page = ".TH " + Plain(Upper(name)) + " 1 \"\" \"Qorvex " QORVEX_VERSION "\"\n" +
                     Heading("Name") + Plain(name) + " \\- " + Plain(node.summary) + '\n' +
                     Synopsis(invocation, node);
  if (!node.commands.empty()) page += CommandSections(node);
  if (!node.positionals.empty()) page += Heading("Arguments");
  page += Terms(node.positionals);
  page += Heading("Options") + Term("-h, --help", "Print the options and exit");
  page += Terms(node.options);
  for (const HelpEntry& section : node.sections)
    page += Heading(section.title) + Paragraphs(section.text) + Exceptions(section);
  return page + Heading("See also") + SeeAlso(node, is_program);
}

}  // namespace qorvex::apps
