#include "apps/common/unlimited_variates.h"

#include <cmath>
#include <cstdint>
#include <limits>

#include "qorvex/base/elementary.h"
#include "qorvex/base/elementary/functions.h"
#include "qorvex/random/QorvexRandom.h"
#include "qorvex/stats/distributions/figures.h"
#include "qorvex/stats/distributions/poisson.h"

namespace qorvex::apps {

namespace {

Extended PositiveUniform(UniformSource source) {
  Extended u = source();
  while (u == 0) u = source();
  return u;
}

// The method draws the cosine f of the angle, which is close to 1 for a large k. So it is 1 - f
// that is computed here, and r - 1, from h = 1/(2k) instead of k. All are then free of
// cancellation.
class WrappedCauchyRejection {
 public:
  explicit WrappedCauchyRejection(Extended k) : k_(k) {
    const Extended h = 0.5L / k;
    const Extended q_less_1 = h + h * h / (std::sqrt(1 + h * h) + 1);
    const Extended rho_below_1 = std::sqrt(2 * h * (1 + q_less_1)) - q_less_1;
    r_less_1_ = rho_below_1 * rho_below_1 / (2 * (1 - rho_below_1));
  }

  // From 0 to pi.
  [[nodiscard]] Extended Draw(UniformSource source) const {
    for (;;) {
      const Extended half = QorPi / 2 * source();
      const Extended sine = Sin(half);
      const Extended cosine = Cos(half);
      const Extended f_below_1 = 2 * r_less_1_ * sine * sine / (r_less_1_ + 2 * cosine * cosine);
      const Extended c = k_ * (r_less_1_ + f_below_1);
      const Extended u = source();
      if (u < c * (2 - c) || u <= c * Exp(1 - c)) return 2 * ArcSin(std::sqrt(f_below_1 / 2));
    }
  }

 private:
  Extended k_;
  Extended r_less_1_;
};

}  // namespace

FigureDraw PrepareStudentT(Extended df) {
  constexpr Extended largest_classic = std::numeric_limits<std::int32_t>::max();
  if (df == 1) return [](UniformSource source) { return Random_Cauchy(source); };
  if (df >= 3 && df <= largest_classic && df == std::trunc(df))
    return StudentTSampler(static_cast<std::int32_t>(df));
  if (df >= 2) {
    return [df, half_chi_square = GammaSampler(df / 2)](UniformSource source) {
      const Extended normal = Random_Normal(source);
      return normal / std::sqrt(2 * half_chi_square(source) / df);
    };
  }
  return [df, gamma = GammaSampler(df / 2 + 1)](UniformSource source) {
    const Extended normal = Random_Normal(source);
    const Extended root = std::sqrt(df / (2 * gamma(source)));
    return normal * root * Pow(PositiveUniform(source), -1 / df);
  };
}

FigureDraw PreparePoisson(Extended mean) {
  const PoissonSampler sampler(mean);
  if (mean >= 10) return sampler;
  return [sampler, distribution = PoissonDistribution(mean)](UniformSource source) {
    const Extended u = source();
    const Extended above = 1 - u;
    // More than the classic search leaves out.
    constexpr Extended far_tail = 1e-9L;
    return above > far_tail ? sampler([u] { return u; })
                            : static_cast<Extended>(UpperQuantile(distribution, above));
  };
}

FigureDraw PrepareVonMises(Extended k) {
  if (!(k >= 10)) return VonMisesSampler(k);
  return [rejection = WrappedCauchyRejection(k)](UniformSource source) {
    const Extended angle = rejection.Draw(source);
    return source() < 0.5L ? -angle : angle;
  };
}

}  // namespace qorvex::apps
