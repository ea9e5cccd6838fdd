#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "qorvex/base/element_types.h"
#include "qorvex/base/exact/dyadic.h"
#include "qorvex/stats/exact/detail/words.h"
#include "qorvex/stats/exact/fixed_point.h"

namespace qorvex::regression {

/// A magnitude, from its least significant word on, times a power of two.
struct WordProduct {
  std::vector<exact::detail::Word> words;
  std::int64_t exponent = 0;
  bool negative = false;

  /// @{
  /// this = value, in one word, and this = a * factor, in one word more than a. EInvalidOp for a
  /// number that is not finite.
  void Set(const Extended& value);
  void SetProduct(const WordProduct& a, const Extended& factor);
  /// @}
};

/// An exact sum of products of one length. Most go to a table with a counter for each exponent
/// and sign, where adding needs no shift.
class WordSum {
 public:
  /// Of products of this many words.
  explicit WordSum(std::size_t words) : stride_(words + 1) {}

  void Add(const WordProduct& product);
  [[nodiscard]] exact::Dyadic Value() const;

 private:
  static constexpr std::uint64_t kExponents = 128;
  // So few are added one by one.
  static constexpr int kFew = 32;

  int few_ = 0;
  std::size_t stride_;       // words of a counter, the highest for carries
  std::int64_t lowest_ = 0;  // the exponent of the first counter
  std::vector<exact::detail::Word> counters_;
  exact::FixedPoint outside_;  // the sum of products with other exponents
};

/// The exact sums of w x^k for k up to twice a degree, of w x^k y up to the degree, and of w y^2.
class PolynomialSums {
 public:
  explicit PolynomialSums(std::size_t degree);

  /// The slot of the sum with y of x to this power; for the degree plus 1, that of y^2. The sum
  /// without y is in the slot of its power.
  [[nodiscard]] static std::size_t ResponseSlot(std::size_t degree, std::size_t power) {
    return 2 * degree + 1 + power;
  }

  /// Adds rows; `w` is empty for weights of 1. EInvalidOp for a value that is not finite.
  void Add(std::span<const Extended> x, std::span<const Extended> y, std::span<const Extended> w);
  [[nodiscard]] std::vector<exact::Dyadic> Values() const;

 private:
  std::size_t degree_;
  std::vector<WordSum> sums_;
};

}  // namespace qorvex::regression
