#pragma once

/// @file
/// Histograms with classes of equal width.

#include <cstddef>
#include <vector>

#include "qorvex/base/vector_types.h"

namespace qorvex::gallery {

/// The rule for the width of the classes.
enum class ClassRule {
  /// Twice the inter-quartile range over the cube root of n: D. Freedman and P. Diaconis, On the
  /// histogram as a density estimator, 1981. If the quartiles are equal, the same as kSturges.
  kFreedmanDiaconis,
  /// The range over 1 + log2 n: H. A. Sturges, The choice of a class interval, 1926.
  kSturges
};

/// Class i contains the values in [edges[i], edges[i + 1]).
struct Histogram {
  std::vector<Extended> edges;      ///< One more than the number of classes, or none.
  std::vector<std::size_t> counts;  ///< In each class.
  std::size_t total = 0;            ///< In all classes.

  /// The share of the values in a class divided by its width, comparable with a density.
  [[nodiscard]] Extended Density(std::size_t index) const;
};

/// The histogram of the finite values; without classes if no value is finite.
///
/// - The width is rounded to 1, 2 or 5 times a power of ten, and the edges are multiples of it.
///   Readers expect this, and rounded data spread evenly over such classes.
/// - If the values have nearly all digits in common, the classes divide the range evenly instead.
/// - If all values are equal, there is one class around them.
/// - There are at most 1000 classes.
/// - O(n log n).
[[nodiscard]] Histogram HistogramOf(const TQorFloatVector& values,
                                    ClassRule rule = ClassRule::kFreedmanDiaconis);

/// The histogram of the finite values with this number of classes, which divide the range evenly;
/// with fewer if there are fewer floating-point numbers in the range, and with one if all values
/// are equal.
[[nodiscard]] Histogram HistogramOf(const TQorFloatVector& values, std::size_t classes);

/// The finite values in ascending order.
[[nodiscard]] TQorFloatVector SortedFinite(const TQorFloatVector& values);

}  // namespace qorvex::gallery
