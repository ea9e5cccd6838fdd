#include "apps/common/table_format.h"

#include <algorithm>
#include <utility>

#include "apps/common/cells.h"

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

MissingWords::MissingWords() : MissingWords({"NA", "NaN", "nan", "null"}) {}

MissingWords::MissingWords(std::vector<std::string> words) : words_(std::move(words)) {
  std::erase(words_, "");
  for (const std::string& word : words_) {
    starts_.set(static_cast<unsigned char>(word[0]));
    include_numbers_ = include_numbers_ || FindNumber(word) || FindNumber(word, ',');
  }
}

MissingWords MissingWords::None() {
  MissingWords none{std::vector<std::string>()};
  none.are_allowed_ = false;
  return none;
}

bool MissingWords::ContainsWord(std::string_view cell) const {
  return std::ranges::find(words_, cell) != words_.end();
}

}  // namespace qorvex::apps
