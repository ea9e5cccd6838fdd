#include "apps/common/similar_words.h"

#include <algorithm>
#include <cstddef>

namespace qorvex::apps {

namespace {

// The letters and digits in lower case.
std::string Letters(std::string_view word) {
  std::string letters;
  for (const char c : word) {
    if (c == '-' || c == '_') continue;
    letters += c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
  }
  return letters;
}

// The number of changes that turn one word into the other. The last three rows of the table of all
// beginnings suffice.
std::size_t Distance(std::string_view a, std::string_view b) {
  std::vector<std::size_t> row(b.size() + 1), previous(row), before_previous(row);
  for (std::size_t j = 0; j <= b.size(); ++j) row[j] = j;
  for (std::size_t i = 1; i <= a.size(); ++i) {
    before_previous.swap(previous);
    previous.swap(row);
    row[0] = i;
    for (std::size_t j = 1; j <= b.size(); ++j) {
      const std::size_t replaced = previous[j - 1] + (a[i - 1] == b[j - 1] ? 0 : 1);
      row[j] = std::min({replaced, previous[j] + 1, row[j - 1] + 1});
      const bool exchanged = i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1];
      if (exchanged) row[j] = std::min(row[j], before_previous[j - 2] + 1);
    }
  }
  return row.back();
}

// A word that begins with what was typed is nearest, one that contains it as near as one change.
std::size_t Remoteness(std::string_view typed, std::string_view word) {
  constexpr std::size_t shortest_part = 3;
  const bool begins =
      word.starts_with(typed) || (word.size() >= shortest_part && typed.starts_with(word));
  if (begins) return 0;
  const bool contains = typed.size() >= shortest_part && word.find(typed) != word.npos;
  return contains ? 1 : Distance(typed, word);
}

}  // namespace

std::vector<std::string> SimilarWords(std::string_view typed,
                                      const std::vector<std::string>& words) {
  // Longer texts are no words, and the table of beginnings should stay small.
  constexpr std::size_t longest = 100;
  const std::string letters = Letters(typed);
  if (letters.empty() || letters.size() > longest) return {};
  std::size_t least = letters.size() / 3;
  std::vector<std::string> similar;
  for (const std::string& word : words) {
    const std::size_t distance = Remoteness(letters, Letters(word));
    if (distance > least) continue;
    if (distance < least) similar.clear();
    least = distance;
    if (std::ranges::find(similar, word) == similar.end()) similar.push_back(word);
  }
  return similar;
}

std::string Alternatives(const std::vector<std::string>& words) {
  std::string text;
  for (std::size_t i = 0; i < words.size(); ++i) {
    if (i > 0) text += i + 1 == words.size() ? " or " : ", ";
    text += words[i];
  }
  return text;
}

}  // namespace qorvex::apps
