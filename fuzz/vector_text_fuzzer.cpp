// For any text and every element type: only EConvertError is thrown, and what was read is written
// as a text that is read back as the same bits. A stream is read like a text.

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <optional>
#include <sstream>
#include <string>

#include "fuzz/require.h"
#include "qorvex/base/errors.h"
#include "qorvex/base/vector_text.h"

namespace {

using namespace qorvex;

template <AnyElement T>
bool Identical(T a, T b) {
  if constexpr (FloatElement<T>) {
    return std::isnan(a) ? std::isnan(b) : a == b && std::signbit(a) == std::signbit(b);
  }
  return a == b;
}
template <class T>
bool Identical(const DynArray<T>& a, const DynArray<T>& b) {
  return std::ranges::equal(a, b, [](const T& x, const T& y) { return Identical(x, y); });
}

// The result of read(), or nothing if it throws EConvertError.
auto Try(const std::string& text, auto read) -> std::optional<decltype(read())> {
  try {
    return read();
  } catch (const EConvertError& error) {
    // A zero byte in the rejected piece ends what().
    Require(std::string_view(error.what()).find("(character ") != std::string_view::npos ||
                text.find('\0') != std::string::npos,
            "a message without a position");
    return std::nullopt;
  }
}

template <class Array>
void CheckStream(const std::string& text, const std::optional<Array>& expected) {
  std::istringstream in(text);
  Array array;
  if (in >> array) {
    in >> std::ws;
    Require(expected.has_value() == in.eof(), "a stream and a text are read differently");
    Require(!expected || Identical(array, *expected), "a stream gives other elements");
  } else {
    Require(!expected && array.empty(), "a stream refuses what a text does not");
  }
}

template <AnyElement T>
void CheckType(const std::string& text) {
  const auto vector = Try(text, [&] { return Str2Vector<T>(text); });
  if (vector) Require(Identical(Str2Vector<T>(Vector2Str(*vector)), *vector), "another vector");
  CheckStream(text, vector);

  const auto matrix = Try(text, [&] { return Str2Matrix<T>(text); });
  if (matrix) Require(Identical(Str2Matrix<T>(Matrix2Str(*matrix)), *matrix), "another matrix");
  CheckStream(text, matrix);
  Require(!vector || !matrix || (vector->empty() && matrix->empty()),
          "both a vector and a matrix with elements");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), size);
#define QORVEX_CHECK(T) CheckType<T>(text);
  QORVEX_FOR_ALL_ELEMENTS(QORVEX_CHECK)
#undef QORVEX_CHECK
  return 0;
}
