#include "apps/qorvex-gallery/model/variate_theory.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <memory>
#include <numbers>
#include <string_view>
#include <vector>

#include "apps/common/distributions.h"

namespace qorvex::gallery {

namespace {

using Parameters = std::span<const Extended>;

// NaN for what there is not.
constexpr Extended kNone = std::numeric_limits<Extended>::quiet_NaN();

Extended WeibullDensity(Parameters p, Extended x) {
  if (!(x > 0)) return 0;
  const Extended power = std::pow(x / p[1], p[0]);
  return std::abs(p[0]) / x * power * std::exp(-power);
}

// The mean of the power of a Weibull variate of scale 1.
Extended WeibullMoment(Parameters p, int power) {
  const Extended argument = 1 + static_cast<Extended>(power) / p[0];
  return argument > 0 ? std::tgamma(argument) : kNone;
}

Extended CauchyDensity(Parameters p, Extended x) {
  const Extended distance = (x - p[0]) / p[1];
  return std::numbers::inv_pi_v<Extended> / (p[1] * (1 + distance * distance));
}

// The Bessel function I0 of x >= 0, times e^-x: by its power series, and by its asymptotic one
// where the terms of that fall below 1e-20.
Extended ScaledBesselI0(Extended x) {
  const bool far = x > 30;
  Extended term = 1;
  Extended sum = 1;
  for (int i = 1; term > sum * 1e-20L; ++i) {
    const auto n = static_cast<Extended>(i);
    term *= far ? (2 * n - 1) * (2 * n - 1) / (8 * n * x) : x * x / (4 * n * n);
    sum += term;
  }
  return sum * (far ? 1 / std::sqrt(2 * std::numbers::pi_v<Extended> * x) : std::exp(-x));
}

Extended VonMisesDensity(Parameters p, Extended x) {
  const Extended sine = std::sin(x / 2);
  return std::exp(-2 * p[0] * sine * sine) /
         (2 * std::numbers::pi_v<Extended> * ScaledBesselI0(p[0]));
}

Extended NegativeBinomialProbability(Parameters p, Extended k) {
  return std::exp(std::lgamma(k + p[1]) - std::lgamma(k + 1) - std::lgamma(p[1]) +
                  k * std::log(p[0]) + p[1] * std::log1p(-p[0]));
}

struct Moments {
  std::string_view variate;
  Extended (*mean)(Parameters p);
  Extended (*variance)(Parameters p);
};

constexpr Moments kMoments[] = {
    {"uniform", [](Parameters) { return 0.5L; }, [](Parameters) { return 1 / 12.0L; }},
    {"weibull", [](Parameters p) { return p[1] * WeibullMoment(p, 1); },
     [](Parameters p) {
       const Extended mean = WeibullMoment(p, 1);
       return p[1] * p[1] * (WeibullMoment(p, 2) - mean * mean);
     }},
    {"von-mises", [](Parameters) { return 0.0L; }, [](Parameters) { return kNone; }},
    {"negative-binomial", [](Parameters p) { return p[1] * p[0] / (1 - p[0]); },
     [](Parameters p) { return p[1] * p[0] / ((1 - p[0]) * (1 - p[0])); }},
};

struct OwnDensity {
  std::string_view variate;
  Extended (*density)(Parameters p, Extended x);
};

// Of the variates that are no families of distributions.
constexpr OwnDensity kOwnDensities[] = {
    {"uniform", [](Parameters, Extended x) { return x >= 0 && x < 1 ? 1.0L : 0.0L; }},
    {"weibull", WeibullDensity},
    {"cauchy", CauchyDensity},
    {"von-mises", VonMisesDensity},
    {"negative-binomial", NegativeBinomialProbability},
};

// A variate may go beyond what the family computes, such as 2^32 trials.
bool Takes(const apps::Family& family, Parameters parameters) {
  return std::equal(parameters.begin(), parameters.end(), family.parameters.begin(),
                    [](Extended number, const apps::NumberParameter& parameter) {
                      return apps::WhatIsWrong(number, parameter.kind) == nullptr;
                    });
}

std::optional<Extended> Existing(Extended value) {
  return std::isfinite(value) ? std::optional(value) : std::nullopt;
}

}  // namespace

VariateTheory TheoryOf(const apps::Variate& variate, Parameters parameters) {
  VariateTheory theory;
  const apps::Family* const family = apps::FindFamily(variate.name);
  theory.is_count = family != nullptr && family->is_discrete;
  if (family != nullptr && Takes(*family, parameters)) {
    const std::shared_ptr<const apps::AnyDistribution> distribution = family->make(parameters);
    theory.density = [distribution](Extended x) { return distribution->Pdf(x); };
    theory.mean = Existing(distribution->Mean());
    theory.variance = Existing(distribution->Variance());
  }
  const std::string_view name = variate.name;
  const std::vector<Extended> kept(parameters.begin(), parameters.end());
  for (const OwnDensity& own : kOwnDensities) {
    if (own.variate != name) continue;
    theory.is_count = own.density == NegativeBinomialProbability;
    theory.density = [&own, kept](Extended x) { return own.density(kept, x); };
  }
  for (const Moments& moments : kMoments) {
    if (moments.variate != name) continue;
    theory.mean = Existing(moments.mean(parameters));
    theory.variance = Existing(moments.variance(parameters));
  }
  return theory;
}

}  // namespace qorvex::gallery
