#include "qorvex/stats/regression/detail/solution.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <limits>
#include <optional>
#include <utility>

#include "qorvex/stats/regression/detail/sweep.h"
#include "qorvex/stats/regression/linear_model.h"

namespace qorvex::detail {

using exact::Dyadic;
using exact::Rational;

namespace {

// The integers of an elimination are at most as long as all of its columns together.
constexpr std::size_t kMostColumns = 12;
constexpr std::size_t kMostBits = 512;
// The least and the greatest number of bits that are tried instead.
constexpr std::size_t kFirstBits = 256;
constexpr std::size_t kLastBits = 1024;
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
  return static_cast<Extended>(magnitude) + std::log2(fraction.Round());
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
// the bound of a figure in terms of the data exceeds it. None is lost for a figure of 0 only if
// that is exact, so this counts as all.
std::int64_t LostBits(const GramMatrix& gram, const Solution& solution) {
  const std::size_t size = solution.Size();
  const auto condition = static_cast<std::int64_t>(std::ceil(solution.condition_bits)) + 1;
  const std::int64_t response = MagnitudeOf(gram.Sum(size, size));
  std::int64_t lost = 0;
  for (std::size_t i = 0; i < size; ++i) {
    const Rational coefficient(solution.coefficients[i], solution.determinant);
    if (coefficient.Sign() == 0) return std::numeric_limits<int>::max();
    // |b| <= sqrt(G^-1_ii y'y)
    const Rational inverse(solution.inverse[i].front(), solution.determinant);
    const std::int64_t bound = (MagnitudeOf(inverse) + response + condition + 1) / 2;
    lost = std::max(lost, bound - MagnitudeOf(coefficient) + 2);
  }
  // Sums of squares and, unless there are no terms, what each term and all of them explain.
  std::vector<Rational> sums = solution.residual;
  const std::size_t constants = solution.form.Constants();
  for (std::size_t k = constants; k < size; ++k) {
    sums.push_back(solution.residual[k] - solution.residual[k + 1]);
    if (k + 1 == size) sums.push_back(solution.residual[constants] - solution.residual[size]);
  }
  for (const Rational& sum : sums) {
    if (sum.Sign() == 0) return std::numeric_limits<int>::max();
    lost = std::max(lost, response - MagnitudeOf(sum) + 2);
  }
  return lost + condition + 4 * static_cast<std::int64_t>(std::bit_width(size + 1));
}

// CollinearityError; EInvalidOp if the sums are those of no rows.
Solution SolveInIntegers(const GramMatrix& gram) {
  const std::size_t size = gram.Form().Coefficients();
  SweptMatrix matrix = MatrixOf(gram, 0);
  std::vector<Rational> residual{matrix.At(size, size)};
  for (std::size_t k = 0; k < size; ++k) {
    // Determinants of Gram matrices are not negative, and 0 for dependent columns only.
    const int sign = matrix.At(k, k).Sign();
    if (sign == 0) throw CollinearityError(k - gram.Form().Constants());
    if (sign < 0) throw EInvalidOp();
    matrix.SweepNext();
    residual.emplace_back(matrix.At(size, size), matrix.Determinant());
    if (residual.back().Sign() < 0) throw EInvalidOp();
  }
  return SolutionOf(gram, matrix, std::move(residual));
}

// std::nullopt if too few of the bits are right in the end.
std::optional<Solution> SolveWithBits(const GramMatrix& gram, std::size_t bits) {
  const std::size_t size = gram.Form().Coefficients();
  SweptMatrix matrix = MatrixOf(gram, bits);
  std::vector<Rational> residual{matrix.At(size, size)};
  for (std::size_t k = 0; k < size; ++k) {
    if (matrix.At(k, k).Sign() <= 0) return std::nullopt;
    matrix.SweepNext();
    if (matrix.At(size, size).Sign() <= 0) return std::nullopt;
    residual.emplace_back(matrix.At(size, size), matrix.Determinant());
  }
  Solution solution = SolutionOf(gram, matrix, std::move(residual));
  const auto precision = static_cast<std::int64_t>(bits) - LostBits(gram, solution);
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
    for (std::size_t bits = kFirstBits; bits <= kLastBits; bits *= 2) {
      if (std::optional<Solution> solution = SolveWithBits(gram, bits)) return *std::move(solution);
    }
  }
  return SolveInIntegers(gram);
}

}  // namespace qorvex::detail
