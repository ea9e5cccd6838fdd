#pragma once

/// @file
/// Classes of equal width and how many values fall into each.

#include <cstddef>
#include <vector>

#include "qorvex/base/vector_types.h"

namespace qorvex::gallery {

/// How wide the classes of a histogram are.
enum class ClassRule {
  /// Twice the inter-quartile range over the cube root of n: D. Freedman and P. Diaconis, On the
  /// histogram as a density estimator, 1981. Where the quartiles are the same, as kSturges.
  kFreedmanDiaconis,
  /// The range over 1 + log2 n: H. A. Sturges, The choice of a class interval, 1926.
  kSturges
};

/// Class i holds the values from edges[i] on and below edges[i + 1].
struct Histogram {
  std::vector<Extended> edges;      ///< One more than there are classes, or none.
  std::vector<std::size_t> counts;  ///< In each class.
  std::size_t total = 0;            ///< In all classes.

  /// The share of the values in the class, by its width: comparable with a density.
  [[nodiscard]] Extended Density(std::size_t index) const;
};

/// The histogram of the finite values; without classes when there are none.
///
/// The width by the rule is rounded to 1, 2 or 5 times a power of ten and the edges are multiples
/// of it: readers expect that, and rounded data fall evenly into such classes. Only values that
/// have nearly all digits in common get plain classes from the smallest to the largest one. Equal
/// values are one class around them. There are never more than 1000 classes. O(n log n).
[[nodiscard]] Histogram HistogramOf(const TQorFloatVector& values,
                                    ClassRule rule = ClassRule::kFreedmanDiaconis);

}  // namespace qorvex::gallery
