#include "qorvex/base/special/binomial.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "qorvex/base/special/detail/exact_binomial.h"
#include "qorvex/base/special/factorial.h"

namespace qorvex::special {

namespace {

constexpr auto kFactorials = [] {
  std::array<ExtendedPair, kExactTrials> factorials{};
  ExtendedPair product = 1;
  for (std::size_t i = 0; i < factorials.size(); ++i) {
    factorials[i] = product;
    product = product * static_cast<Extended>(i + 1);
  }
  return factorials;
}();

}  // namespace

ExtendedPair ExactCoefficient(std::uint64_t n, std::uint64_t k) {
  if (k == 0 || k == n) return 1;
  return kFactorials[n] / (kFactorials[k] * kFactorials[n - k]);
}

Binary ExactProbability(std::uint64_t n, std::uint64_t k, ExtendedPair p, ExtendedPair q) {
  return MakeBinary(ExactCoefficient(n, k)) * WholePower(p, k) * WholePower(q, n - k);
}

Scaled BinomialCoefficient(std::int64_t n, std::int64_t k) {
  if (HasExactCoefficient(static_cast<Extended>(n), static_cast<Extended>(k))) {
    const auto exact =
        ExactCoefficient(static_cast<std::uint64_t>(n), static_cast<std::uint64_t>(k));
    return {exact.hi, ExtendedPair()};
  }
  const auto factorial = [](std::int64_t i) { return FactorialOf(static_cast<Extended>(i)); };
  const std::int64_t fewer = std::min(k, n - k);
  return factorial(n) / factorial(fewer) / factorial(n - fewer);
}

Scaled BinomialProbability(std::uint32_t n, std::uint32_t k, ExtendedPair p, ExtendedPair q) {
  if (HasExactCoefficient(n, k)) return ToScaled(ExactProbability(n, k, p, q));
  return BinomialCoefficient(n, k) * Power(p, k) * Power(q, n - k);
}

}  // namespace qorvex::special
