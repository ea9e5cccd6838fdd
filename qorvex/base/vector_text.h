#pragma once

/// @file
/// Converts vectors and matrices to text and back, exactly and independently of the locale.
///
/// A vector is written as [1, 2.5, -3], a matrix as its rows with aligned columns:
///
///     [[ 1, 2.5],
///      [30, 4  ]]
///
/// - Without elements they are [], and an empty row is [] on its line; rows may differ in length.
/// - Floating-point elements are the shortest text that identifies the value in its own type: 0.1
///   as double is 0.1. NaN is "nan", the infinities are "inf" and "-inf".
/// - All integers are written as numbers. Amounts have all decimals of their type.

#include <cstddef>
#include <iosfwd>
#include <string>
#include <string_view>

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexGlobals {

/// How the elements of a vector or a matrix are written.
struct ElementFormat {
  /// The notation of floating-point elements. Rounding is correct, ties to even; a value that
  /// rounds to zero has no sign.
  enum class Notation : unsigned char {
    kExact,       ///< The shortest text that identifies the value, in fixed or scientific notation.
    kFixed,       ///< As many decimals as the precision says.
    kScientific,  ///< One digit, as many decimals as the precision says, and an exponent.
    kGeneral      ///< As many significant digits as the precision says, without trailing zeros.
  };
  /// The place of an element in its column, or of an element of a vector in its width.
  enum class Alignment : unsigned char {
    kPoint,  ///< Decimal points one below the other; on the right otherwise.
    kLeft,
    kCentre,
    kRight
  };

  Notation notation = Notation::kExact;     ///< The notation.
  Alignment alignment = Alignment::kPoint;  ///< The alignment.
  int precision = 6;      ///< Not used by the exact notation, integers and amounts.
  std::size_t width = 0;  ///< The least number of characters of each element.
  char fill = ' ';        ///< Fills up shorter elements, before their sign; not after a point.
  bool plus = false;      ///< A plus sign before elements that have no minus sign. NaN has no sign.
};

/// @{
/// The vector as text: [1, 2.5, -3]. O(n).
template <AnyElement T>
[[nodiscard]] QORVEX_EXPORT std::string Vector2Str(VectorView<T> vector,
                                                   const ElementFormat& format = {});
template <ContiguousRange Range>
requires AnyElement<ElementOf<Range>>
[[nodiscard]] inline std::string Vector2Str(const Range& vector, const ElementFormat& format = {}) {
  return Vector2Str<ElementOf<Range>>(vector, format);
}
/// @}

/// The matrix as text, a row to a line, with aligned columns. O(number of elements).
template <AnyElement T>
[[nodiscard]] QORVEX_EXPORT std::string Matrix2Str(const TQorMatrix<T>& matrix,
                                                   const ElementFormat& format = {});

/// @{
/// The vector or matrix that the text represents: Str2Vector<double>("[1, 2.5]").
///
/// - Reads what operator<<, Vector2Str and Matrix2Str write, unless it is filled up with other
///   characters than blanks. White space may surround every bracket, comma and element.
/// - An element is what Str2Float, or for amounts Str2Currency and its siblings, accept; for
///   integers a sign and digits. Floating-point elements are rounded once, to their own type, so
///   exact texts give the same bits, except that NaN loses its sign and payload. Values too small
///   for the type become 0 or subnormal.
/// - EConvertError, which quotes the first piece that cannot be read and gives the number of its
///   first character, from 1: rsNotANumber or rsNotAnInteger for an element of another form;
///   rsNumberTooLarge for one out of range; rsUnexpectedText where a bracket, a comma, an element
///   or the end should be; rsUnexpectedEnd if the text ends too early.
/// - O(length of the text) in time and memory.
template <AnyElement T>
[[nodiscard]] QORVEX_EXPORT TQorVector<T> Str2Vector(std::string_view text);
template <AnyElement T>
[[nodiscard]] QORVEX_EXPORT TQorMatrix<T> Str2Matrix(std::string_view text);
/// @}

}  // namespace qorvex::inline QorvexGlobals

namespace qorvex {

/// @{
/// Reads up to the bracket that closes the first one, and converts like Str2Vector and Str2Matrix.
///
/// - If that fails, it sets failbit and changes nothing. What does not begin with a bracket is not
///   read.
/// - Other exceptions, such as those of the stream buffer, set badbit and are passed on only if
///   exceptions() contains badbit, as for the operators of the standard library.
template <AnyElement T>
QORVEX_EXPORT std::istream& operator>>(std::istream& in, TQorVector<T>& vector);
template <AnyElement T>
QORVEX_EXPORT std::istream& operator>>(std::istream& in, TQorMatrix<T>& matrix);
/// @}

}  // namespace qorvex
