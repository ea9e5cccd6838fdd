#include "apps/common/row_reader.h"

#include <algorithm>
#include <utility>

#include "apps/common/cells.h"
#include "apps/common/format_finder.h"

namespace qorvex::apps {

namespace {

// As much of the text as it takes to see two rows below the first, at least 64 KiB.
struct Sample {
  std::string_view text;
  bool is_whole;
};

bool HasThreeLines(std::string_view text) {
  int lines = 0;
  bool blank = true;
  for (const char c : text) {
    if (c == '\n') {
      if (!blank && ++lines == 3) return true;
      blank = true;
    } else if (c != ' ' && c != '\t' && c != '\r') {
      blank = false;
    }
  }
  return false;
}

Sample SampleOf(TextDecoder& decoder) {
  std::size_t size = std::size_t{1} << 16;
  std::string_view text = decoder.Peek(size);
  while (text.size() == size && size < RowScanner::kLongestRow && !HasThreeLines(text))
    text = decoder.Peek(size *= 2);
  return {text, text.size() < size};
}

}  // namespace

RowReader::RowReader(TextInput input, const TableFormat& format, std::size_t block_size)
    : name_(input.name),
      decoder_(std::make_shared<TextDecoder>(std::move(input), format.encoding)),
      format_(format),
      block_size_(block_size) {}

bool RowReader::Next() {
  const bool is_first = !rows_;
  if (is_first) Start();
  first_row_.clear();
  if (!rows_->Next()) return false;
  if (is_first) ReadHeader();
  return true;
}

const TableFormat& RowReader::Format() {
  format_.encoding = decoder_->Found();
  return format_;
}

void RowReader::Start() {
  Sample sample = SampleOf(*decoder_);
  std::size_t first_line = 1;
  if (const auto line = FindDelimiterLine(sample.text)) {
    if (!format_.delimiter) format_.delimiter = line->delimiter;
    decoder_->Skip(line->length);
    sample.text.remove_prefix(line->length);
    first_line = 2;
  }
  const FoundFormat found = FindFormat(sample.text, sample.is_whole, format_);
  format_.delimiter = found.syntax.delimiter;
  format_.decimal_sign = found.decimal_sign;
  first_row_is_short_ = found.first_row_is_short;
  has_doubtful_row_names_ = found.has_doubtful_names;
  rows_.emplace(
      TextInput{name_, [decoder = decoder_](
                           char* buffer, std::size_t size) { return decoder->Read(buffer, size); }},
      found.syntax, block_size_, first_line);
}

void RowReader::ReadHeader() {
  const auto cells = rows_->Cells();
  if (!format_.header) {
    format_.header = std::ranges::any_of(cells, [this](std::string_view cell) {
      return IsText(cell, *format_.decimal_sign) && !format_.missing.Contains(cell);
    });
  }
  if (!*format_.header) return;
  if (first_row_is_short_) {
    first_row_.emplace_back();
    first_row_.insert(first_row_.end(), cells.begin(), cells.end());
  }
  has_row_names_ =
      first_row_is_short_ || (cells.size() > 1 && cells[0].empty() &&
                              std::ranges::none_of(cells.subspan(1), &std::string_view::empty));
}

}  // namespace qorvex::apps
