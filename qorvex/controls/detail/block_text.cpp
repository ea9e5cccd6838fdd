#include "qorvex/controls/detail/block_text.h"

#include <algorithm>
#include <optional>

namespace qorvex::inline QorvexControls::detail {

namespace {

constexpr std::string_view kCellEnds = "\t\r\n";

/// Removes a quoted cell from the front of the text; nothing if no closing quote ends a cell.
///
/// Trying this at every cell that begins with a quote is still linear: where a scan passes the
/// beginning of a later cell, there is an even number of quotes, and the scan of that cell ends at
/// the last of them.
std::optional<std::string> TakeQuoted(std::string_view& text) {
  if (!text.starts_with('"')) return std::nullopt;
  std::string cell;
  for (std::size_t start = 1;;) {
    const std::size_t quote = text.find('"', start);
    if (quote == text.npos) return std::nullopt;
    cell += text.substr(start, quote - start);
    const std::string_view rest = text.substr(quote + 1);
    if (!rest.starts_with('"')) {
      if (!rest.empty() && kCellEnds.find(rest.front()) == rest.npos) return std::nullopt;
      text = rest;
      return cell;
    }
    cell += '"';
    start = quote + 2;
  }
}

std::string TakeCell(std::string_view& text) {
  if (auto quoted = TakeQuoted(text)) return *std::move(quoted);
  const std::string_view cell = text.substr(0, text.find_first_of(kCellEnds));
  text.remove_prefix(cell.size());
  return std::string(cell);
}

void AppendCell(std::string& text, std::string_view cell) {
  if (!cell.starts_with('"') && cell.find_first_of(kCellEnds) == cell.npos) {
    text += cell;
    return;
  }
  text += '"';
  for (const char character : cell) {
    if (character == '"') text += '"';
    text += character;
  }
  text += '"';
}

}  // namespace

TextBlock ParseBlock(std::string_view text) {
  TextBlock rows;
  while (!text.empty()) {
    auto& row = rows.emplace_back();
    row.push_back(TakeCell(text));
    while (text.starts_with('\t')) {
      text.remove_prefix(1);
      row.push_back(TakeCell(text));
    }
    text.remove_prefix(text.starts_with("\r\n") ? 2 : std::min<std::size_t>(text.size(), 1));
  }
  return rows;
}

std::string FormatBlock(const TextBlock& cells) {
  std::string text;
  for (const auto& row : cells) {
    for (std::size_t i = 0; i < row.size(); ++i) {
      if (i > 0) text += '\t';
      AppendCell(text, row[i]);
    }
    text += '\n';
  }
  return text;
}

}  // namespace qorvex::inline QorvexControls::detail
