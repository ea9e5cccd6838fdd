// The first byte chooses a locale, the rest is a pasted text. Whatever the text: the rows of a
// block have cells, and the block comes back from its own text; a number is finite, and it comes
// back from the text that the locale gives it.

#include <QLocale>
#include <QString>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>

#include "qorvex/base/text.h"
#include "qorvex/base_controls/detail/number_text.h"
#include "qorvex/controls/detail/block_text.h"

namespace {

using namespace qorvex;

void Require(bool condition, const char* what) {
  if (condition) return;
  std::fputs(what, stderr);
  std::abort();
}

void CheckNumber(const QString& text, const QLocale& locale) {
  using namespace QorvexBaseControls::detail;
  const auto value = ParseLocalNumber(text, locale);
  if (!value) return;
  Require(std::isfinite(*value), "a number is not finite");
  const auto back = ParseLocalNumber(LocalNumber(Float2Str(*value), locale), locale);
  Require(back && *back == *value && std::signbit(*back) == std::signbit(*value),
          "LocalNumber does not come back");
}

void CheckBlock(std::string_view text, const QLocale& locale) {
  using namespace QorvexControls::detail;
  const TextBlock block = ParseBlock(text);
  Require(block.empty() == text.empty(), "rows of nothing, or nothing of a text");
  for (const auto& row : block) {
    Require(!row.empty(), "a row without cells");
    for (const auto& cell : row) CheckNumber(QString::fromStdString(cell), locale);
  }
  Require(ParseBlock(FormatBlock(block)) == block, "FormatBlock does not come back");
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
  // Texts that are no UTF-8, too.
  CheckNumber(QString(reinterpret_cast<const QChar*>(data), static_cast<qsizetype>(size / 2)),
              locale);
  return 0;
}
