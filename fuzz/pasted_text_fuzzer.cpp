// The first byte selects a locale, the rest is a pasted text. For any text: every row of a block
// has cells, and the text of a block is read back as the same block; a number is finite, its text
// in the locale is read back as the same number, and its text with groups never as another one; a
// text that is refused has a reason.

#include <QLocale>
#include <QString>
#include <cmath>
#include <cstdint>
#include <string_view>

#include "fuzz/require.h"
#include "qorvex/base/text.h"
#include "qorvex/base_controls/detail/digit_groups.h"
#include "qorvex/base_controls/detail/number_reader.h"
#include "qorvex/base_controls/detail/number_text.h"
#include "qorvex/controls/detail/block_text.h"

namespace {

using namespace qorvex;

void CheckNumber(const QString& text, const QLocale& locale) {
  using namespace QorvexBaseControls::detail;
  const auto same = [](Extended a, Extended b) {
    return a == b && std::signbit(a) == std::signbit(b);
  };
  const CellReading number = ReadNumber(text, locale);
  const CellReading expression = ReadExpression(text, locale);
  for (const CellReading& reading : {number, expression}) {
    Require(reading.value.has_value() == reading.refusal.isEmpty(), "a refusal without a reason");
    if (!reading.value) continue;
    Require(std::isfinite(*reading.value), "a number is not finite");
    const QString written = LocalNumber(Float2Str(*reading.value), locale);
    const auto back = ParseLocalNumber(written, locale);
    Require(back && same(*back, *reading.value),
            "the text of LocalNumber is read as another number");
    const CellReading groups = ReadNumber(WithGroups(written, locale), locale);
    Require(!groups.value || same(*groups.value, *reading.value),
            "a number with groups is read as another number");
  }
  if (const auto value = ParseLocalNumber(text, locale)) {
    Require(number.value && same(*number.value, *value), "the locale does not decide first");
  }
  Require(!number.value || (expression.value && same(*number.value, *expression.value)),
          "a number is another expression");
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
      QLocale(QStringLiteral("fr")),
      QLocale(QStringLiteral("hi")),
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
