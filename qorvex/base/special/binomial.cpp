#include "qorvex/base/special/binomial.h"

#include <array>
#include <cstddef>

#include "qorvex/base/special/detail/exact_binomial.h"
#include "qorvex/base/special/detail/wide_constants.h"
#include "qorvex/base/special/detail/wide_scaled.h"
#include "qorvex/base/special/regularised_beta.h"

namespace qorvex::special {

namespace {

constexpr auto kFactorials = [] {
  std::array<Wide, kExactTrials> factorials{};
  Wide product = kOne;
  for (std::size_t i = 0; i < factorials.size(); ++i) {
    factorials[i] = product;
    product = product * WholeNumber(i + 1);
  }
  return factorials;
}();

}  // namespace

Wide WholePower(const Wide& x, std::uint64_t n) {
  Wide power = kOne;
  for (Wide square = x; n > 0; n /= 2) {
    if (n % 2 == 1) power = power * square;
    if (n > 1) square = square * square;
  }
  return power;
}

Wide ExactCoefficient(std::uint64_t n, std::uint64_t k) {
  if (k == 0 || k == n) return kOne;
  return kFactorials[n] / (kFactorials[k] * kFactorials[n - k]);
}

Wide ExactProbability(std::uint64_t n, std::uint64_t k, const Wide& p, const Wide& q) {
  return ExactCoefficient(n, k) * WholePower(p, k) * WholePower(q, n - k);
}

Scaled BinomialProbability(std::uint32_t n, std::uint32_t k, ExtendedPair p, ExtendedPair q) {
  if (HasExactCoefficient(n, k)) return MakeScaled(ExactProbability(n, k, Wide(p), Wide(q)));
  // p^k q^(n - k) / B(k, n - k) is this times k (n - k) / n.
  const Wide share = WholeNumber(std::uint64_t{k} * (n - k)) / WholeNumber(n);
  const RegularisedBeta beta(k, n - k);
  return beta.LogOddsDensity({p, q}) / MakeScaled(share);
}

}  // namespace qorvex::special
