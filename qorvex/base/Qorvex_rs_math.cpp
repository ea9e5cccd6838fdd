#include "qorvex/base/Qorvex_rs_math.h"

#include <cstddef>
#include <iterator>
#include <string_view>
#include <utility>

#include "qorvex/base/text_catalog.h"

namespace qorvex::inline Qorvex_rs_math {

namespace {

constexpr std::string_view kTexts[] = {
#define QORVEX_TEXT(id, text) text,
    QORVEX_MATH_MESSAGES(QORVEX_TEXT)
#undef QORVEX_TEXT
};

TextCatalog<MessageId>& Catalog() {
  static TextCatalog<MessageId> catalog(kTexts);
  return catalog;
}

}  // namespace

std::string MessageText(MessageId id) {
  return Catalog().Text(id);
}

std::string_view EnglishMessageText(MessageId id) noexcept {
  const auto index = static_cast<std::size_t>(id);
  return index < std::size(kTexts) ? kTexts[index] : std::string_view();
}

void SetMessageText(MessageId id, std::string text) {
  Catalog().SetText(id, std::move(text));
}

void ResetMessageText(MessageId id) {
  Catalog().SetText(id, std::nullopt);
}

void SetMessageLookup(std::function<std::optional<std::string>(MessageId)> lookup) {
  Catalog().SetLookup(std::move(lookup));
}

}  // namespace qorvex::inline Qorvex_rs_math
