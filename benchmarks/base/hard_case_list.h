#pragma once

#include <string>
#include <vector>

#include "base/elementary/elementary_functions.h"

namespace qorvex::benchmarks {

/// The arguments of a function whose results are closest to a number or to the midpoint of two.
class HardCaseList {
 public:
  /// Keeps at most `size` cases, and at most `for_distance` within each power of two of distance.
  HardCaseList(const testing::ElementaryFunction& function, std::size_t size,
               std::ptrdiff_t for_distance)
      : function_(function), size_(size), for_distance_(for_distance) {}

  /// Keeps the arguments if they are among the closest, and not exact.
  void Add(const testing::Arguments& arguments);
  /// Rows of a table: function, x, y, kind, base-2 logarithm of the distance in units of the last
  /// place; the closest first.
  [[nodiscard]] std::string Rows() const;
  [[nodiscard]] bool IsEmpty() const { return cases_.empty(); }
  [[nodiscard]] Extended Closest() const { return cases_.front().distance; }

 private:
  struct Case {
    testing::Arguments arguments;
    bool to_midpoint;
    Extended distance;
  };

  const testing::ElementaryFunction& function_;
  std::size_t size_;
  std::ptrdiff_t for_distance_;
  testing::Reference reference_;
  std::vector<Case> cases_;
};

}  // namespace qorvex::benchmarks
