#include "qorvex/stats/inference/chi_square_tests.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>
#include <vector>

#include "qorvex/base/errors.h"
#include "qorvex/stats/inference/detail/exact_numbers.h"
#include "qorvex/stats/inference/detail/exact_tails.h"
#include "qorvex/stats/inference/detail/p_values.h"

namespace qorvex {

using namespace inference;

namespace {

// numerator / denominator of positive numbers, rounded towards 0 to 192 bits.
Dyadic Quotient(const Dyadic& numerator, const Dyadic& denominator) {
  constexpr std::size_t precision = 192;
  const std::size_t shift = precision + denominator.Mantissa().BitLength();
  exact::BigInteger quotient = (numerator.Mantissa() << shift) / denominator.Mantissa();
  return Dyadic(std::move(quotient),
                numerator.Exponent() - denominator.Exponent() - static_cast<std::int64_t>(shift));
}

TestResult ChiSquareResult(const Rational& statistic, Extended df) {
  const ExtendedPair x = ToPair(statistic);
  return WithTails(
      {.statistic = x.hi, .degrees_of_freedom = df, .form = TestForm::kChiSquareApproximation},
      ChiSquareTails(x, df), Alternative::kGreater);
}

bool IsNegative(std::int64_t count) {
  return count < 0;
}

Dyadic Magnitude(const Dyadic& x) {
  return x.Sign() < 0 ? -x : x;
}

}  // namespace

TestResult GoodnessOfFitTest(VectorView<std::int64_t> counts, VectorView<Extended> proportions,
                             std::uint32_t fitted_parameters) {
  const std::size_t cells = counts.size();
  if (proportions.size() != cells) RaiseMathError(rsSameDimensions);
  if (cells < 2) RaiseMathError(rsVectorG1);
  if (std::ranges::any_of(counts, IsNegative)) RaiseMathError(rsVectorNeg);
  for (const Extended p : proportions)
    if (p <= 0 || std::isinf(p)) RaiseMathError(rsVectorNotPos);
  Dyadic total;
  for (const std::int64_t count : counts) total += count;
  if (total.Sign() == 0) RaiseMathError(rsVectorZero);
  if (cells - 1 <= fitted_parameters) RaiseMathError(rsDF);
  const auto df = static_cast<Extended>(cells - 1 - fitted_parameters);
  if (HasNaN(proportions))
    return {.degrees_of_freedom = df, .form = TestForm::kChiSquareApproximation};
  Dyadic whole;
  for (const Extended p : proportions) whole += p;
  // (count - total p / whole)^2 / (total p / whole), times total whole.
  Dyadic sum;
  for (std::size_t i = 0; i < cells; ++i) {
    const Dyadic difference = Dyadic(counts[i]) * whole - total * Dyadic(proportions[i]);
    sum += Quotient(difference * difference, proportions[i]);
  }
  return ChiSquareResult(Rational(sum, total * whole), df);
}

TestResult GoodnessOfFitTest(VectorView<std::int64_t> counts) {
  return GoodnessOfFitTest(counts, std::vector<Extended>(counts.size(), 1));
}

TestResult IndependenceTest(const TQorInt64Matrix& counts, ContinuityCorrection correction) {
  const std::size_t rows = counts.size();
  const std::size_t columns = rows == 0 ? 0 : counts[0].size();
  if (columns == 0) RaiseMathError(rsMatrixIsEmpty);
  for (const TQorInt64Vector& row : counts)
    if (row.size() != columns) RaiseMathError(rsMatrixRect);
  if (rows < 2) RaiseMathError(rsInvalidRow);
  if (columns < 2) RaiseMathError(rsInvalidCol);
  std::vector<Dyadic> row_sums(rows);
  std::vector<Dyadic> column_sums(columns);
  Dyadic total;
  for (std::size_t i = 0; i < rows; ++i) {
    if (std::ranges::any_of(counts[i], IsNegative)) RaiseMathError(rsMatrixNeg);
    for (std::size_t j = 0; j < columns; ++j) {
      row_sums[i] += counts[i][j];
      column_sums[j] += counts[i][j];
    }
    total += row_sums[i];
  }
  const auto is_zero = [](const Dyadic& sum) { return sum.Sign() == 0; };
  if (std::ranges::any_of(row_sums, is_zero) || std::ranges::any_of(column_sums, is_zero))
    RaiseMathError(rsMatrixZero);
  const bool corrects = correction == ContinuityCorrection::kYates;
  if (corrects && (rows > 2 || columns > 2)) RaiseMathError(rsInvalidValue);
  const Dyadic shrinkage = corrects ? total.Shifted(-1) : Dyadic();
  // (count - row column / total)^2 / (row column / total), times total.
  Dyadic sum;
  for (std::size_t i = 0; i < rows; ++i) {
    for (std::size_t j = 0; j < columns; ++j) {
      const Dyadic expected = row_sums[i] * column_sums[j];
      const Dyadic difference =
          std::max(Magnitude(Dyadic(counts[i][j]) * total - expected) - shrinkage, Dyadic());
      sum += Quotient(difference * difference, expected);
    }
  }
  return ChiSquareResult(Rational(sum, total),
                         static_cast<Extended>(rows - 1) * static_cast<Extended>(columns - 1));
}

}  // namespace qorvex
