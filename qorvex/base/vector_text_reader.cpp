// The reading half of vector_text.h.

#include <algorithm>
#include <charconv>
#include <cmath>
#include <istream>
#include <iterator>
#include <limits>
#include <optional>

#include "qorvex/base/currency_text.h"
#include "qorvex/base/detail/decimal_value.h"
#include "qorvex/base/detail/stream_errors.h"
#include "qorvex/base/errors.h"
#include "qorvex/base/text.h"
#include "qorvex/base/vector_text.h"

namespace qorvex {

namespace {

bool IsWhiteSpace(char c) {
  return c == ' ' || (c >= '\t' && c <= '\r');
}

bool IsSeparator(char c) {
  return c == '[' || c == ']' || c == ',';
}

// The value of a number, unless it takes the slowest way.
template <FloatElement T>
std::optional<T> FastValue(const detail::DecimalText& number) {
  if constexpr (std::same_as<T, Extended>) {
    const std::optional<T> value = detail::ValueInOneOperation(number);
    return value ? value : detail::ValueOfLongNumber(number);
  } else {
    return detail::ShortValueInOneOperation<T>(number);
  }
}

Extended ReadElement(std::string_view piece, std::type_identity<Extended>) {
  return Str2Float(piece);
}

// Not by way of Extended, which would round twice.
template <std::floating_point T>
T ReadElement(std::string_view piece, std::type_identity<T>) {
  std::string_view number = piece;
  const bool negative = detail::TakeSign(number);
  // std::from_chars would also take another sign, and "nan(1)".
  if (!number.empty() && (detail::IsDigit(number.front()) || number.front() == '.')) {
    T value = 0;
    const char* const last = number.data() + number.size();
    const auto [end, error] = std::from_chars(number.data(), last, value);
    if (error == std::errc() && end == last) return negative ? -value : value;
  }
  // Not finite, out of range, or no number.
  const Extended value = Str2Float(piece);
  if (std::isfinite(value) && std::fabs(value) > 1) throw EConvertError(rsNumberTooLarge, piece);
  return static_cast<T>(std::isfinite(value) ? std::copysign(Extended(0), value) : value);
}

template <std::integral T>
T ReadElement(std::string_view piece, std::type_identity<T>) {
  std::string_view digits = piece;
  const bool negative = detail::TakeSign(digits);
  std::uint64_t magnitude = 0;
  const char* const last = digits.data() + digits.size();
  const auto [end, error] = std::from_chars(digits.data(), last, magnitude);
  if (error == std::errc::invalid_argument || end != last)
    throw EConvertError(rsNotAnInteger, piece);
  const auto limit = negative ? 0 - static_cast<std::uint64_t>(std::numeric_limits<T>::min())
                              : static_cast<std::uint64_t>(std::numeric_limits<T>::max());
  if (error != std::errc() || magnitude > limit) throw EConvertError(rsNumberTooLarge, piece);
  return static_cast<T>(negative ? 0 - magnitude : magnitude);
}

Currency ReadElement(std::string_view piece, std::type_identity<Currency>) {
  return Str2Currency(piece);
}
QorCurrency ReadElement(std::string_view piece, std::type_identity<QorCurrency>) {
  return Str2QorCurrency(piece);
}
QorLongCurrency ReadElement(std::string_view piece, std::type_identity<QorLongCurrency>) {
  return Str2QorLongCurrency(piece);
}

// Reads a text from its beginning to its end. White space before every piece is skipped.
class Reader {
 public:
  explicit Reader(std::string_view text) : whole_(text), rest_(text) { SkipWhiteSpace(); }

  // Reads the separator if it is next.
  bool Take(char separator) {
    if (!rest_.starts_with(separator)) return false;
    Advance(1);
    return true;
  }

  void Require(char separator) {
    if (!Take(separator)) RefuseStructure();
  }

  void RequireEnd() const {
    if (!rest_.empty()) RefuseStructure();
  }

  template <AnyElement T>
  T Element() {
    if constexpr (FloatElement<T>) {
      if (const std::optional<T> value = FrequentElement<T>()) return *value;
    }
    const std::string_view piece = NextPiece();
    if (piece.empty() || IsSeparator(piece.front())) RefuseStructure();
    try {
      const T value = ReadElement(piece, std::type_identity<T>());
      Advance(piece.size());
      return value;
    } catch (const EConvertError& error) {
      Refuse(error.message_id(), piece);
    }
  }

 private:
  // Reads the next element if it is a usual number that ends at a separator or white space.
  template <FloatElement T>
  std::optional<T> FrequentElement() {
    std::string_view unsigned_rest = rest_;
    const bool negative = detail::TakeSign(unsigned_rest);
    const detail::DecimalText number = detail::ScanLeadingDecimal(unsigned_rest);
    const std::string_view after = unsigned_rest.substr(number.length);
    if (!number.valid || !(after.empty() || IsSeparator(after[0]) || IsWhiteSpace(after[0])))
      return std::nullopt;
    const std::optional<T> value = FastValue<T>(number);
    if (!value) return std::nullopt;
    rest_ = after;
    SkipWhiteSpace();
    return negative ? -*value : *value;
  }

  // A separator, or the text up to the next separator or white space. Empty at the end only.
  std::string_view NextPiece() const {
    const auto* const end =
        std::ranges::find_if(rest_, [](char c) { return IsSeparator(c) || IsWhiteSpace(c); });
    const auto length = static_cast<std::size_t>(end - rest_.begin());
    return rest_.substr(0, std::max<std::size_t>(length, 1));
  }

  void Advance(std::size_t count) {
    rest_.remove_prefix(count);
    SkipWhiteSpace();
  }

  void SkipWhiteSpace() {
    while (!rest_.empty() && IsWhiteSpace(rest_.front())) rest_.remove_prefix(1);
  }

  [[noreturn]] void RefuseStructure() const {
    Refuse(rest_.empty() ? rsUnexpectedEnd : rsUnexpectedText, NextPiece());
  }

  [[noreturn]] void Refuse(MessageId id, std::string_view piece) const {
    throw EConvertError(id, piece, whole_.size() - rest_.size() + 1);
  }

  std::string_view whole_;
  std::string_view rest_;
};

template <AnyElement T>
void ReadInto(TQorVector<T>& vector, Reader& reader) {
  reader.Require('[');
  if (reader.Take(']')) return;
  do vector.push_back(reader.Element<T>());
  while (reader.Take(','));
  reader.Require(']');
}

template <AnyElement T>
void ReadInto(TQorMatrix<T>& matrix, Reader& reader) {
  reader.Require('[');
  if (reader.Take(']')) return;
  do ReadInto(matrix.emplace_back(), reader);
  while (reader.Take(','));
  reader.Require(']');
}

template <class Array>
Array Read(std::string_view text) {
  Array array;
  Reader reader(text);
  ReadInto(array, reader);
  reader.RequireEnd();
  return array;
}

// Takes the text up to the bracket that closes the first one. Returns failbit if the next
// character is not an opening bracket, or if brackets are nested too deeply.
std::ios_base::iostate TakeBrackets(std::istream& in, int deepest, std::string& text) {
  int depth = 0;
  std::istreambuf_iterator<char> next(in);
  do {
    if (next == std::default_sentinel) return std::ios_base::eofbit | std::ios_base::failbit;
    if (*next == '[') ++depth;
    if (*next == ']') --depth;
    if (depth > deepest || (depth <= 0 && text.empty())) return std::ios_base::failbit;
    text += *next;
    ++next;
  } while (depth > 0);
  return std::ios_base::goodbit;
}

template <class Array>
std::istream& ReadFrom(std::istream& in, int deepest, Array& array) {
  if (const std::istream::sentry ready(in); !ready) return in;
  std::ios_base::iostate state = std::ios_base::goodbit;
  try {
    std::string text;
    state = TakeBrackets(in, deepest, text);
    if (state == std::ios_base::goodbit) array = Read<Array>(text);
  } catch (const EConvertError&) {
    state = std::ios_base::failbit;
  } catch (...) {
    detail::HandleStreamError(in);
  }
  in.setstate(state);
  return in;
}

}  // namespace

inline namespace QorvexGlobals {

template <AnyElement T>
TQorVector<T> Str2Vector(std::string_view text) {
  return Read<TQorVector<T>>(text);
}

template <AnyElement T>
TQorMatrix<T> Str2Matrix(std::string_view text) {
  return Read<TQorMatrix<T>>(text);
}

}  // namespace QorvexGlobals

template <AnyElement T>
std::istream& operator>>(std::istream& in, TQorVector<T>& vector) {
  return ReadFrom(in, 1, vector);
}

template <AnyElement T>
std::istream& operator>>(std::istream& in, TQorMatrix<T>& matrix) {
  return ReadFrom(in, 2, matrix);
}

#define QORVEX_INSTANTIATE(T)                                       \
  template TQorVector<T> Str2Vector(std::string_view);              \
  template TQorMatrix<T> Str2Matrix(std::string_view);              \
  template std::istream& operator>>(std::istream&, TQorVector<T>&); \
  template std::istream& operator>>(std::istream&, TQorMatrix<T>&);
QORVEX_FOR_ALL_ELEMENTS(QORVEX_INSTANTIATE)
#undef QORVEX_INSTANTIATE

}  // namespace qorvex
