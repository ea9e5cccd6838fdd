#include "qorvex/base/Qorvex_rs_math.h"

#include <cstddef>
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

TextCatalog& Catalog() {
  static TextCatalog catalog(kTexts);
  return catalog;
}

}  // namespace

std::string MessageText(MessageId id) { return Catalog().Text(static_cast<std::size_t>(id)); }

void SetMessageText(MessageId id, std::string text) {
  Catalog().SetText(static_cast<std::size_t>(id), std::move(text));
}

void ResetMessageText(MessageId id) {
  Catalog().SetText(static_cast<std::size_t>(id), std::nullopt);
}

void SetMessageLookup(std::function<std::optional<std::string>(MessageId)> lookup) {
  if (!lookup) {
    Catalog().SetLookup(nullptr);
    return;
  }
  Catalog().SetLookup([lookup = std::move(lookup)](std::size_t index) {
    return lookup(static_cast<MessageId>(index));
  });
}

}  // namespace qorvex::inline Qorvex_rs_math
