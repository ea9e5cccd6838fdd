#include "qorvex/stats/binomial.h"

#include "qorvex/base/elementary.h"
#include "qorvex/base/errors.h"
#include "qorvex/stats/detail/combinatorics.h"
#include "qorvex/stats/detail/count_between.h"

namespace qorvex::inline QorvexStatistics {

namespace {

void RequireProbability(Extended p) {
  if (!(p >= 0 && p <= 1)) RaiseMathError(rsBinomDistInvalid);
}

void RequireTrials(Extended p, std::uint32_t n, std::uint32_t k) {
  if (n == 0 || n < k) RaiseMathError(rsBinomDistInvalid);
  RequireProbability(p);
}

Extended Probability(Extended coefficient, Extended p, std::uint64_t n, std::uint64_t k) {
  return coefficient * XtoY(p, static_cast<Extended>(k)) *
         XtoY(1 - p, static_cast<Extended>(n - k));
}

auto TermsOf(Extended p, std::uint32_t n) {
  return [p, n](std::uint64_t end) {
    return [p, n, coefficients = detail::BinomialCoefficients(n, 0, end)](std::uint64_t k) {
      return Probability(coefficients[k], p, n, k);
    };
  };
}

}  // namespace

Extended BinomialEq(Extended p, std::uint32_t n, std::uint32_t k) {
  RequireTrials(p, n, k);
  return Probability(detail::BinomialCoefficient(n, k), p, n, k);
}

Extended BinomialLess(Extended p, std::uint32_t n, std::uint32_t k) {
  RequireTrials(p, n, k);
  return detail::LowerProbability(0, k, TermsOf(p, n));
}

Extended BinomialGreater(Extended p, std::uint32_t n, std::uint32_t k) {
  RequireTrials(p, n, k);
  return k == n ? 0 : 1 - BinomialLess(p, n, k + 1);
}

Extended BinomialBetween(Extended p, std::uint32_t n, std::uint32_t k1, std::uint32_t k2) {
  if (k1 == k2) return BinomialEq(p, n, k1);
  RequireTrials(p, n, k1);
  RequireTrials(p, n, k2);
  return detail::CountBetween(0, k1, k2, TermsOf(p, n));
}

void BinomialPDFValues(std::int32_t n, Extended p, TQorFloatVector& probs) {
  probs = TQorFloatVector();
  if (n <= 0) RaiseMathError(rsBinomDistInvalid);
  RequireProbability(p);
  const std::uint64_t count = static_cast<std::uint64_t>(n) + 1;
  const auto term = TermsOf(p, static_cast<std::uint32_t>(n))(count);
  auto values = TQorFloatVector::ForOverwrite(count);
  for (std::uint64_t k = 0; k < count; ++k) values[k] = term(k);
  probs = values;
}

}  // namespace qorvex::inline QorvexStatistics
