#include "qorvex/random/student_t.h"

#include <cmath>

#include "qorvex/base/elementary/functions.h"
#include "qorvex/base/errors.h"

namespace qorvex::inline QorvexRandom {

StudentTSampler::StudentTSampler(std::int32_t df)
    : s_(static_cast<Extended>(df)), c_(-0.25L * (s_ + 1)) {
  if (df < 1) RaiseMathError(rsInvalidValue);
  a_ = 4 / Power(1);
  b_ = df > 1 ? Pow((s_ + 1) / (s_ - 1), c_) * std::sqrt(2 * s_ / (s_ - 1)) : 1;
  f_ = 16 / a_;
}

Extended StudentTSampler::Power(Extended x) const {
  return Pow(1 + x / s_, c_);
}

Extended StudentTSampler::operator()(UniformSource source) const {
  for (;;) {
    Extended u = source();
    while (u <= 0) u = source();
    const Extended v = source();
    const Extended x = b_ * (2 * v - 1) / u;
    const Extended q = x * x;
    if (q <= 5 - a_ * u) return x;
    if (u * (q + 3) <= f_ && u <= Power(q)) return x;
  }
}

Extended Random_T(std::int32_t df, UniformSource source) {
  return StudentTSampler(df)(source);
}

}  // namespace qorvex::inline QorvexRandom
