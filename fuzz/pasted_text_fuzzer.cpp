// The first byte selects a locale, the rest is a pasted text. For any text: every row of a block
// has cells, and the text of a block is read back as the same block; a number is finite, and its
// text in the locale is read back as the same number.

#include <QLocale>
#include <QString>
#include <cmath>
#include <cstdint>
#include <string_view>

#include "fuzz/require.h"
#include "qorvex/base/text.h"
#include "qorvex/base_controls/detail/number_text.h"
#include "qorvex/controls/detail/block_text.h"

namespace {

using namespace qorvex;

void CheckNumber(const QString& text, const QLocale& locale) {
  using namespace QorvexBaseControls::detail;
  const auto value = ParseLocalNumber(text, locale);
  if (!value) return;
  Require(std::isfinite(*value), "a number is not finite");
  const auto back = ParseLocalNumber(LocalNumber(Float2Str(*value), locale), locale);
  Require(back && *back == *value && std::signbit(*back) == std::signbit(*value),
          "the text of LocalNumber is read as another number");
}

void CheckBlock(std::string_view text, const QLocale& locale) {
  using namespace QorvexControls::detail;
  const TextBlock block = ParseBlock(text);
  Require(block.empty() == text.empty(), "rows from an empty text, or no rows from a text");
  for (const auto& row : block) {
    Require(!row.empty(), "a row without cells");
    for (const auto& cell : row) CheckNumber(QString::fromStdString(cell), locale);
  }
  Require(ParseBlock(FormatBlock(block)) == block,
          "the text of FormatBlock is read as another block");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const QLocale locales[] = {
      QLocale::c(),
      QLocale(QStringLiteral("de")),
      QLocale(QStringLiteral("sv")),
      QLocale(QStringLiteral("fa")),
      QLocale(QStringLiteral("ar_EG")),
      QLocale(QStringLiteral("ff_Adlm")),
  };
  if (size == 0) return 0;
  const QLocale& locale = locales[data[0] % std::size(locales)];
  CheckBlock({reinterpret_cast<const char*>(data) + 1, size - 1}, locale);
  // Also texts that do not come from UTF-8.
  CheckNumber(QString(reinterpret_cast<const QChar*>(data), static_cast<qsizetype>(size / 2)),
              locale);
  return 0;
}
