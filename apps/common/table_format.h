#pragma once

/// @file
/// How a table is written: encoding, delimiter, decimal sign, header and missing values.

#include <bitset>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace qorvex::apps {

/// How characters are written as bytes.
enum class Encoding {
  kUtf8,
  kUtf16Le,
  kUtf16Be,
  kLatin1,  ///< Windows-1252, of which Latin-1 is a part
};

/// The name for people: "UTF-8", "UTF-16" or "Latin-1".
[[nodiscard]] const char* NameOf(Encoding encoding);

/// The words that stand for a missing value. An empty cell is one, too, unless none is allowed.
class MissingWords {
 public:
  /// NA, NaN, nan and null.
  MissingWords();
  /// These, exactly as they are written.
  explicit MissingWords(std::vector<std::string> words);
  /// No value may be missing: empty cells are faults, and words are text.
  [[nodiscard]] static MissingWords None();

  /// The words; an empty cell is not among them.
  [[nodiscard]] const std::vector<std::string>& Words() const noexcept { return words_; }
  [[nodiscard]] bool Contains(std::string_view cell) const {
    if (cell.empty()) return are_allowed_;
    return starts_[static_cast<unsigned char>(cell[0])] && ContainsWord(cell);
  }
  /// Whether any value may be missing.
  [[nodiscard]] bool AreAllowed() const noexcept { return are_allowed_; }
  /// Whether a word is also a number, such as -99.
  [[nodiscard]] bool IncludeNumbers() const noexcept { return include_numbers_; }

 private:
  [[nodiscard]] bool ContainsWord(std::string_view cell) const;

  std::vector<std::string> words_;
  // The first characters of the words.
  std::bitset<256> starts_;
  bool are_allowed_ = true;
  bool include_numbers_ = false;
};

/// How a table is written. RowReader finds what is not set.
struct TableFormat {
  std::optional<Encoding> encoding = {};
  /// A space stands for any run of spaces and tabs.
  std::optional<char> delimiter = {};
  /// '.' or ','.
  std::optional<char> decimal_sign = {};
  /// Whether the first row is a header.
  std::optional<bool> header = {};
  MissingWords missing = {};
};

}  // namespace qorvex::apps
