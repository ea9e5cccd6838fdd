#pragma once

/// @file
/// FixedPoint, the exact sum of any numbers that are integers times powers of two.

#include <cstdint>
#include <span>

#include "qorvex/base/exact/dyadic.h"
#include "qorvex/base/exact/limbs.h"
#include "qorvex/base/export.h"

namespace qorvex::exact {

/// A running total without rounding: a fixed-point number in two's complement that grows at both
/// ends where a sum needs it.
///
/// - A total of ordinary data has two or three words of 64 bits, one of squares four to six. Eight
///   need no allocation.
/// - It is made for being added to. Dyadic has the other operations.
class QORVEX_EXPORT FixedPoint {
 public:
  /// 0.
  FixedPoint() = default;
  /// The same number. EOverflow as Add.
  explicit FixedPoint(const Dyadic& value) {
    Add(value.Mantissa().Magnitude(), value.Exponent(), value.Sign() < 0);
  }

  /// Adds magnitude * 2^exponent, or subtracts it if `negative` is set. The magnitude starts with
  /// its least significant word. EOverflow unless -2^30 <= exponent <= 2^30.
  void Add(std::span<const std::uint64_t> magnitude, std::int64_t exponent, bool negative);
  /// The same for a magnitude of one word.
  void Add(std::uint64_t magnitude, std::int64_t exponent, bool negative) {
    Add({&magnitude, 1}, exponent, negative);
  }
  /// @{
  /// Adds or subtracts another total.
  FixedPoint& operator+=(const FixedPoint& other);
  FixedPoint& operator-=(const FixedPoint& other);
  /// @}

  /// -1, 0 or 1.
  [[nodiscard]] int Sign() const;
  /// The total.
  [[nodiscard]] Dyadic Value() const;

  /// The total as the shortest two's complement: words from the least significant on, of which the
  /// first is not 0 and counts 2^(64 position) each. Equal totals have equal words. 0 has none.
  struct Words {
    /// The weight of the first word is 2^(64 position).
    std::int32_t position = 0;
    /// The words. Valid until the total changes.
    std::span<const std::uint64_t> words;
  };
  /// The shortest form.
  [[nodiscard]] Words ShortestWords() const;
  /// The total with these words, in any number. EOverflow unless -2^24 <= position <= 2^24.
  [[nodiscard]] static FixedPoint FromWords(const Words& words);

  /// Equal totals.
  QORVEX_EXPORT friend bool operator==(const FixedPoint& a, const FixedPoint& b);

 private:
  [[nodiscard]] bool IsNegative() const {
    return words_.Size() > 0 && static_cast<std::int64_t>(words_[words_.Size() - 1]) < 0;
  }
  // Extends the words to [first, end) at least, with a highest word that cannot overflow.
  void Reserve(std::int32_t first, std::int32_t end);
  void Grow(std::int32_t first, std::int32_t end);
  void AddWords(const FixedPoint& other, bool negate);

  std::int32_t position_ = 0;
  Limbs words_;
};

}  // namespace qorvex::exact
