#include "apps/common/labels.h"

#include <algorithm>

namespace qorvex::apps {

void Labels::Append(std::string_view label) {
  // Rows with the same label often follow one another.
  const bool is_repeated = !codes_.empty() && texts_[codes_.back()] == label;
  codes_.push_back(is_repeated ? codes_.back() : CodeOf(label));
}

void Labels::Append(const Labels& others) {
  std::vector<std::uint32_t> codes(others.texts_.size());
  std::ranges::transform(others.texts_, codes.begin(),
                         [this](const std::string& text) { return CodeOf(text); });
  codes_.reserve(size() + others.size());
  for (const std::uint32_t code : others.codes_) codes_.push_back(codes[code]);
}

std::uint32_t Labels::CodeOf(std::string_view label) {
  if (const auto known = code_of_.find(label); known != code_of_.end()) return known->second;
  const auto code = static_cast<std::uint32_t>(texts_.size());
  texts_.emplace_back(label);
  code_of_.emplace(label, code);
  return code;
}

}  // namespace qorvex::apps
