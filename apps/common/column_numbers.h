#pragma once

/// @file
/// The numbers of a column, kept as decimal integers where possible.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

#include "qorvex/base/vector_types.h"

namespace qorvex::apps {

/// integer * 10^exponent, exactly as written.
struct DecimalNumber {
  std::int64_t integer = 0;
  std::int64_t exponent = 0;
};

/// The number that the text is read as by Str2Float; empty if that is text, infinite or NaN, or if
/// its digits exceed 64 bits.
[[nodiscard]] std::optional<DecimalNumber> ParseDecimal(std::string_view text);

/// The numbers of a column in their order: integers that count units of 10^-decimals as long as all
/// of them fit, otherwise 80-bit values.
///
/// - Decimals: as many as the number with the most, at most 27, the largest power of ten that 64
///   bits of mantissa hold. So integer / 10^decimals is the correctly rounded value of the text.
/// - Zero has no sign.
/// - Memory: 8 bytes a number as integers, 16 as values.
class ColumnNumbers {
 public:
  /// Appends an exact number. Returns false, without any change, if the numbers are no integers or
  /// would not fit.
  [[nodiscard]] bool TryAppend(DecimalNumber number);
  /// The same for the number in the text of a cell, which Str2Float would read, and behind which
  /// eight bytes can be read. Returns false, without any change, for other texts, too.
  [[nodiscard]] bool TryAppendCell(std::string_view text);
  /// Appends a value. Integers become values.
  void Append(Extended value);
  /// Appends the numbers of another column, as if one by one.
  void Append(const ColumnNumbers& others);
  /// Provides room for that many numbers.
  void Reserve(std::size_t size);
  /// Sorts the numbers in ascending order. Copies and vectors taken before keep their order.
  void Sort();
  /// Releases memory that only further numbers would use.
  void ShrinkToFit();

  [[nodiscard]] std::size_t size() const noexcept { return integers_.size() + values_.size(); }
  [[nodiscard]] bool empty() const noexcept { return size() == 0; }

  /// Whether the numbers are integers.
  [[nodiscard]] bool AreDecimal() const noexcept { return are_decimal_; }
  /// The integers; empty unless AreDecimal().
  [[nodiscard]] const TQorInt64Vector& Integers() const noexcept { return integers_; }
  /// The largest absolute value among the integers.
  [[nodiscard]] std::uint64_t LargestInteger() const noexcept { return largest_; }
  /// 0 for values.
  [[nodiscard]] int Decimals() const noexcept { return decimals_; }
  /// Calls the function with the integers or else with the values.
  template <class Function>
  decltype(auto) Visit(Function function) const {
    return are_decimal_ ? function(integers_) : function(values_);
  }
  /// The value of that many units, 10^-decimals each; values count units of 1.
  [[nodiscard]] Extended ValueOf(Extended units) const;

  /// The numbers as values.
  [[nodiscard]] TQorFloatVector Values() const;
  /// The same. No numbers are left, so that the vector is the only handle to its buffer.
  [[nodiscard]] TQorFloatVector TakeValues();

 private:
  [[nodiscard]] bool Rescale(int decimals);
  void MakeValues();

  TQorInt64Vector integers_;
  TQorFloatVector values_;
  // The largest absolute value among the integers.
  std::uint64_t largest_ = 0;
  int decimals_ = 0;
  bool are_decimal_ = true;
};

}  // namespace qorvex::apps
