#include "qorvex/stats/hypergeometric.h"

#include <algorithm>

#include "qorvex/base/elementary.h"
#include "qorvex/base/errors.h"
#include "qorvex/stats/detail/combinatorics.h"
#include "qorvex/stats/detail/count_between.h"

namespace qorvex::inline QorvexStatistics {

namespace {

// A sample, the population that it is drawn from, and the range of possible success counts.
struct Draw {
  std::uint32_t pop_size;
  std::uint32_t sample_size;
  std::uint32_t successes;

  [[nodiscard]] std::uint32_t Failures() const { return pop_size - successes; }
  [[nodiscard]] std::uint32_t Least() const {
    return sample_size > Failures() ? sample_size - Failures() : 0;
  }
  [[nodiscard]] std::uint32_t Greatest() const { return MinXY(successes, sample_size); }
};

Draw CheckedDraw(std::uint32_t pop_size, std::uint32_t sample_size, std::uint32_t successes) {
  if (pop_size == 0 || sample_size == 0 || pop_size < sample_size || pop_size < successes) {
    RaiseMathError(rsHyperGeometricInvalid);
  }
  return {pop_size, sample_size, successes};
}

void RequireCount(const Draw& draw, std::uint32_t x) {
  if (x > draw.Greatest()) RaiseMathError(rsHyperGeometricInvalid);
}

// The probabilities of the possible counts from first to end - 1. The range may be empty.
class Probabilities {
 public:
  Probabilities(const Draw& draw, std::uint64_t first, std::uint64_t end)
      : sample_size_(draw.sample_size),
        samples_(first < end ? detail::BinomialCoefficient(draw.pop_size, draw.sample_size) : 1),
        successes_(draw.successes, std::min(first, end), end),
        failures_(draw.Failures(), sample_size_ + 1 - end,
                  sample_size_ + 1 - std::min(first, end)) {}

  Extended operator()(std::uint64_t x) const {
    return successes_[x] * failures_[sample_size_ - x] / samples_;
  }

 private:
  std::uint64_t sample_size_;
  Extended samples_;
  detail::BinomialCoefficients successes_;
  detail::BinomialCoefficients failures_;
};

auto TermsOf(const Draw& draw) {
  return [draw](std::uint64_t end) { return Probabilities(draw, draw.Least(), end); };
}

}  // namespace

Extended HyperGeometricEq(std::uint32_t pop_size, std::uint32_t sample_size,
                          std::uint32_t successes, std::uint32_t x) {
  const Draw draw = CheckedDraw(pop_size, sample_size, successes);
  if (x < draw.Least() || x > draw.Greatest()) return 0;
  return Probabilities(draw, x, std::uint64_t{x} + 1)(x);
}

Extended HyperGeometricLess(std::uint32_t pop_size, std::uint32_t sample_size,
                            std::uint32_t successes, std::uint32_t x) {
  const Draw draw = CheckedDraw(pop_size, sample_size, successes);
  RequireCount(draw, x);
  return detail::LowerProbability(draw.Least(), x, TermsOf(draw));
}

Extended HyperGeometricGreater(std::uint32_t pop_size, std::uint32_t sample_size,
                               std::uint32_t successes, std::uint32_t x) {
  const Draw draw = CheckedDraw(pop_size, sample_size, successes);
  RequireCount(draw, x);
  if (x == draw.Greatest()) return 0;
  return 1 - detail::LowerProbability(draw.Least(), std::uint64_t{x} + 1, TermsOf(draw));
}

Extended HyperGeometricBetween(std::uint32_t pop_size, std::uint32_t sample_size,
                               std::uint32_t successes, std::uint32_t x1, std::uint32_t x2) {
  if (x1 == x2) return HyperGeometricEq(pop_size, sample_size, successes, x1);
  const Draw draw = CheckedDraw(pop_size, sample_size, successes);
  RequireCount(draw, x1);
  RequireCount(draw, x2);
  return detail::CountBetween(draw.Least(), x1, x2, TermsOf(draw));
}

void HyperGeometricPDFValues(std::uint32_t pop_size, std::uint32_t sample_size,
                             std::uint32_t successes, TQorFloatVector& probs) {
  probs = TQorFloatVector();
  const Draw draw = CheckedDraw(pop_size, sample_size, successes);
  const std::uint64_t end = std::uint64_t{draw.Greatest()} + 1;
  const Probabilities probability(draw, draw.Least(), end);
  auto values = TQorFloatVector::WithLength(std::size_t{sample_size} + 1);
  for (std::uint64_t x = draw.Least(); x < end; ++x) values[x] = probability(x);
  probs = values;
}

}  // namespace qorvex::inline QorvexStatistics
