#include "qorvex/stats/Qorvex_RS_DescStats.h"

#include <cstddef>
#include <string_view>
#include <utility>

#include "qorvex/base/text_catalog.h"

namespace qorvex::inline Qorvex_RS_DescStats {

namespace {

constexpr std::string_view kTexts[] = {
#define QORVEX_TEXT(id, text) text,
    QORVEX_REPORT_TEXTS(QORVEX_TEXT)
#undef QORVEX_TEXT
};

TextCatalog<ReportTextId>& Catalog() {
  static TextCatalog<ReportTextId> catalog(kTexts);
  return catalog;
}

}  // namespace

std::string ReportText(ReportTextId id) {
  return Catalog().Text(id);
}

std::string_view EnglishReportText(ReportTextId id) noexcept {
  return kTexts[static_cast<std::size_t>(id)];
}

void SetReportText(ReportTextId id, std::string text) {
  Catalog().SetText(id, std::move(text));
}

void ResetReportText(ReportTextId id) {
  Catalog().SetText(id, std::nullopt);
}

void SetReportLookup(std::function<std::optional<std::string>(ReportTextId)> lookup) {
  Catalog().SetLookup(std::move(lookup));
}

}  // namespace qorvex::inline Qorvex_RS_DescStats
