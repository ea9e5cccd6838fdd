#include "apps/qorvex-gallery/model/variate_theory.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <vector>

#include "apps/common/distributions.h"
#include "qorvex/base/errors.h"

namespace qorvex::gallery {

namespace {

using Parameters = std::span<const Extended>;

// A variate may go beyond what the family computes, such as 2^32 trials.
bool Takes(const apps::Family& family, Parameters parameters) {
  return std::equal(parameters.begin(), parameters.end(), family.parameters.begin(),
                    [](Extended number, const apps::NumberParameter& parameter) {
                      return apps::WhatIsWrong(number, parameter.kind) == nullptr;
                    });
}

// The variate's distribution, or null where the family does not take the parameters.
std::shared_ptr<const apps::AnyDistribution> DistributionOf(const apps::Family& family,
                                                            Parameters parameters) {
  if (!Takes(family, parameters)) return nullptr;
  std::vector<Extended> numbers(parameters.begin(), parameters.end());
  // What a variate leaves out, such as the ends of uniform values, has a default.
  while (numbers.size() < family.parameters.size())
    numbers.push_back(family.parameters[numbers.size()].start);
  try {
    return family.make(numbers);
  } catch (const EMathError&) {
    return nullptr;
  }
}

std::optional<Extended> Existing(Extended value) {
  return std::isfinite(value) ? std::optional(value) : std::nullopt;
}

}  // namespace

VariateTheory TheoryOf(const apps::Variate& variate, Parameters parameters) {
  const apps::Family* const family = apps::FindFamily(variate.name);
  if (family == nullptr) return {};
  VariateTheory theory;
  theory.is_count = family->is_discrete;
  if (const auto distribution = DistributionOf(*family, parameters)) {
    theory.density = [distribution](Extended x) { return distribution->Pdf(x); };
    theory.mean = Existing(distribution->Mean());
    theory.variance = Existing(distribution->Variance());
  }
  return theory;
}

}  // namespace qorvex::gallery
