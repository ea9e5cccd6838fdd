#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "qorvex/base/element_types.h"
#include "qorvex/base/exact/dyadic.h"
#include "qorvex/stats/exact/fixed_point.h"

namespace qorvex::detail {

/// The exact sums of w x^k for k up to twice a degree, of w x^k y up to the degree, and of w y^2.
class PowerSums {
 public:
  explicit PowerSums(std::size_t degree);

  /// The sum with y of x to this power; for the degree plus 1, that of y^2. That without y is in
  /// the slot of its power.
  [[nodiscard]] static std::size_t ResponseSlot(std::size_t degree, std::size_t power) {
    return 2 * degree + 1 + power;
  }

  /// Adds a row. EInvalidOp for a value that is not finite.
  void Add(Extended x, Extended y, Extended w);
  [[nodiscard]] std::vector<exact::Dyadic> Values() const;

 private:
  // A product of up to 2 degree + 1 factors: words from the least significant on.
  struct Product {
    std::vector<std::uint64_t> words;
    std::int64_t exponent;
    bool negative;

    void operator*=(const exact::Dyadic& factor);
  };

  void AddTo(std::size_t slot, const Product& product);

  std::size_t degree_;
  std::vector<exact::FixedPoint> sums_;
  Product power_;
  Product with_response_;
};

}  // namespace qorvex::detail
