// The errors of solutions of linear systems, compared with Eigen and with an elimination in
// floating-point numbers of 320 bits.

#include <Eigen/LU>
#include <algorithm>
#include <boost/multiprecision/cpp_bin_float.hpp>
#include <cmath>
#include <cstdio>
#include <functional>
#include <numeric>
#include <optional>
#include <random>
#include <utility>
#include <vector>

#include "qorvex/matrix/QorvexMatrix.h"

namespace qorvex::benchmarks {

void PrintSolutions();

namespace {

using Wide = boost::multiprecision::number<
    boost::multiprecision::cpp_bin_float<320, boost::multiprecision::digit_base_2>>;
using Engine = std::mt19937_64;
using Make = std::function<TQorDoubleMatrix(std::size_t order, Engine& engine)>;

// The solution in wide numbers, by elimination with partial pivoting.
std::vector<Wide> WideSolution(const TQorDoubleMatrix& a, const std::vector<double>& b) {
  const std::size_t order = a.size();
  std::vector<std::vector<Wide>> rows;
  for (std::size_t i = 0; i < order; ++i) {
    rows.emplace_back(a[i].begin(), a[i].end());
    rows[i].push_back(b[i]);
  }
  for (std::size_t col = 0; col < order; ++col) {
    for (std::size_t i = col + 1; i < order; ++i) {
      if (abs(rows[i][col]) > abs(rows[col][col])) std::swap(rows[i], rows[col]);
    }
    for (std::size_t i = col + 1; i < order; ++i) {
      const Wide factor = rows[i][col] / rows[col][col];
      for (std::size_t j = col + 1; j <= order; ++j) rows[i][j] -= factor * rows[col][j];
    }
  }
  std::vector<Wide> x(order);
  for (std::size_t i = order; i-- > 0;) {
    x[i] = rows[i][order];
    for (std::size_t j = i + 1; j < order; ++j) x[i] -= rows[i][j] * x[j];
    x[i] /= rows[i][i];
  }
  return x;
}

template <class T>
std::vector<T> EigenSolution(const TQorDoubleMatrix& a, const std::vector<double>& b) {
  using Matrix = Eigen::Matrix<T, Eigen::Dynamic, Eigen::Dynamic, Eigen::RowMajor>;
  using Vector = Eigen::Matrix<T, Eigen::Dynamic, 1>;
  const auto elements = ConvertVector<T>(MatrixToRowMajor(a));
  const auto right_side = ConvertVector<T>(b);
  const auto order = static_cast<Eigen::Index>(b.size());
  const Vector x = Eigen::Map<const Matrix>(elements.data(), order, order)
                       .partialPivLu()
                       .solve(Eigen::Map<const Vector>(right_side.data(), order));
  return std::vector<T>(x.begin(), x.end());
}

template <FloatElement T>
std::vector<T> OurSolution(const TQorDoubleMatrix& a, const std::vector<double>& b) {
  const auto x = Solve(ConvertMatrix<T>(a), ConvertVector<T>(b));
  return x ? std::vector<T>(x->begin(), x->end()) : std::vector<T>();
}

std::vector<Extended> ByInverse(const TQorDoubleMatrix& a, const std::vector<double>& b) {
  const auto inverse = Inverse(ConvertMatrix<Extended>(a));
  if (!inverse) return {};
  const auto x = MultiplyMatrixByVector(*inverse, ConvertVector<Extended>(b));
  return std::vector<Extended>(x.begin(), x.end());
}

// The largest relative error of the elements of all solutions, and how many were refused.
class WorstError {
 public:
  template <class T>
  void Add(const std::vector<T>& x, const std::vector<Wide>& exact) {
    if (x.empty()) ++refused_;
    for (std::size_t i = 0; i < x.size(); ++i) {
      const Wide error = abs((Wide(x[i]) - exact[i]) / exact[i]);
      worst_ = std::max(worst_, static_cast<Extended>(error));
    }
  }
  void Print(int systems) const {
    if (refused_ == systems) {
      std::printf(" refused |");
    } else if (refused_ > 0) {
      std::printf(" %.1Le, %d of %d refused |", worst_, refused_, systems);
    } else {
      std::printf(" %.1Le |", worst_);
    }
  }

 private:
  Extended worst_ = 0;
  int refused_ = 0;
};

void Print(const char* elements, std::initializer_list<std::size_t> orders, const Make& make) {
  for (const std::size_t order : orders) {
    Engine engine(order);
    std::uniform_real_distribution<double> uniform(-1, 1);
    const int systems = order < 100 ? 50 : 3;
    WorstError worst[5];
    for (int i = 0; i < systems; ++i) {
      const TQorDoubleMatrix a = make(order, engine);
      std::vector<double> b(order);
      for (double& x : b) x = uniform(engine);
      const std::vector<Wide> exact = WideSolution(a, b);
      worst[0].Add(OurSolution<Extended>(a, b), exact);
      worst[1].Add(EigenSolution<Extended>(a, b), exact);
      worst[2].Add(ByInverse(a, b), exact);
      worst[3].Add(OurSolution<double>(a, b), exact);
      worst[4].Add(EigenSolution<double>(a, b), exact);
    }
    std::printf("| %zu | %s |", order, elements);
    for (const WorstError& each : worst) each.Print(systems);
    std::puts("");
  }
}

TQorDoubleMatrix Random(std::size_t order, Engine& engine) {
  std::uniform_real_distribution<double> uniform(-1, 1);
  auto matrix =
      CreateDoubleMatrix(static_cast<std::uint32_t>(order), static_cast<std::uint32_t>(order));
  for (TQorDoubleVector& row : matrix) {
    for (double& x : row) x = uniform(engine);
  }
  return matrix;
}

// Multiples of 1 / (i + j + 1) that are integers.
TQorDoubleMatrix Hilbert(std::size_t order, Engine& engine) {
  std::int64_t multiple = 1;
  for (std::size_t i = 2; i < 2 * order; ++i) {
    multiple = std::lcm(multiple, static_cast<std::int64_t>(i));
  }
  auto matrix = Random(order, engine);
  for (std::size_t i = 0; i < order; ++i) {
    for (std::size_t j = 0; j < order; ++j) {
      matrix[i][j] = static_cast<double>(multiple / static_cast<std::int64_t>(i + j + 1));
    }
  }
  return matrix;
}

// Random, with each row and each column multiplied by a power of ten.
Make Scaled(double row_decades, double col_decades) {
  return [=](std::size_t order, Engine& engine) {
    std::uniform_real_distribution<double> uniform(-1, 1);
    auto matrix = Random(order, engine);
    std::vector<double> scales(order);
    for (double& scale : scales) scale = std::pow(10, col_decades * uniform(engine));
    for (TQorDoubleVector& row : matrix) {
      const double scale = std::pow(10, row_decades * uniform(engine));
      for (std::size_t j = 0; j < order; ++j) row[j] *= scale * scales[j];
    }
    return matrix;
  };
}

}  // namespace

void PrintSolutions() {
  std::puts(
      "| order | elements | Float | Eigen, long double | our inverse times b | Double | "
      "Eigen, double |");
  std::puts("|---|---|---|---|---|---|---|");
  Print("up to 1", {5, 10, 20, 50, 100}, Random);
  Print("Hilbert", {4, 6, 8, 10, 12}, Hilbert);
  Print("rows of 1e-4 to 1e4", {5, 20, 50}, Scaled(4, 0));
  Print("columns of 1e-4 to 1e4", {5, 20, 50}, Scaled(0, 4));
  Print("both of 1e-6 to 1e6", {5, 20, 50}, Scaled(6, 6));
  Print("both of 1e-10 to 1e10", {5, 20, 50}, Scaled(10, 10));
}

}  // namespace qorvex::benchmarks
