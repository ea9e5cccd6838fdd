#include "apps/common/table_format.h"

#include <algorithm>
#include <utility>

#include "apps/common/column_numbers.h"

namespace qorvex::apps {

const char* NameOf(Encoding encoding) {
  switch (encoding) {
    case Encoding::kUtf8:
      return "UTF-8";
    case Encoding::kUtf16Le:
    case Encoding::kUtf16Be:
      return "UTF-16";
    case Encoding::kLatin1:
      return "Latin-1";
  }
  return "";
}

MissingWords::MissingWords() : words_{"NA", "NaN", "nan", "null"} {}

MissingWords::MissingWords(std::vector<std::string> words)
    : words_(std::move(words)),
      include_numbers_(std::ranges::any_of(
          words_, [](const std::string& word) { return ParseDecimal(word).has_value(); })) {}

MissingWords MissingWords::None() {
  MissingWords none{std::vector<std::string>()};
  none.are_allowed_ = false;
  return none;
}

bool MissingWords::Contains(std::string_view cell) const {
  return cell.empty() ? are_allowed_ : std::ranges::find(words_, cell) != words_.end();
}

}  // namespace qorvex::apps
