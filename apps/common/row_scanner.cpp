#include "apps/common/row_scanner.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <emmintrin.h>
#include <utility>

namespace qorvex::apps {

namespace {

constexpr bool IsBlank(char c) {
  return c == ' ' || c == '\t';
}

__m128i Load(const char* characters) {
  return _mm_loadu_si128(reinterpret_cast<const __m128i*>(characters));
}

}  // namespace

RowScanner::RowScanner(TextInput input, RowSyntax syntax, std::size_t block_size,
                       std::size_t first_line)
    : input_(std::move(input)),
      delimiter_(syntax.delimiter),
      has_backslashes_(syntax.has_backslashes),
      delimiter_is_blank_(delimiter_ == ' '),
      buffer_(std::max<std::size_t>(block_size, 4) + kReadableBehind),
      line_(first_line),
      next_line_(first_line) {
  delimiters_.fill(delimiter_);
  other_delimiters_.fill(delimiter_is_blank_ ? '\t' : delimiter_);
}

bool RowScanner::Next() {
  for (blank_lines_ = 0; ReadLine(); ++blank_lines_)
    if (!cells_.empty()) return true;
  return false;
}

bool RowScanner::TakeLines(RowScanner& lines) {
  line_ = next_line_;
  Refill();
  const std::string_view text(buffer_.data() + begin_, end_ - begin_);
  const std::size_t length = text.rfind('\n') + 1;
  if (length == 0 || text.find('"') < length) return false;
  lines.buffer_.resize(buffer_.size());
  text.copy(lines.buffer_.data(), text.npos, length);
  buffer_.swap(lines.buffer_);
  lines.begin_ = std::exchange(begin_, 0);
  lines.end_ = lines.begin_ + length;
  end_ = text.size() - length;

  lines.input_.name = input_.name;
  lines.delimiter_ = delimiter_;
  lines.has_backslashes_ = has_backslashes_;
  lines.delimiter_is_blank_ = delimiter_is_blank_;
  lines.delimiters_ = delimiters_;
  lines.other_delimiters_ = other_delimiters_;
  lines.input_ended_ = true;
  lines.next_line_ = next_line_;
  const char* const first = lines.buffer_.data() + lines.begin_;
  next_line_ += static_cast<std::size_t>(std::count(first, lines.End(), '\n'));
  return true;
}

// Moves the unread bytes to the front and fills the buffer. Returns false at the end of the text.
bool RowScanner::Refill() {
  if (input_ended_) return false;
  std::memmove(buffer_.data(), buffer_.data() + begin_, end_ - begin_);
  end_ -= std::exchange(begin_, 0);
  // One byte is reserved for the end of the last line, which may be missing.
  std::size_t room = buffer_.size() - kReadableBehind;
  if (end_ + 1 == room) {
    if (room >= kLongestRow) {
      FailAt(buffer_.data(),
             "the row is too long (more than 64 MiB); a closing quote may be missing");
    }
    room *= 2;
    buffer_.resize(room + kReadableBehind);
  }
  while (!input_ended_ && end_ + 1 < room) {
    const std::size_t count = input_.read(buffer_.data() + end_, room - 1 - end_);
    end_ += count;
    input_ended_ = count == 0;
  }
  // If the last line has an end, this adds a blank line, which is ignored at the end of the text.
  if (input_ended_) buffer_[end_++] = '\n';
  return true;
}

// Reads one line, or several if quotes contain line breaks, into cells_; a blank line has no cells.
bool RowScanner::ReadLine() {
  line_ = next_line_;
  while (!ScanRow()) {
    if (input_ended_) return false;
    Refill();
  }
  return true;
}

// Returns false if the row does not end within the buffer. It is scanned again after a refill,
// which costs one row per block, and one pass over a long row each time the buffer doubles.
bool RowScanner::ScanRow() {
  cells_.clear();
  cells_with_inner_quotes_.clear();
  const char* const row = buffer_.data() + begin_;
  const char* at = row;
  bool any_quoted = false;
  for (;; ++at) {
    at = SkipBlanks(at);
    if (at == End()) return false;
    const bool quoted = *at == '"';
    any_quoted |= quoted;
    at = quoted ? ScanQuotedCell(at) : ScanPlainCell(at);
    if (at == nullptr) return false;
    if (*at == '\n') break;
  }
  ++at;
  if (cells_.size() == 1 && cells_[0].empty() && !any_quoted) cells_.clear();
  next_line_ = line_ + (any_quoted ? static_cast<std::size_t>(std::count(row, at, '\n')) : 1);
  begin_ += static_cast<std::size_t>(at - row);
  JoinQuotes();
  return true;
}

// The scanning functions append a cell and return the position of the delimiter or line feed that
// ends it. If that is not in the buffer, they return null, EndOfPlainCell the end of the buffer.
const char* RowScanner::EndOfPlainCell(const char* at) const {
  const char* const end = End();
  const __m128i ends[] = {Load(delimiters_.data()), Load(other_delimiters_.data()),
                          _mm_set1_epi8('\r'), _mm_set1_epi8('\n')};
  while (at < end) {
    const __m128i text = Load(at);
    const auto is = [&](int i) { return _mm_cmpeq_epi8(text, ends[i]); };
    const __m128i found = _mm_or_si128(_mm_or_si128(is(0), is(1)), _mm_or_si128(is(2), is(3)));
    const auto mask = static_cast<unsigned>(_mm_movemask_epi8(found));
    at += mask == 0 ? static_cast<int>(sizeof text) : std::countr_zero(mask);
    if (mask == 0) continue;
    if (at >= end || *at != '\r') break;
    if (at + 1 == end) return end;
    if (at[1] != '\n') FailAt(at, "a line ends with CR alone; LF or CR LF is needed");
    ++at;
  }
  return std::min(at, end);
}

const char* RowScanner::ScanPlainCell(const char* at) {
  const char* const cell = at;
  at = EndOfPlainCell(at);
  if (at == End()) return nullptr;

  std::string_view text(cell, at);
  if (*at == '\n' && text.ends_with('\r')) text.remove_suffix(1);
  while (!text.empty() && IsBlank(text.back())) text.remove_suffix(1);
  // Blanks before the end of a line do not start another cell.
  if (!delimiter_is_blank_ || !text.empty()) cells_.push_back(text);
  return at;
}

const char* RowScanner::ScanQuotedCell(const char* at) {
  const char* const quote = at;
  const char* const end = End();
  at = EndOfQuotes(at + 1);
  if (at == nullptr && input_ended_) FailAt(quote, "the quote is not closed");
  if (at == nullptr || at + 1 == end) return nullptr;
  const std::string_view text(quote + 1, at);
  const bool has_inner_quotes = text.find('"') != std::string_view::npos;

  ++at;
  if (!delimiter_is_blank_) at = SkipBlanks(at);
  if (at == end) return nullptr;
  if (*at == '\r' && at + 1 != end && at[1] == '\n') ++at;
  if (*at != '\n' && *at != delimiter_ && !(delimiter_is_blank_ && *at == '\t')) {
    if (ScanPlainCell(at) == nullptr) return nullptr;
    FailAt(quote, Excerpt(cells_.back()) + " follows a closing quote");
  }
  if (has_inner_quotes) cells_with_inner_quotes_.push_back(cells_.size());
  cells_.push_back(text);
  return at;
}

// The quote that ends a quoted cell; null if it is not in the buffer, or may be doubled beyond it.
const char* RowScanner::EndOfQuotes(const char* at) const {
  const char* const end = End();
  for (;; ++at) {
    at = static_cast<const char*>(std::memchr(at, '"', static_cast<std::size_t>(end - at)));
    if (at == nullptr) return nullptr;
    if (has_backslashes_) {
      if (at[-1] != '\\') return at;
    } else {
      if (at + 1 == end || at[1] != '"') return at;
      ++at;
    }
  }
}

const char* RowScanner::SkipBlanks(const char* at) const {
  const char* const end = End();
  while (at != end && IsBlank(*at) && (delimiter_is_blank_ || *at != delimiter_)) ++at;
  return at;
}

// Works in place, after the row is complete and will not be scanned again.
void RowScanner::JoinQuotes() {
  for (const std::size_t index : cells_with_inner_quotes_) {
    std::string_view& cell = cells_[index];
    char* const first = buffer_.data() + (cell.data() - buffer_.data());
    char* out = first;
    for (std::size_t i = 0; i < cell.size(); ++i) {
      if (has_backslashes_ && cell.substr(i, 2) == "\\\"") ++i;
      *out++ = cell[i];
      if (!has_backslashes_ && cell[i] == '"') ++i;
    }
    cell = {first, out};
  }
}

void RowScanner::FailAt(const char* position, const std::string& what) const {
  const auto lines_before = std::count(buffer_.data() + begin_, position, '\n');
  throw InputError(InputFault::kMalformed, input_.name,
                   line_ + static_cast<std::size_t>(lines_before), what);
}

}  // namespace qorvex::apps
