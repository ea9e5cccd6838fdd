#include "qorvex/random/von_mises.h"

#include <array>
#include <cmath>
#include <cstddef>

#include "qorvex/base/elementary.h"
#include "qorvex/base/elementary/functions.h"
#include "qorvex/base/errors.h"

namespace qorvex::inline QorvexRandom {

namespace {

constexpr std::size_t kMaxIntervals = 20;

// The cosine of an angle from 0 to pi, reduced to a sine or cosine of an angle up to pi/4, because
// the C library takes ten times as long for larger ones.
Extended Cosine(Extended x) {
  if (x < QorPi / 4) return Cos(x);
  return x < 3 * QorPi / 4 ? Sin(QorPi / 2 - x) : -Cos(QorPi - x);
}

// The integral of exp(k cos x) from lo to hi.
Extended Integral(Extended k, Extended lo, Extended hi) {
  struct Node {
    Extended abscissa;
    Extended weight;
  };
  static constexpr Node nodes[] = {{0.238619186083197L, 0.467913934572691L},
                                   {0.661209386466265L, 0.360761573048139L},
                                   {0.932469514203152L, 0.171324492379170L}};
  const Extended mid = (lo + hi) / 2;
  const Extended half = (hi - lo) / 2;
  Extended sum = 0;
  for (const Node& node : nodes) {
    sum += node.weight * (Exp(k * Cosine(mid + node.abscissa * half)) +
                          Exp(k * Cosine(mid - node.abscissa * half)));
  }
  return half * sum;
}

// The intervals of (0, pi), over each of which k cos x falls by at most 1, and their probabilities.
struct Intervals {
  explicit Intervals(Extended k) {
    if (!(k >= 0)) RaiseMathError(rsInvalidValue);
    const Extended length = std::trunc(2 * k + 1);
    if (length > kMaxIntervals) RaiseMathError(rsInvalidValue);
    count = k <= 0.5L ? 1 : static_cast<std::size_t>(length);
    ends[count] = QorPi;
    weights[0] = 1;
    if (count == 1) return;
    Extended sum = 0;
    for (std::size_t j = 0; j < count; ++j) {
      if (j + 1 < count) ends[j + 1] = QorArcCos(1 - static_cast<Extended>(j + 1) / k);
      weights[j] = Integral(k, ends[j], ends[j + 1]);
      sum += weights[j];
    }
    for (std::size_t j = 0; j < count; ++j) weights[j] /= sum;
  }

  std::size_t count;
  std::array<Extended, kMaxIntervals + 1> ends{};
  std::array<Extended, kMaxIntervals> weights;
};

// True with probability exp(-x), for x in [0, 1]: if the longest descending run of uniform values
// below x has an even length.
bool IsAccepted(Extended x, UniformSource source) {
  bool accepted = true;
  for (Extended u = source(); u <= x; u = source()) {
    x = u;
    accepted = !accepted;
  }
  return accepted;
}

}  // namespace

Extended Random_von_Mises(Extended k, UniformSource source) {
  const Intervals intervals(k);
  Extended u = source();
  std::size_t j = 0;
  u -= intervals.weights[0];
  while (!(u < 0) && j + 1 < intervals.count) u -= intervals.weights[++j];
  // The place runs from the end of the interval to its start. Rounding can leave a remainder after
  // the last interval; the place is then 0, without a division by the weight, which is 0 if 2k is
  // whole.
  Extended place = u < 0 ? -u / intervals.weights[j] : 0;
  for (;;) {
    const Extended lo = intervals.ends[j];
    const Extended angle = lo + place * (intervals.ends[j + 1] - lo);
    if (IsAccepted(k - static_cast<Extended>(j) - k * Cosine(angle), source))
      return source() < 0.5L ? -angle : angle;
    place = source();
  }
}

}  // namespace qorvex::inline QorvexRandom
