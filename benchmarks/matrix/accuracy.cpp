// Prints what docs/accuracy.md says of matrices: the digits that determinants and inverses keep,
// beside Eigen in long double and LAPACK in double, and how many singular matrices are recognised.

#include <Eigen/LU>
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <functional>
#include <limits>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "qorvex/base/comparisons.h"
#include "qorvex/base/text.h"
#include "qorvex/matrix/QorvexMatrix.h"

extern "C" {
void dgetrf_(const int* rows, const int* cols, double* a, const int* stride, int* pivots,
             int* info);
void dgetri_(const int* order, double* a, const int* stride, const int* pivots, double* work,
             const int* work_size, int* info);
}

namespace qorvex::benchmarks {
namespace {

using Element = std::function<Extended(std::size_t row, std::size_t col)>;
using EigenFloats = Eigen::Matrix<Extended, Eigen::Dynamic, Eigen::Dynamic, Eigen::RowMajor>;

struct Solution {
  bool found = false;
  Extended determinant = 0;
  TQorFloatMatrix inverse;
};

TQorFloatMatrix MatrixOf(std::size_t order, const Element& element) {
  auto matrix =
      CreateFloatMatrix(static_cast<std::uint32_t>(order), static_cast<std::uint32_t>(order));
  for (std::size_t i = 0; i < order; ++i) {
    for (std::size_t j = 0; j < order; ++j) matrix[i][j] = element(i, j);
  }
  return matrix;
}

Solution Ours(const TQorFloatMatrix& given) {
  Solution solution;
  auto matrix = CopyMatrix(given);
  solution.determinant = MatrixDeterminant(matrix);
  matrix = CopyMatrix(given);
  solution.found = MatrixInverse(matrix, solution.inverse);
  return solution;
}

Solution EigenInLongDouble(const TQorFloatMatrix& given) {
  const auto order = static_cast<Eigen::Index>(given.size());
  EigenFloats matrix(order, order);
  for (Eigen::Index i = 0; i < order; ++i) {
    for (Eigen::Index j = 0; j < order; ++j) {
      matrix(i, j) = given[static_cast<std::size_t>(i)][static_cast<std::size_t>(j)];
    }
  }
  const EigenFloats inverse = matrix.inverse();
  return {true, matrix.determinant(), MatrixOf(given.size(), [&](std::size_t i, std::size_t j) {
            return inverse(static_cast<Eigen::Index>(i), static_cast<Eigen::Index>(j));
          })};
}

Solution LapackInDouble(const TQorFloatMatrix& given) {
  const int order = static_cast<int>(given.size());
  std::vector<double> a;
  // LAPACK stores columns; the inverse of the transpose is the transpose of the inverse.
  for (const TQorFloatVector& row : given) {
    for (const Extended x : row) a.push_back(static_cast<double>(x));
  }
  std::vector<int> pivots(given.size());
  std::vector<double> work(given.size() * 64);
  const int work_size = static_cast<int>(work.size());
  int info = 0;
  dgetrf_(&order, &order, a.data(), &order, pivots.data(), &info);
  Solution solution;
  solution.determinant = 1;
  for (std::size_t i = 0; i < given.size(); ++i) {
    const double pivot = a[i * given.size() + i];
    solution.determinant *= pivots[i] == static_cast<int>(i) + 1 ? pivot : -pivot;
  }
  if (info == 0) dgetri_(&order, a.data(), &order, pivots.data(), work.data(), &work_size, &info);
  solution.found = info == 0;
  solution.inverse = MatrixOf(given.size(), [&](std::size_t i, std::size_t j) {
    return static_cast<Extended>(a[i * given.size() + j]);
  });
  return solution;
}

Extended LargestDifference(const TQorFloatMatrix& a, const TQorFloatMatrix& b) {
  Extended largest = 0;
  for (std::size_t i = 0; i < a.size(); ++i) {
    for (std::size_t j = 0; j < a[i].size(); ++j) {
      largest = std::max(largest, std::fabs(a[i][j] - b[i][j]));
    }
  }
  return largest;
}

std::string Digits(bool found, Extended relative_error) {
  if (!found) return "singular";
  const Extended least = std::numeric_limits<Extended>::epsilon() / 2;
  return Float2EStr(std::max<Extended>(0, -std::log10(std::max(relative_error, least))), 1);
}

Extended Binomial(std::size_t n, std::size_t k) {
  Extended result = 1;
  for (std::size_t i = 1; i <= k; ++i) {
    result = result * static_cast<Extended>(n - k + i) / static_cast<Extended>(i);
  }
  return result;
}

// Hilbert's matrices: elements 1/(i + j + 1), integer inverses known in closed form.
void PrintHilbert() {
  std::puts("| order | determinant: ours | Eigen | LAPACK | inverse: ours | Eigen | LAPACK |");
  std::puts("|---|---|---|---|---|---|---|");
  Extended determinant = 1;
  for (std::size_t n = 2; n <= 12; ++n) {
    // det(n) / det(n - 1) = (n - 1)!^4 / ((2n - 2)! (2n - 1)!), from Cauchy's formula.
    const Extended central = Binomial(2 * n - 2, n - 1);
    determinant /= central * central * static_cast<Extended>(2 * n - 1);
    const auto hilbert = MatrixOf(
        n, [](std::size_t i, std::size_t j) { return 1 / static_cast<Extended>(i + j + 1); });
    const auto exact = MatrixOf(n, [n](std::size_t i, std::size_t j) {
      const Extended sign = (i + j) % 2 == 0 ? 1 : -1;
      const Extended middle = Binomial(i + j, i);
      return sign * static_cast<Extended>(i + j + 1) * Binomial(n + i, n - j - 1) *
             Binomial(n + j, n - i - 1) * middle * middle;
    });
    const Extended largest = LargestDifference(exact, MatrixOf(n, [](auto...) { return 0; }));
    const Solution solutions[] = {Ours(hilbert), EigenInLongDouble(hilbert),
                                  LapackInDouble(hilbert)};
    std::string line = "| " + Int2EStr(n);
    for (const Solution& solution : solutions) {
      line += " | " + Digits(true, std::fabs(solution.determinant / determinant - 1));
    }
    for (const Solution& solution : solutions) {
      line += " | " + Digits(solution.found, LargestDifference(solution.inverse, exact) / largest);
    }
    std::puts((line + " |").c_str());
  }
}

// The largest element of A A^-1 - I over random matrices.
void PrintResiduals() {
  std::puts("| order | elements | ours | ours, tolerance 1e-18 | Eigen | LAPACK |");
  std::puts("|---|---|---|---|---|---|");
  for (const int magnitude : {1, 9, 100, 10000}) {
    for (const std::size_t order : {5U, 10U, 20U, 50U, 100U, 200U}) {
      std::mt19937_64 engine(order);
      std::uniform_real_distribution<Extended> uniform(-magnitude, magnitude);
      Extended worst[4] = {};
      for (int repetition = 0; repetition < (order < 100 ? 50 : 3); ++repetition) {
        const auto given = MatrixOf(order, [&](auto...) {
          return magnitude == 1 ? uniform(engine) : std::round(uniform(engine));
        });
        const auto identity = CreateFloatIdentityMatrix(static_cast<std::uint32_t>(order));
        const Solution at_default = Ours(given);
        const Extended tolerance = std::exchange(QorTolerance, 1e-18L);
        const Solution solutions[] = {at_default, Ours(given), EigenInLongDouble(given),
                                      LapackInDouble(given)};
        QorTolerance = tolerance;
        for (std::size_t who = 0; who < std::size(solutions); ++who) {
          const auto product = MultiplyMatrices(given, solutions[who].inverse);
          worst[who] = std::max(worst[who], LargestDifference(product, identity));
        }
      }
      std::printf("| %zu | %s %d | %.1Le | %.1Le | %.1Le | %.1Le |\n", order,
                  magnitude == 1 ? "real, up to" : "integer, up to", magnitude, worst[0], worst[1],
                  worst[2], worst[3]);
    }
  }
}

// The share of singular matrices that MatrixInverse refuses. They are integer with elements up to 9
// in magnitude: the last row is made of two others.
template <FloatElement T>
double ShareRecognised(std::size_t order, int matrices) {
  std::mt19937_64 engine(order);
  std::uniform_int_distribution<int> digit(-9, 9);
  int recognised = 0;
  for (int i = 0; i < matrices; ++i) {
    auto matrix = TQorMatrix<T>::WithLength(order);
    for (TQorVector<T>& row : matrix) {
      row.SetLength(order);
      for (T& x : row) x = static_cast<T>(digit(engine));
    }
    const auto a = static_cast<T>(digit(engine));
    const auto b = static_cast<T>(digit(engine));
    for (std::size_t j = 0; j < order; ++j) {
      matrix[order - 1][j] = a * matrix[0][j] + b * matrix[order > 2 ? 1 : 0][j];
    }
    TQorMatrix<T> inverse;
    if (!MatrixInverse(matrix, inverse)) ++recognised;
  }
  return 100.0 * recognised / matrices;
}

void PrintSingular() {
  constexpr int matrices = 20000;
  std::puts("| order | Float | Double | Single | Float, 1e-12 | Double, 1e-10 | Single, 1e-3 |");
  std::puts("|---|---|---|---|---|---|---|");
  for (std::size_t order = 2; order <= 12; ++order) {
    const double by_default[] = {ShareRecognised<Extended>(order, matrices),
                                 ShareRecognised<double>(order, matrices),
                                 ShareRecognised<float>(order, matrices)};
    const Extended tolerance = std::exchange(QorTolerance, 1e-12L);
    double raised[3];
    raised[0] = ShareRecognised<Extended>(order, matrices);
    QorTolerance = 1e-10L;
    raised[1] = ShareRecognised<double>(order, matrices);
    QorTolerance = 1e-3L;
    raised[2] = ShareRecognised<float>(order, matrices);
    QorTolerance = tolerance;
    std::printf("| %zu | %.2f | %.1f | %.1f | %.2f | %.1f | %.1f |\n", order, by_default[0],
                by_default[1], by_default[2], raised[0], raised[1], raised[2]);
  }
}

}  // namespace
}  // namespace qorvex::benchmarks

int main() {
  using namespace qorvex::benchmarks;
  std::puts("Correct digits on Hilbert matrices\n");
  PrintHilbert();
  std::puts("\nThe largest element of A A^-1 - I, random matrices\n");
  PrintResiduals();
  std::puts("\nPer cent of singular matrices recognised, by element type and tolerance\n");
  PrintSingular();
}
