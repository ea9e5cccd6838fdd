#include "apps/common/correlations.h"

#include <algorithm>
#include <cstddef>
#include <limits>
#include <vector>

#include "qorvex/stats/covariance_matrix.h"
#include "qorvex/stats/exact/exact_pairs.h"
#include "qorvex/stats/rank_correlation.h"

namespace qorvex::apps {

namespace {

// In units of the column, which are exact, and which change neither correlations nor ranks.
TQorFloatVector UnitsOf(const ColumnNumbers& column) {
  return column.Visit([](const auto& vector) {
    auto units = TQorFloatVector::ForOverwrite(vector.size());
    std::ranges::transform(vector, units.begin(), [](auto x) { return static_cast<Extended>(x); });
    return units;
  });
}

// Doubled, because then they are whole numbers.
TQorFloatVector RanksOf(const TQorFloatVector& values) {
  const TQorInt64Vector doubled = DoubledMidranks(values);
  auto ranks = TQorFloatVector::ForOverwrite(doubled.size());
  std::ranges::copy(doubled, ranks.begin());
  return ranks;
}

bool HasSpread(const TQorFloatVector& values) {
  return std::ranges::any_of(values, [&](Extended x) { return x != values[0]; });
}

}  // namespace

TQorFloatMatrix PairFigures(std::span<const ColumnNumbers> columns, PairFigure figure) {
  std::vector<TQorFloatVector> vectors;
  std::vector<std::size_t> used;
  for (std::size_t i = 0; i < columns.size(); ++i) {
    TQorFloatVector units = UnitsOf(columns[i]);
    if (figure != PairFigure::kCovariance && !HasSpread(units)) continue;
    vectors.push_back(figure == PairFigure::kSpearman ? RanksOf(units) : units);
    used.push_back(i);
  }
  TQorFloatMatrix of_used;
  if (figure != PairFigure::kCovariance && figure != PairFigure::kKendall && !vectors.empty())
    of_used = CorrelationMatrix(vectors);
  const auto of_pair = [&](std::size_t i, std::size_t j) -> Extended {
    switch (figure) {
      case PairFigure::kKendall:
        return KendallTau(vectors[i], vectors[j]);
      case PairFigure::kCovariance: {
        ExactPairs pairs(columns[i].Decimals(), columns[j].Decimals());
        pairs.Add(vectors[i], vectors[j]);
        return pairs.SampleCovariance();
      }
      default:
        return of_used[i][j];
    }
  };
  auto result = TQorFloatMatrix::WithLength(columns.size());
  for (TQorFloatVector& row : result) {
    row = TQorFloatVector::ForOverwrite(columns.size());
    std::ranges::fill(row, std::numeric_limits<Extended>::quiet_NaN());
  }
  for (std::size_t i = 0; i < used.size(); ++i)
    for (std::size_t j = 0; j <= i; ++j)
      result[used[i]][used[j]] = result[used[j]][used[i]] = of_pair(i, j);
  return result;
}

}  // namespace qorvex::apps
