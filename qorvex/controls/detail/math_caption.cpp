#include "qorvex/controls/detail/math_caption.h"

namespace qorvex::inline QorvexControls::detail {

namespace {

constexpr char32_t kEscape = U'^';

// The symbols for ! to }: the characters that Adobe's "Symbol Encoding to Unicode" (1999) gives for
// the codes of the Symbol character set. Codes without a character give a space.
constexpr std::u32string_view kSymbols =
    // !"#$%&'()*+,-./
    U"∨   °∞ ↔⇔×≠…±•÷"
    // 0123456789:;<=>?@
    U"∅∪∩⊃⊇⊄⊂⊆∈∉  ≤≈≥ ∧"
    // A to Z
    U"ΑΒΧΔΕΦΓΗΙϑΚΛΜΝΟΠΘΡΣΤΥςΩΞΨΖ"
    // [\]^_`
    U"⇒ ⇐^  "
    // a to z
    U"αβχδεφγηιϕκλμνοπθρστυϖωξψζ"
    // {|}
    U"→ ←";
constexpr char32_t kFirst = U'!';
constexpr char32_t kLast = U'}';
static_assert(kSymbols.size() == kLast - kFirst + 1);

constexpr char32_t SymbolOf(char32_t escaped) {
  return escaped < kFirst || escaped > kLast ? U' ' : kSymbols[escaped - kFirst];
}

}  // namespace

std::vector<CaptionRun> ParseCaption(std::u32string_view caption) {
  std::vector<CaptionRun> runs;
  const auto append = [&runs](char32_t character, bool symbol) {
    if (runs.empty() || runs.back().symbol != symbol) runs.push_back({{}, symbol});
    runs.back().text += character;
  };
  bool escaped = false;
  for (const char32_t character : caption) {
    if (escaped) {
      append(SymbolOf(character), character != kEscape);
      escaped = false;
    } else if (character == kEscape) {
      escaped = true;
    } else {
      append(character, false);
    }
  }
  return runs;
}

std::u32string CaptionText(std::u32string_view caption) {
  std::u32string text;
  for (const CaptionRun& run : ParseCaption(caption)) text += run.text;
  return text;
}

}  // namespace qorvex::inline QorvexControls::detail
