#pragma once

/// @file
/// Classes of equal width.

#include <cstddef>
#include <cstdint>
#include <string>

#include "apps/common/column_numbers.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::apps {

/// The bounds of classes of equal width. Decimals are exact: the third class of width 0.1 from 1.5
/// on begins at 1.7.
class ClassBounds {
 public:
  /// From the texts of two numbers, of which the width is positive.
  ClassBounds(const std::string& lower, const std::string& width);
  /// From the largest multiple of the width that is not above the minimum of the numbers, of which
  /// there is at least one.
  ClassBounds(const ColumnNumbers& numbers, const std::string& width);

  /// The lower bound of the class with this index, which is the upper bound of the one before.
  [[nodiscard]] Extended operator[](std::size_t index) const;
  [[nodiscard]] Extended Width() const;

 private:
  // The lower bound of the first class and the width.
  ColumnNumbers numbers_;
};

/// The round width next above the range of the numbers over 1 + log2 n (Sturges 1926, "The choice
/// of a class interval"); 1 if all numbers are equal. There is at least one.
[[nodiscard]] std::string UsualWidth(const ColumnNumbers& numbers);

/// How many numbers are in each class, up to the last one with a number. None is below the first
/// class.
[[nodiscard]] TQorLWordVector CountsIn(const ClassBounds& bounds, const ColumnNumbers& numbers);

}  // namespace qorvex::apps
