#include "qorvex/stats/regression/detail/solution.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <limits>
#include <optional>
#include <utility>

#include "qorvex/base/elementary/functions.h"
#include "qorvex/stats/regression/detail/sweep.h"
#include "qorvex/stats/regression/detail/zeros.h"
#include "qorvex/stats/regression/linear_model.h"

namespace qorvex::regression {

using exact::Dyadic;
using exact::Rational;

namespace {

// The integers of an elimination are at most as long as all of its columns together.
constexpr std::size_t kMostColumns = 12;
constexpr std::size_t kMostBits = 512;
// The number of bits that is tried first instead.
constexpr std::size_t kFirstBits = 256;
// The bits of a figure that have to be right, beyond the 64 that it is rounded to.
constexpr std::size_t kEnoughBits = 96;

// A magnitude as a power of two, at most four times as large.
std::int64_t MagnitudeOf(const Rational& value) {
  return value.Numerator().MagnitudeExponent() - value.Denominator().MagnitudeExponent() + 1;
}

// Also beyond the range of extended numbers.
Extended Log2(const Rational& value) {
  const std::int64_t magnitude = MagnitudeOf(value);
  const Rational fraction(value.Numerator().Shifted(-magnitude), value.Denominator());
  return static_cast<Extended>(magnitude) + qorvex::Log2(fraction.Round());
}

SweptMatrix MatrixOf(const GramMatrix& gram, std::size_t bits) {
  SweptMatrix matrix(gram.Size(), bits);
  for (std::size_t i = 0; i < gram.Size(); ++i) {
    for (std::size_t j = i; j < gram.Size(); ++j) {
      matrix.At(i, j) = bits == 0 ? gram.Sum(i, j) : gram.Sum(i, j).Truncated(bits);
    }
  }
  return matrix;
}

Solution SolutionOf(const GramMatrix& gram, const SweptMatrix& swept,
                    std::vector<Rational> residual) {
  const std::size_t size = gram.Form().Coefficients();
  Solution solution{.form = gram.Form(),
                    .rows = gram.Rows(),
                    .decimals = {},
                    .weight_decimals = gram.WeightDecimals(),
                    .determinant = swept.Determinant(),
                    .coefficients = {},
                    .inverse = std::vector<std::vector<Dyadic>>(size),
                    .residual = std::move(residual)};
  for (std::size_t i = 0; i < gram.Size(); ++i) solution.decimals.push_back(gram.Decimals(i));
  Rational condition = 1;
  for (std::size_t i = 0; i < size; ++i) {
    solution.coefficients.push_back(swept.At(i, size));
    for (std::size_t j = i; j < size; ++j) solution.inverse[i].push_back(swept.At(i, j));
    condition = std::max(condition, Rational(gram.Sum(i, i) * swept.At(i, i), swept.Determinant()));
  }
  solution.condition_bits = Log2(condition);
  return solution;
}

// The bits that an elimination loses by cancellation: those of the condition, and those by which
// the bound of a figure in terms of the data exceeds it. Figures that are known to be 0 lose none,
// others of 0 all.
std::int64_t LostBits(const GramMatrix& gram, const Solution& solution, const Zeros& zeros) {
  const std::size_t size = solution.Size();
  const auto condition = static_cast<std::int64_t>(std::ceil(solution.condition_bits)) + 1;
  const std::int64_t response = MagnitudeOf(gram.Sum(size, size));
  std::int64_t lost = 0;
  for (std::size_t i = 0; i < size; ++i) {
    if (zeros.coefficients[i]) continue;
    const Rational coefficient(solution.coefficients[i], solution.determinant);
    if (coefficient.Sign() == 0) return std::numeric_limits<int>::max();
    // |b| <= sqrt(G^-1_ii y'y)
    const Rational inverse(solution.inverse[i].front(), solution.determinant);
    const std::int64_t bound = (MagnitudeOf(inverse) + response + condition + 1) / 2;
    lost = std::max(lost, bound - MagnitudeOf(coefficient) + 2);
  }
  // Sums of squares, and what each term explains; all of them explain no less.
  std::vector<Rational> sums;
  for (std::size_t k = 0; k <= size; ++k) {
    if (!zeros.residual[k]) sums.push_back(solution.residual[k]);
    if (k >= solution.form.Constants() && k < size && !zeros.terms[k])
      sums.push_back(solution.residual[k] - solution.residual[k + 1]);
  }
  for (const Rational& sum : sums) {
    if (sum.Sign() == 0) return std::numeric_limits<int>::max();
    lost = std::max(lost, response - MagnitudeOf(sum) + 2);
  }
  return lost + condition + 4 * static_cast<std::int64_t>(std::bit_width(size + 1));
}

// For the column of a coefficient. The constant depends on nothing, unless the sums are those of no
// rows.
[[noreturn]] void RaiseCollinear(const GramMatrix& gram, std::size_t column) {
  const std::size_t constants = gram.Form().Constants();
  if (column < constants) throw EInvalidOp();
  throw CollinearityError(gram.Form(), column - constants);
}

// CollinearityError; EInvalidOp if the sums are those of no rows.
Solution SolveInIntegers(const GramMatrix& gram) {
  const std::size_t size = gram.Form().Coefficients();
  SweptMatrix matrix = MatrixOf(gram, 0);
  std::vector<Rational> residual{matrix.At(size, size)};
  for (std::size_t k = 0; k < size; ++k) {
    // Determinants of Gram matrices are not negative, and 0 for dependent columns only.
    const int sign = matrix.At(k, k).Sign();
    if (sign == 0) RaiseCollinear(gram, k);
    if (sign < 0) throw EInvalidOp();
    matrix.SweepNext();
    residual.emplace_back(matrix.At(size, size), matrix.Determinant());
    if (residual.back().Sign() < 0) throw EInvalidOp();
  }
  return SolutionOf(gram, matrix, std::move(residual));
}

// With independent columns. std::nullopt if too few of the bits are right in the end.
std::optional<Solution> SolveWithBits(const GramMatrix& gram, const Zeros& zeros,
                                      std::size_t bits) {
  const std::size_t size = gram.Form().Coefficients();
  SweptMatrix matrix = MatrixOf(gram, bits);
  std::vector<Rational> residual{matrix.At(size, size)};
  for (std::size_t k = 0; k < size; ++k) {
    if (matrix.At(k, k).Sign() <= 0) return std::nullopt;
    if (zeros.terms[k]) matrix.At(k, size) = 0;
    matrix.SweepNext();
    if (zeros.residual[k + 1]) matrix.At(size, size) = 0;
    if (matrix.At(size, size).Sign() < 0) return std::nullopt;
    residual.push_back(zeros.terms[k] ? residual.back()
                                      : Rational(matrix.At(size, size), matrix.Determinant()));
  }
  for (std::size_t i = 0; i < size; ++i) {
    if (zeros.coefficients[i]) matrix.At(i, size) = 0;
  }
  Solution solution = SolutionOf(gram, matrix, std::move(residual));
  const auto precision = static_cast<std::int64_t>(bits) - LostBits(gram, solution, zeros);
  if (precision < static_cast<std::int64_t>(kEnoughBits)) return std::nullopt;
  solution.precision = static_cast<std::size_t>(precision);
  return solution;
}

}  // namespace

Rational Solution::Coefficient(std::size_t i) const {
  return Rational(coefficients[i], determinant) *
         Rational::PowerOfTen(decimals[i] - decimals.back());
}

Rational Solution::Inverse(std::size_t i, std::size_t j) const {
  if (i > j) std::swap(i, j);
  return Rational(inverse[i][j - i], determinant) *
         Rational::PowerOfTen(decimals[i] + decimals[j] + weight_decimals);
}

Rational Solution::ResidualAfter(std::size_t k) const {
  return residual[k] * Rational::PowerOfTen(-2 * decimals.back() - weight_decimals);
}

Solution Solve(const GramMatrix& gram) {
  std::size_t longest = 0;
  for (std::size_t i = 0; i < gram.Size(); ++i) {
    for (std::size_t j = i; j < gram.Size(); ++j)
      longest = std::max(longest, gram.Sum(i, j).Mantissa().BitLength());
  }
  if (gram.Form().Coefficients() > kMostColumns || longest > kMostBits) {
    const Zeros zeros = FindZeros(gram);
    if (zeros.independent < zeros.coefficients.size()) RaiseCollinear(gram, zeros.independent);
    // More bits than integers have are no gain.
    for (std::size_t bits = kFirstBits; bits < zeros.bits; bits *= 2) {
      if (std::optional<Solution> solution = SolveWithBits(gram, zeros, bits))
        return *std::move(solution);
    }
  }
  return SolveInIntegers(gram);
}

}  // namespace qorvex::regression
