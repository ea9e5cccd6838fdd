// Prints the figures on matrices in docs/accuracy.md: the correct digits of determinants and
// inverses, compared with Eigen in long double and LAPACK in double, and how often ranks are
// correct.

#include <Eigen/LU>
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <functional>
#include <initializer_list>
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

// In solve_accuracy.cpp.
void PrintSolutions();

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
  solution.determinant = Determinant(given);
  auto matrix = CopyMatrix(given);
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

// Hilbert matrices have the elements 1 / (i + j + 1) and integer inverses in closed form.
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

// The correlation matrix, computed in double, of variables with a strong common part. Because of
// rounding some elements of the diagonal differ from one in the last bit.
TQorFloatMatrix CorrelationsInDouble(std::size_t variables, std::mt19937_64& engine) {
  std::normal_distribution<double> normal;
  const std::size_t observations = 4 * variables;
  std::vector<std::vector<double>> deviations(variables, std::vector<double>(observations));
  std::vector<double> common(observations);
  for (double& x : common) x = normal(engine);
  for (std::vector<double>& deviation : deviations) {
    double sum = 0;
    for (std::size_t k = 0; k < observations; ++k) {
      sum += deviation[k] = 3 * common[k] + normal(engine);
    }
    for (double& x : deviation) x -= sum / static_cast<double>(observations);
  }
  const auto products = [&](std::size_t i, std::size_t j) {
    double sum = 0;
    for (std::size_t k = 0; k < observations; ++k) sum += deviations[i][k] * deviations[j][k];
    return sum;
  };
  return MatrixOf(variables, [&](std::size_t i, std::size_t j) {
    return products(i, j) / (std::sqrt(products(i, i)) * std::sqrt(products(j, j)));
  });
}

// The largest element of A A^-1 - I over random matrices.
template <class Make>
void PrintResiduals(const char* elements, std::initializer_list<std::size_t> orders,
                    const Make& make) {
  for (const std::size_t order : orders) {
    std::mt19937_64 engine(order);
    Extended worst[4] = {};
    for (int repetition = 0; repetition < (order < 100 ? 50 : 3); ++repetition) {
      const TQorFloatMatrix given = make(order, engine);
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
    std::printf("| %zu | %s | %.1Le | %.1Le | %.1Le | %.1Le |\n", order, elements, worst[0],
                worst[1], worst[2], worst[3]);
  }
}

void PrintResiduals() {
  std::puts("| order | elements | ours | ours, tolerance 1e-18 | Eigen | LAPACK |");
  std::puts("|---|---|---|---|---|---|");
  const auto orders = {5UL, 10UL, 20UL, 50UL, 100UL, 200UL};
  const auto integers = [](int magnitude) {
    return [magnitude](std::size_t order, std::mt19937_64& engine) {
      std::uniform_int_distribution<int> uniform(-magnitude, magnitude);
      return MatrixOf(order, [&](auto...) { return uniform(engine); });
    };
  };
  PrintResiduals("real, up to 1", orders, [](std::size_t order, std::mt19937_64& engine) {
    std::uniform_real_distribution<Extended> uniform(-1, 1);
    return MatrixOf(order, [&](auto...) { return uniform(engine); });
  });
  PrintResiduals("integer, up to 9", orders, integers(9));
  PrintResiduals("integer, up to 10000", orders, integers(10000));
  PrintResiduals("correlations in double", {5UL, 10UL, 20UL, 50UL}, CorrelationsInDouble);
}

template <FloatElement T>
TQorMatrix<T> Digits(std::size_t rows, std::size_t cols, std::mt19937_64& engine) {
  std::uniform_int_distribution<int> digit(-9, 9);
  auto matrix = TQorMatrix<T>::WithLength(rows);
  for (TQorVector<T>& row : matrix) {
    row.SetLength(cols);
    for (T& x : row) x = static_cast<T>(digit(engine));
  }
  return matrix;
}

// Matrices of integers up to 9 in magnitude, whose last row is a linear combination of two others.
template <FloatElement T>
TQorMatrix<T> OfRankOneLess(std::size_t order, std::mt19937_64& engine) {
  auto matrix = Digits<T>(order, order, engine);
  const auto factors = Digits<T>(1, 2, engine);
  for (std::size_t j = 0; j < order; ++j) {
    matrix[order - 1][j] =
        factors[0][0] * matrix[0][j] + factors[0][1] * matrix[order > 2 ? 1 : 0][j];
  }
  return matrix;
}

// Products of two matrices of integers, the first with half as many columns as rows.
template <FloatElement T>
TQorMatrix<T> OfHalfTheRank(std::size_t order, std::mt19937_64& engine) {
  return MultiplyMatrices(Digits<T>(order, order / 2, engine), Digits<T>(order / 2, order, engine));
}

// The rank of an integer matrix by elimination modulo 2^61 - 1. It could only be less than the
// exact rank if that prime divided a minor.
template <FloatElement T>
std::size_t ExactRank(const TQorMatrix<T>& matrix) {
  using Wide = unsigned __int128;
  constexpr std::uint64_t prime = (std::uint64_t{1} << 61) - 1;
  const auto times = [](std::uint64_t a, std::uint64_t b) {
    return static_cast<std::uint64_t>(static_cast<Wide>(a) * b % prime);
  };
  std::vector<std::vector<std::uint64_t>> rows;
  for (const TQorVector<T>& row : matrix) {
    std::vector<std::uint64_t>& residues = rows.emplace_back();
    for (const T x : row) {
      const auto integer = static_cast<std::int64_t>(x);
      residues.push_back(static_cast<std::uint64_t>(integer) + (integer < 0 ? prime : 0));
    }
  }
  std::size_t rank = 0;
  for (std::size_t col = 0; col < matrix[0].size() && rank < rows.size(); ++col) {
    const auto pivot = std::find_if(rows.begin() + static_cast<std::ptrdiff_t>(rank), rows.end(),
                                    [&](const auto& row) { return row[col] != 0; });
    if (pivot == rows.end()) continue;
    std::swap(rows[rank], *pivot);
    // row * pivot - pivot row * element, without a division.
    for (std::size_t r = rank + 1; r < rows.size(); ++r) {
      const std::uint64_t element = rows[r][col];
      for (std::size_t j = col; j < rows[r].size(); ++j) {
        rows[r][j] =
            (times(rows[r][j], rows[rank][col]) + prime - times(rows[rank][j], element)) % prime;
      }
    }
    ++rank;
  }
  return rank;
}

// The percentage of matrices for which we find the exact rank.
template <FloatElement T>
double PercentageCorrect(std::size_t order, TQorMatrix<T> (*make)(std::size_t, std::mt19937_64&),
                         Extended tolerance, int matrices) {
  const Extended kept = std::exchange(QorTolerance, tolerance);
  std::mt19937_64 engine(order);
  int correct = 0;
  for (int i = 0; i < matrices; ++i) {
    auto matrix = make(order, engine);
    const std::size_t expected = ExactRank(matrix);
    std::uint32_t rank = 0;
    RowEchelonFormRank(matrix, rank);
    if (rank == expected) ++correct;
  }
  QorTolerance = kept;
  return 100.0 * correct / matrices;
}

void PrintRanks() {
  const auto print = [](std::size_t order, const char* which, int matrices, auto make) {
    const auto right = [&]<class T>(T, Extended tolerance) {
      return PercentageCorrect<T>(order, make.template operator()<T>(), tolerance, matrices);
    };
    std::printf("| %zu | %s | %.2f | %.1f | %.1f | %.2f | %.1f | %.1f |\n", order, which,
                right(Extended(), 1e-15L), right(double(), 1e-15L), right(float(), 1e-15L),
                right(Extended(), 1e-12L), right(double(), 1e-10L), right(float(), 1e-3L));
  };
  std::puts(
      "| order | rank | Float | Double | Single | Float, 1e-12 | Double, 1e-10 | Single, 1e-3 |");
  std::puts("|---|---|---|---|---|---|---|---|");
  for (const std::size_t order : {2UL, 3UL, 4UL, 6UL, 8UL, 12UL, 20UL, 50UL}) {
    const int matrices = order < 20 ? 20000 : 500;
    print(order, "one less", matrices, []<class T>() { return OfRankOneLess<T>; });
    print(order, "half", matrices, []<class T>() { return OfHalfTheRank<T>; });
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
  std::puts("\nThe largest relative error of an element of the solution of linear systems\n");
  PrintSolutions();
  std::puts("\nPercentage of correct ranks, by element type and tolerance\n");
  PrintRanks();
}
