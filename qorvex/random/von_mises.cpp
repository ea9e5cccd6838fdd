#include "qorvex/random/von_mises.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <iterator>
#include <span>

#include "qorvex/base/elementary.h"
#include "qorvex/base/elementary/functions.h"
#include "qorvex/base/errors.h"

namespace qorvex::inline QorvexRandom {

namespace {

// The Gauss-Legendre rule with six nodes, for the interval from -1 to 1. Each node stands for
// itself and its negative.
struct Node {
  Extended abscissa;
  Extended weight;
};
constexpr Node kNodes[] = {{0.238619186083197L, 0.467913934572691L},
                           {0.661209386466265L, 0.360761573048139L},
                           {0.932469514203152L, 0.171324492379170L}};

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
  for (std::size_t j = 1; j < count_; ++j) ends_[j] = QorArcCos(1 - static_cast<Extended>(j) / k);
  ComputeWeights();
}

// The integrals of exp(k cos x) over the intervals, divided by their sum. The functions are
// computed over the nodes of all intervals at once, which takes two thirds of the time of single
// calls.
void VonMisesSampler::ComputeWeights() {
  std::array<Extended, 2 * std::size(kNodes) * kMaxIntervals> room;
  std::size_t size = 0;
  for (std::size_t j = 0; j < count_; ++j) {
    const Extended mid = (ends_[j] + ends_[j + 1]) / 2;
    const Extended half = (ends_[j + 1] - ends_[j]) / 2;
    for (const Node& node : kNodes) {
      room[size++] = mid + node.abscissa * half;
      room[size++] = mid - node.abscissa * half;
    }
  }
  const std::span<Extended> values(room.data(), size);
  Cos(values, values);
  for (Extended& value : values) value *= k_;
  Exp(values, values);

  const Extended* value = room.data();
  Extended sum = 0;
  for (std::size_t j = 0; j < count_; ++j) {
    Extended rule = 0;
    for (const Node& node : kNodes) {
      rule += node.weight * (value[0] + value[1]);
      value += 2;
    }
    weights_[j] = (ends_[j + 1] - ends_[j]) / 2 * rule;
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
    if (IsAccepted(k_ - static_cast<Extended>(j) - k_ * Cos(angle), source))
      return source() < 0.5L ? -angle : angle;
    place = source();
  }
}

Extended Random_von_Mises(Extended k, UniformSource source) {
  return VonMisesSampler(k)(source);
}

}  // namespace qorvex::inline QorvexRandom
