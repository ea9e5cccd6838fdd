#include "qorvex/random/von_mises.h"

#include <array>
#include <cmath>
#include <cstddef>

#include "qorvex/base/elementary.h"
#include "qorvex/base/elementary/functions.h"
#include "qorvex/base/errors.h"

namespace qorvex::inline QorvexRandom {

namespace {

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

VonMisesSampler::VonMisesSampler(Extended k) : k_(k), count_(1) {
  if (!(k >= 0)) RaiseMathError(rsInvalidValue);
  const Extended length = std::trunc(2 * k + 1);
  if (length > kMaxIntervals) RaiseMathError(rsInvalidValue);
  if (k > 0.5L) count_ = static_cast<std::size_t>(length);
  ends_[count_] = QorPi;
  weights_[0] = 1;
  if (count_ == 1) return;
  Extended sum = 0;
  for (std::size_t j = 0; j < count_; ++j) {
    if (j + 1 < count_) ends_[j + 1] = QorArcCos(1 - static_cast<Extended>(j + 1) / k);
    weights_[j] = Integral(k, ends_[j], ends_[j + 1]);
    sum += weights_[j];
  }
  for (std::size_t j = 0; j < count_; ++j) weights_[j] /= sum;
}

Extended VonMisesSampler::operator()(UniformSource source) const {
  Extended u = source();
  std::size_t j = 0;
  u -= weights_[0];
  while (!(u < 0) && j + 1 < count_) u -= weights_[++j];
  // The place runs from the end of the interval to its start. Rounding can leave a remainder after
  // the last interval; the place is then 0, without a division by the weight, which is 0 if 2k is
  // whole.
  Extended place = u < 0 ? -u / weights_[j] : 0;
  for (;;) {
    const Extended lo = ends_[j];
    const Extended angle = lo + place * (ends_[j + 1] - lo);
    if (IsAccepted(k_ - static_cast<Extended>(j) - k_ * Cosine(angle), source))
      return source() < 0.5L ? -angle : angle;
    place = source();
  }
}

Extended Random_von_Mises(Extended k, UniformSource source) {
  return VonMisesSampler(k)(source);
}

}  // namespace qorvex::inline QorvexRandom
