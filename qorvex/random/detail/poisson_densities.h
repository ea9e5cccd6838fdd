#pragma once

#include <cmath>

#include "qorvex/base/elementary.h"
#include "qorvex/base/elementary/functions.h"

namespace qorvex::inline QorvexRandom::detail {

// At a count k: the Poisson probability p_factor exp(p_exponent), and the density of the
// discretised normal variate, n_factor exp(n_exponent).
struct PoissonAndNormal {
  Extended p_exponent;
  Extended p_factor;
  Extended n_exponent;
  Extended n_factor;
};

// Procedure F of Ahrens and Dieter (1982), with its constants of seven digits.
class PoissonDensities {
 public:
  PoissonDensities(Extended mu, Extended deviation) : mu_(mu), deviation_(deviation) {
    omega_ = 0.3989423L / deviation;
    const Extended b1 = 0.04166667L / mu;
    const Extended b2 = 0.3L * b1 * b1;
    c3_ = 0.1428571L * b1 * b2;
    c2_ = b2 - 15 * c3_;
    c1_ = b1 - 6 * b2 + 45 * c3_;
    c0_ = 1 - b1 + 3 * b2 - 15 * c3_;
  }

  PoissonAndNormal At(Extended k) const {
    PoissonAndNormal at{};
    if (k < 10) {
      static constexpr Extended factorials[] = {1, 1, 2, 6, 24, 120, 720, 5040, 40320, 362880};
      at.p_exponent = -mu_;
      at.p_factor = XtoY(mu_, k) / factorials[static_cast<int>(k)];
    } else {
      Extended delta = 0.08333333L / k;
      delta -= 4.8L * delta * delta * delta;
      const Extended v = (mu_ - k) / k;
      at.p_exponent =
          std::fabs(v) > 0.25L ? k * Log(1 + v) - (mu_ - k) - delta : k * v * v * Series(v) - delta;
      at.p_factor = 0.3989423L / std::sqrt(k);
    }
    const Extended x = (k - mu_ + 0.5L) / deviation_;
    const Extended x2 = x * x;
    at.n_exponent = -0.5L * x2;
    at.n_factor = omega_ * (((c3_ * x2 + c2_) * x2 + c1_) * x2 + c0_);
    return at;
  }

 private:
  // (ln(1 + v) - v) / v^2.
  static Extended Series(Extended v) {
    return ((((((0.125006L * v - 0.1384794L) * v + 0.1421878L) * v - 0.1661269L) * v + 0.2000118L) *
                 v -
             0.2500068L) *
                v +
            0.3333333L) *
               v -
           0.5L;
  }

  Extended mu_;
  Extended deviation_;
  Extended omega_;
  Extended c0_;
  Extended c1_;
  Extended c2_;
  Extended c3_;
};

}  // namespace qorvex::inline QorvexRandom::detail
