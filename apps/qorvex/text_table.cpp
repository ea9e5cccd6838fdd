#include "apps/qorvex/text_table.h"

#include <algorithm>

#include "apps/common/input_error.h"

namespace qorvex::apps {

std::size_t CharacterCount(std::string_view text) {
  return static_cast<std::size_t>(std::ranges::count_if(
      text, [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; }));
}

std::string ShortName(const std::string& name) {
  constexpr std::size_t longest = 20;
  std::string text = OnOneLine(name);
  if (CharacterCount(text) <= longest) return text;
  while (CharacterCount(text) >= longest) text.pop_back();
  return text + "\u2026";
}

std::string AlignedRows(const std::vector<std::vector<std::string>>& rows,
                        const std::vector<bool>& on_the_left) {
  std::vector<std::size_t> widths(1);
  for (const auto& row : rows) {
    if (row.size() == 1) continue;
    widths.resize(std::max(widths.size(), row.size()));
    for (std::size_t i = 0; i < row.size(); ++i)
      widths[i] = std::max(widths[i], CharacterCount(row[i]));
  }
  std::string text;
  for (const auto& row : rows) {
    std::string line;
    for (std::size_t i = 0; i < row.size(); ++i) {
      const std::string blanks(widths[i] - std::min(widths[i], CharacterCount(row[i])), ' ');
      if (i > 0) line += "  ";
      line += on_the_left[i] ? row[i] + blanks : blanks + row[i];
    }
    line.erase(line.find_last_not_of(' ') + 1);
    text += line + '\n';
  }
  return text;
}

}  // namespace qorvex::apps
