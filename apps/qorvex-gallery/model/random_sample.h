#pragma once

/// @file
/// Random samples.

#include <QPointF>
#include <QString>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "apps/common/variates.h"
#include "apps/qorvex-gallery/model/background_work.h"

namespace qorvex::gallery {

/// What to draw.
struct SampleOrder {
  const apps::Variate* variate = nullptr;
  std::vector<Extended> parameters;
  std::size_t size = 0;
  std::uint64_t seed = 0;
};

/// A sample and what the page shows about it.
struct RandomSample {
  SampleOrder order;
  TQorFloatVector values;
  Extended mean = 0;
  Extended variance = 0;
  /// How many classes the histogram has; 0 for as many as fit the values.
  std::size_t classes = 0;
  /// The histogram, on the scale of a density: the left edge of the first bar, then the upper right
  /// corner of each bar.
  std::vector<QPointF> bars;
  /// Whether the bars leave out the outermost hundredth, which would squeeze the rest into a line.
  bool is_cropped = false;
};

/// Draws a sample of at least two values of a variate that is a single number. If proceed stops it,
/// the sample has no values. Uses the generator of the program, so only one thread at a time may
/// call it. Throws std::runtime_error if the variate refuses the parameters.
[[nodiscard]] RandomSample DrawSample(const SampleOrder& order, const Proceed& proceed);

/// The sample with another number of classes in its histogram, or for 0 with as many as fit the
/// values or with a bar for each count. O(n log n).
[[nodiscard]] RandomSample WithClasses(RandomSample sample, std::size_t classes);

/// Writes the values to a file, one per line with all digits. If proceed stops it, the file stays
/// as it was. Throws std::runtime_error if the file cannot be written.
void SaveValues(const TQorFloatVector& values, const QString& path, const Proceed& proceed);

}  // namespace qorvex::gallery
