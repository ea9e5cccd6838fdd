#include "qorvex/base/text_catalog.h"

#include <mutex>
#include <utility>

namespace qorvex {

TextCatalog::TextCatalog(std::span<const std::string_view> defaults)
    : defaults_(defaults), replacements_(defaults.size()) {}

TextCatalog::~TextCatalog() = default;

std::string TextCatalog::Text(std::size_t index) const {
  std::shared_ptr<const Lookup> lookup;
  std::string stored;
  {
    const std::shared_lock lock(mutex_);
    lookup = lookup_;
    stored = replacements_.at(index).value_or(std::string(defaults_[index]));
  }
  if (lookup != nullptr) {
    if (std::optional<std::string> found = (*lookup)(index)) return *std::move(found);
  }
  return stored;
}

void TextCatalog::SetText(std::size_t index, std::optional<std::string> text) {
  const std::unique_lock lock(mutex_);
  replacements_.at(index) = std::move(text);
}

void TextCatalog::SetLookup(Lookup lookup) {
  auto shared = lookup ? std::make_shared<const Lookup>(std::move(lookup)) : nullptr;
  const std::unique_lock lock(mutex_);
  lookup_.swap(shared);
}

}  // namespace qorvex
