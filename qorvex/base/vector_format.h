#pragma once

/// @file
/// Vectors and matrices as arguments of libfmt, for programs that use it:
/// fmt::format("{:10.3f}", matrix).
///
/// - The text is that of Vector2Str and Matrix2Str; the format applies to each element.
/// - The format is [[fill]align][sign][width][.precision][type], with '<', '^' and '>' to
///   align, '+' and '-' as signs, and the types 'f', 'e' and 'g' of floating-point elements and 'd'
///   of integers. Without a type and a precision the text is exact, with a precision only it is
///   'g'. The precision is 6 if a type comes without one.
/// - What else fmt knows, and a precision for integers or amounts, is rejected: at compile time, or
///   with fmt::format_error in a text given at run time.
/// - The library itself neither includes this header nor needs libfmt.

#include <algorithm>
#include <cstddef>
#include <fmt/ranges.h>
#include <string_view>
#include <type_traits>

#include "qorvex/base/vector_text.h"

/// @cond internal
namespace qorvex::detail {

// Reads a format from left to right.
template <AnyElement T>
class ElementFormatParser {
 public:
  constexpr const char* parse(fmt::format_parse_context& context) {
    rest_ = std::string_view(context.begin(),
                             static_cast<std::size_t>(context.end() - context.begin()));
    ReadAlignment();
    if (Next() == '+' || Next() == '-') format_.plus = Take() == '+';
    if (Next() != '0') format_.width = ReadNumber(0);
    ReadNotation();
    if (!rest_.empty() && Next() != '}') Refuse();
    return rest_.data();
  }

 protected:
  ElementFormat format_;

 private:
  constexpr char Next() const { return rest_.empty() ? '\0' : rest_.front(); }

  constexpr char Take() {
    const char next = Next();
    rest_.remove_prefix(1);
    return next;
  }

  static constexpr bool IsAlignment(char c) { return c == '<' || c == '^' || c == '>'; }

  constexpr void ReadAlignment() {
    if (Next() == '}') return;
    if (rest_.size() > 1 && IsAlignment(rest_[1])) {
      format_.fill = Take();
      if (format_.fill == '{') Refuse();
    }
    if (!IsAlignment(Next())) return;
    const char side = Take();
    format_.alignment = side == '<'   ? ElementFormat::Alignment::kLeft
                        : side == '^' ? ElementFormat::Alignment::kCentre
                                      : ElementFormat::Alignment::kRight;
  }

  // The digits that come next, or the other value without any.
  constexpr std::size_t ReadNumber(std::size_t otherwise) {
    constexpr std::size_t kLimit = 1'000'000'000;
    if (Next() < '0' || Next() > '9') return otherwise;
    std::size_t number = 0;
    while (Next() >= '0' && Next() <= '9') {
      number = number * 10 + static_cast<std::size_t>(Take() - '0');
      if (number > kLimit) Refuse();
    }
    return number;
  }

  constexpr void ReadNotation() {
    using enum ElementFormat::Notation;
    if constexpr (IntegerElement<T>) {
      if (Next() == 'd') Take();
    } else if constexpr (FloatElement<T>) {
      if (Next() == '.') {
        Take();
        constexpr std::size_t kNone = static_cast<std::size_t>(-1);
        const std::size_t precision = ReadNumber(kNone);
        if (precision == kNone) Refuse();
        format_.precision = static_cast<int>(precision);
        format_.notation = kGeneral;
      }
      if (Next() == 'f' || Next() == 'e' || Next() == 'g') {
        const char type = Take();
        format_.notation = type == 'f' ? kFixed : type == 'e' ? kScientific : kGeneral;
      }
    }
  }

  static void Refuse() { throw fmt::format_error("invalid format of a vector or matrix"); }

  std::string_view rest_;
};

}  // namespace qorvex::detail

namespace fmt {

// Not formatted as ranges.
template <class T>
struct is_range<qorvex::DynArray<T>, char> : std::false_type {};

template <qorvex::AnyElement T>
struct formatter<qorvex::DynArray<T>> : qorvex::detail::ElementFormatParser<T> {
  auto format(const qorvex::DynArray<T>& vector, format_context& context) const {
    return std::ranges::copy(qorvex::Vector2Str(vector, this->format_), context.out()).out;
  }
};

template <qorvex::AnyElement T>
struct formatter<qorvex::DynArray<qorvex::DynArray<T>>> : qorvex::detail::ElementFormatParser<T> {
  auto format(const qorvex::DynArray<qorvex::DynArray<T>>& matrix, format_context& context) const {
    return std::ranges::copy(qorvex::Matrix2Str(matrix, this->format_), context.out()).out;
  }
};

}  // namespace fmt
/// @endcond
