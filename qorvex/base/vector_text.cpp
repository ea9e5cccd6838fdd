#include "qorvex/base/vector_text.h"

#include <algorithm>
#include <charconv>
#include <ostream>
#include <vector>

#include "qorvex/base/currency_text.h"
#include "qorvex/base/detail/stream_errors.h"

namespace qorvex {

namespace {

using Notation = ElementFormat::Notation;
using Alignment = ElementFormat::Alignment;

// The number of characters before and after the place at which the elements of a column meet.
struct Extent {
  std::size_t before = 0;
  std::size_t after = 0;
};

// Writes elements one after another.
template <AnyElement T>
class ElementWriter {
 public:
  explicit ElementWriter(const ElementFormat& format) : format_(format), buffer_(64, '\0') {}

  // The text of the element, valid until the next call.
  std::string_view Text(T value) {
    if constexpr (CurrencyElement<T>) {
      buffer_ = '+' + Currency2EStr(value);
      return WithSign({buffer_.data() + 1, buffer_.size() - 1});
    } else {
      if (value != value) return "nan";
      for (;;) {
        // The first character is left for a plus sign.
        char* const first = buffer_.data() + 1;
        const auto [end, error] = Convert(first, buffer_.data() + buffer_.size(), value);
        if (error == std::errc()) return WithSign({first, end});
        buffer_.resize(2 * buffer_.size());
      }
    }
  }

  Extent ExtentOf(std::string_view text) const {
    if (format_.alignment != Alignment::kPoint) return {text.size(), 0};
    const std::size_t before = std::min(text.find_first_of(".e"), text.size());
    return {before, text.size() - before};
  }

  // Appends the text, filled up to the width and to that of its column.
  void Append(std::string_view text, Extent column, std::string& out) const {
    const bool at_point = format_.alignment == Alignment::kPoint;
    const std::size_t gap = std::max(format_.width, column.before + column.after) - text.size();
    std::size_t right = 0;
    if (at_point) right = column.after - ExtentOf(text).after;
    if (format_.alignment == Alignment::kLeft) right = gap;
    if (format_.alignment == Alignment::kCentre) right = gap - gap / 2;
    out.append(gap - right, format_.fill);
    out += text;
    // Digits as fill characters would change the number here.
    out.append(right, at_point ? ' ' : format_.fill);
  }

 private:
  std::to_chars_result Convert(char* first, char* last, T value) const {
    if constexpr (FloatElement<T>) {
      switch (format_.notation) {
        case Notation::kFixed:
          return std::to_chars(first, last, value, std::chars_format::fixed, format_.precision);
        case Notation::kScientific:
          return std::to_chars(first, last, value, std::chars_format::scientific,
                               format_.precision);
        case Notation::kGeneral:
          return std::to_chars(first, last, value, std::chars_format::general, format_.precision);
        case Notation::kExact:
          break;
      }
    }
    return std::to_chars(first, last, value);
  }

  // The text without the minus sign of a rounded zero, and with a plus sign if the format has one.
  // There is room for a character before the text.
  std::string_view WithSign(std::string_view text) {
    if (text.front() == '-' && FloatElement<T> && format_.notation != Notation::kExact &&
        text.substr(0, text.find('e')).find_first_not_of("-0.") == std::string_view::npos) {
      text.remove_prefix(1);
    }
    if (!format_.plus || text.front() == '-') return text;
    char* const sign = buffer_.data() + (text.data() - buffer_.data()) - 1;
    *sign = '+';
    return {sign, text.size() + 1};
  }

  const ElementFormat& format_;
  std::string buffer_;
};

ElementFormat FormatOf(const std::ostream& out) {
  ElementFormat format;
  const std::ios_base::fmtflags notation = out.flags() & std::ios_base::floatfield;
  if (notation == std::ios_base::fixed) {
    format.notation = Notation::kFixed;
  } else if (notation == std::ios_base::scientific) {
    format.notation = Notation::kScientific;
  } else if (notation == std::ios_base::fmtflags() && out.precision() != 6) {
    format.notation = Notation::kGeneral;
  }
  const std::ios_base::fmtflags side = out.flags() & std::ios_base::adjustfield;
  if (side == std::ios_base::left) format.alignment = Alignment::kLeft;
  if (side == std::ios_base::right) format.alignment = Alignment::kRight;
  format.precision = static_cast<int>(out.precision());
  format.width = static_cast<std::size_t>(std::max<std::streamsize>(out.width(), 0));
  format.fill = out.fill();
  format.plus = (out.flags() & std::ios_base::showpos) != std::ios_base::fmtflags();
  return format;
}

// Writes what text_of returns for the settings of the stream.
template <class TextOf>
std::ostream& Write(std::ostream& out, TextOf text_of) {
  const ElementFormat format = FormatOf(out);
  out.width(0);
  std::string text;
  try {
    text = text_of(format);
  } catch (...) {
    detail::HandleStreamError(out);
    return out;
  }
  return out << text;
}

}  // namespace

inline namespace QorvexGlobals {

template <AnyElement T>
std::string Vector2Str(VectorView<T> vector, const ElementFormat& format) {
  ElementWriter<T> writer(format);
  std::string out = "[";
  for (const T& element : vector) {
    if (out.size() > 1) out += ", ";
    const std::string_view text = writer.Text(element);
    writer.Append(text, writer.ExtentOf(text), out);
  }
  return out += ']';
}

template <AnyElement T>
std::string Matrix2Str(const TQorMatrix<T>& matrix, const ElementFormat& format) {
  // All texts, one after another, and where each ends.
  ElementWriter<T> writer(format);
  std::string texts;
  std::vector<std::size_t> ends;
  std::vector<Extent> columns;
  for (const TQorVector<T>& row : matrix) {
    if (columns.size() < row.size()) columns.resize(row.size());
    for (std::size_t column = 0; column < row.size(); ++column) {
      const std::string_view text = writer.Text(row[column]);
      texts += text;
      ends.push_back(texts.size());
      const Extent extent = writer.ExtentOf(text);
      columns[column].before = std::max(columns[column].before, extent.before);
      columns[column].after = std::max(columns[column].after, extent.after);
    }
  }

  std::string out = "[";
  const std::string_view all_texts = texts;
  std::size_t begin = 0;
  auto end = ends.begin();
  for (const TQorVector<T>& row : matrix) {
    if (out.size() > 1) out += ",\n ";
    out += '[';
    for (std::size_t column = 0; column < row.size(); ++column) {
      if (column > 0) out += ", ";
      writer.Append(all_texts.substr(begin, *end - begin), columns[column], out);
      begin = *end++;
    }
    out += ']';
  }
  return out += ']';
}

}  // namespace QorvexGlobals

template <AnyElement T>
std::ostream& operator<<(std::ostream& out, const TQorVector<T>& vector) {
  return Write(out, [&](const ElementFormat& format) { return Vector2Str<T>(vector, format); });
}

template <AnyElement T>
std::ostream& operator<<(std::ostream& out, const TQorMatrix<T>& matrix) {
  return Write(out, [&](const ElementFormat& format) { return Matrix2Str(matrix, format); });
}

#define QORVEX_INSTANTIATE(T)                                                  \
  template std::string Vector2Str(VectorView<T>, const ElementFormat&);        \
  template std::string Matrix2Str(const TQorMatrix<T>&, const ElementFormat&); \
  template std::ostream& operator<<(std::ostream&, const TQorVector<T>&);      \
  template std::ostream& operator<<(std::ostream&, const TQorMatrix<T>&);
QORVEX_FOR_ALL_ELEMENTS(QORVEX_INSTANTIATE)
#undef QORVEX_INSTANTIATE

}  // namespace qorvex
