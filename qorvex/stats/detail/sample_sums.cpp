#include "qorvex/stats/detail/sample_sums.h"

#include "qorvex/stats/detail/moments.h"

namespace qorvex::inline QorvexStatistics::detail {

SumAndSquares AddUp(VectorView<Extended> vector) noexcept {
  // Not from 0, to which a negative zero would be lost.
  Extended sum = vector[0];
  Extended squares = Square(vector[0]);
  for (const Extended x : vector.subspan(1)) {
    sum += x;
    squares += Square(x);
  }
  return {sum, squares};
}

DeviationSums AddUpDeviations(VectorView<Extended> vector, Extended mean) noexcept {
  Extended squares = 0;
  Extended cubes = 0;
  Extended fourth_powers = 0;
  for (const Extended x : vector) {
    const Extended difference = x - mean;
    squares += Square(difference);
    cubes += Cube(difference);
    fourth_powers += FourthPower(difference);
  }
  return {squares, cubes, fourth_powers};
}

}  // namespace qorvex::inline QorvexStatistics::detail
