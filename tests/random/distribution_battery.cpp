#include "random/distribution_battery.h"

#include <algorithm>
#include <random>

#include "qorvex/stats/distributions/distributions.h"

namespace qorvex::testing {

namespace {

// Cell i contains the values x with edges[i-1] < x <= edges[i]; the last cell contains all others.
struct Cells {
  std::vector<Extended> edges;
  std::vector<Extended> cumulative;
};

// 1024 cells of equal probability. The first and the last are halved seven times, to test the
// tails. A cell is merged with the next one if they have the same edge, as for counts, or if too
// few variates are expected in it. A count whose probability exceeds 1/1024 is a cell of its own.
Cells CellsOf(const Reference& reference, int draws) {
  constexpr Extended least_expectation = 5;
  std::vector<Extended> levels;
  for (int i = 1; i < 1024; ++i) levels.push_back(static_cast<Extended>(i) / 1024);
  for (Extended tail = 0x1p-11L; tail >= 0x1p-17L; tail /= 2) {
    levels.push_back(tail);
    levels.push_back(1 - tail);
  }
  std::ranges::sort(levels);
  Cells cells;
  Extended below = 0;
  for (const Extended level : levels) {
    const Extended edge = reference.quantile(level);
    const Extended at_most = reference.lower(edge);
    if (std::min(at_most - below, 1 - at_most) * draws < least_expectation) continue;
    cells.edges.push_back(edge);
    cells.cumulative.push_back(at_most);
    below = at_most;
  }
  cells.cumulative.push_back(1);
  return cells;
}

Extended ChiSquareP(const Cells& cells, const std::vector<int>& counts, int draws) {
  Extended chi_square = 0;
  Extended below = 0;
  for (std::size_t i = 0; i < counts.size(); ++i) {
    const Extended expected = (cells.cumulative[i] - below) * draws;
    below = cells.cumulative[i];
    const Extended excess = counts[i] - expected;
    chi_square += excess * excess / expected;
  }
  return Upper(ChiSquareDistribution(static_cast<Extended>(counts.size() - 1)), chi_square);
}

// The largest difference at the edges of the cells. Between edges it can be larger by about a
// thirtieth of its standard deviation, so the p-value is too large by a few percent; for counts, by
// more.
Extended KolmogorovSmirnovP(const Cells& cells, const std::vector<int>& counts, int draws) {
  Extended difference = 0;
  int below = 0;
  for (std::size_t i = 0; i < counts.size(); ++i) {
    below += counts[i];
    const Extended fraction = static_cast<Extended>(below) / draws;
    difference = std::max(difference, std::fabs(fraction - cells.cumulative[i]));
  }
  const Extended x = difference * std::sqrt(static_cast<Extended>(draws));
  if (x < 0.3L) return 1;
  Extended p = 0;
  for (int i = 20; i > 0; --i) p += (i % 2 == 1 ? 2 : -2) * std::exp(-2.0L * i * i * x * x);
  return p;
}

Extended NormalP(Extended z) {
  return 2 * Upper(NormalDistribution(0, 1), std::fabs(z));
}

}  // namespace

bool Verdict::IsGood() const {
  return in_support && chi_square >= limit && kolmogorov_smirnov >= limit && mean >= limit &&
         variance >= limit;
}

Verdict Judge(const Draw& draw, const Reference& reference, int draws) {
  const Extended centre = std::isnan(reference.mean) ? 0 : reference.mean;
  const Cells cells = CellsOf(reference, draws);
  std::mt19937_64 engine(20250707);

  Verdict verdict;
  std::vector<int> counts(cells.cumulative.size());
  Extended sum = 0;
  Extended squares = 0;
  Extended fourth_powers = 0;
  for (int i = 0; i < draws; ++i) {
    const Extended x = draw(engine);
    if (!(x >= reference.least && x <= reference.greatest &&
          !(reference.whole && x != std::trunc(x))))
      verdict.in_support = false;
    ++counts[static_cast<std::size_t>(std::ranges::lower_bound(cells.edges, x) -
                                      cells.edges.begin())];
    const Extended deviation = x - centre;
    const Extended square = deviation * deviation;
    sum += deviation;
    squares += square;
    fourth_powers += square * square;
  }
  verdict.chi_square = ChiSquareP(cells, counts, draws);
  verdict.kolmogorov_smirnov = KolmogorovSmirnovP(cells, counts, draws);
  if (!std::isnan(reference.mean)) verdict.mean = NormalP(sum / std::sqrt(squares));
  if (!std::isnan(reference.variance)) {
    const Extended excess = squares - reference.variance * draws;
    verdict.variance = NormalP(excess / std::sqrt(fourth_powers - squares * squares / draws));
  }
  return verdict;
}

void ExpectAgreement(const Draw& draw, const Reference& reference, int draws) {
  const Verdict verdict = Judge(draw, reference, draws);
  EXPECT_TRUE(verdict.IsGood()) << "in the support: " << verdict.in_support
                                << ", p of chi-square: " << verdict.chi_square
                                << ", Kolmogorov-Smirnov: " << verdict.kolmogorov_smirnov
                                << ", mean: " << verdict.mean << ", variance: " << verdict.variance;
}

}  // namespace qorvex::testing
