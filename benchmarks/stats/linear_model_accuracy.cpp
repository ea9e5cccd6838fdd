// Prints the right digits of linear models and analyses of variance over the sets of NIST, beside
// Eigen in long double, GSL and R in double, as Markdown.

#include <Eigen/Dense>
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <gsl/gsl_multifit.h>
#include <string>
#include <vector>

#include "qorvex/stats/regression/linear_model.h"
#include "stats/regression/nist_sets.h"
#include "support/table.h"

namespace qorvex::benchmarks {

namespace {

using testing::DataColumns;
using testing::LinearSet;
using testing::Table;
using Matrix = Eigen::Matrix<Extended, Eigen::Dynamic, Eigen::Dynamic>;
using Vector = Eigen::Matrix<Extended, Eigen::Dynamic, 1>;
using Numbers = std::vector<Extended>;

// Coefficients and their standard errors, or other figures.
struct Figures {
  Numbers values;
  Numbers errors;
};

// The columns of the coefficients, powers by repeated multiplication.
Matrix DesignOf(const LinearSet& set, const DataColumns& data) {
  const auto rows = static_cast<Eigen::Index>(data.extended[0].size());
  const bool constant = set.intercept == Intercept::kIncluded;
  std::vector<Vector> columns;
  if (constant) columns.push_back(Vector::Ones(rows));
  for (std::size_t k = 0; k < std::max(set.predictors, set.degree); ++k) {
    const Vector x = Eigen::Map<const Vector>(data.extended[set.degree > 0 ? 0 : k].data(), rows);
    columns.push_back(set.degree > 0 && k > 0 ? Vector(columns.back().cwiseProduct(x)) : x);
  }
  Matrix design(rows, static_cast<Eigen::Index>(columns.size()));
  for (std::size_t k = 0; k < columns.size(); ++k)
    design.col(static_cast<Eigen::Index>(k)) = columns[k];
  return design;
}

Figures EigenInLongDouble(const Matrix& design, const Vector& y) {
  const Eigen::Index p = design.cols();
  const Eigen::HouseholderQR<Matrix> qr(design);
  const Vector b = qr.solve(y);
  const Matrix r = qr.matrixQR().topRows(p).triangularView<Eigen::Upper>();
  const Matrix inverse = r.triangularView<Eigen::Upper>().solve(Matrix::Identity(p, p));
  const Extended variance =
      (y - design * b).squaredNorm() / static_cast<Extended>(design.rows() - p);
  Figures figures{Numbers(b.data(), b.data() + p), {}};
  for (Eigen::Index i = 0; i < p; ++i)
    figures.errors.push_back(std::sqrt(variance) * inverse.row(i).norm());
  return figures;
}

Figures Gsl(const Matrix& design, const Vector& y) {
  const auto n = static_cast<std::size_t>(design.rows());
  const auto p = static_cast<std::size_t>(design.cols());
  gsl_matrix* x = gsl_matrix_alloc(n, p);
  gsl_vector* response = gsl_vector_alloc(n);
  for (std::size_t i = 0; i < n; ++i) {
    const auto row = static_cast<Eigen::Index>(i);
    gsl_vector_set(response, i, static_cast<double>(y(row)));
    for (std::size_t j = 0; j < p; ++j)
      gsl_matrix_set(x, i, j, static_cast<double>(design(row, static_cast<Eigen::Index>(j))));
  }
  gsl_multifit_linear_workspace* workspace = gsl_multifit_linear_alloc(n, p);
  gsl_vector* b = gsl_vector_alloc(p);
  gsl_matrix* covariance = gsl_matrix_alloc(p, p);
  double rss = 0;
  gsl_multifit_linear(x, response, b, covariance, &rss, workspace);
  Figures figures;
  for (std::size_t j = 0; j < p; ++j) {
    figures.values.push_back(gsl_vector_get(b, j));
    figures.errors.push_back(std::sqrt(gsl_matrix_get(covariance, j, j)));
  }
  gsl_matrix_free(covariance);
  gsl_vector_free(b);
  gsl_multifit_linear_free(workspace);
  gsl_vector_free(response);
  gsl_matrix_free(x);
  return figures;
}

Figures Ours(const LinearSet& set, const DataColumns& data, bool as_decimals) {
  const LinearFit fit = testing::FitOf(set, data, as_decimals);
  Figures figures;
  for (const FittedCoefficient& coefficient : fit.Coefficients()) {
    figures.values.push_back(coefficient.value);
    figures.errors.push_back(coefficient.standard_error);
  }
  return figures;
}

// The exact figures of a set whose names begin so, such as B or sdB.
Numbers Exact(const Table& table, const std::string& set, const std::string& prefix,
              const std::string& column) {
  Numbers exact;
  for (std::size_t row = 0; row < table.size(); ++row) {
    const std::string& figure = table.Text(row, "figure");
    if (table.Text(row, "set") == set && figure.starts_with(prefix))
      exact.push_back(table.Value(row, column));
  }
  return exact;
}

// The right digits of the worst figure: "all" where each is the nearest extended number, "-" where
// one should be 0.
std::string Digits(const Numbers& values, const Numbers& exact) {
  Extended worst = INFINITY;
  for (std::size_t i = 0; i < exact.size(); ++i) {
    if (values.at(i) == exact[i]) continue;
    if (exact[i] == 0) return "-";
    worst = std::min(worst, -std::log10(std::fabs(values[i] / exact[i] - 1)));
  }
  if (std::isinf(worst)) return "all";
  char text[16];
  std::snprintf(text, sizeof text, "%.1Lf", std::max(worst, 0.0L));
  return text;
}

void PrintLinearModels() {
  std::puts("| set | Qorvex | Qorvex, decimal columns | Eigen, long double | GSL | R |");
  std::puts("|---|---|---|---|---|---|");
  const Table table("nist/linear_models.csv");
  const Table r("regression/r_nist.csv");
  std::size_t row = 0;
  for (const LinearSet& set : testing::kLinearSets) {
    const DataColumns data(testing::ReadTexts(set.name, set.predictors + 1));
    const Matrix design = DesignOf(set, data);
    const Vector y = Eigen::Map<const Vector>(data.extended.back().data(), design.rows());
    std::printf("| %s |", set.name);
    const auto cell = [&](const Figures& figures, const std::string& column) {
      std::printf(" %s, %s |", Digits(figures.values, Exact(table, set.name, "B", column)).c_str(),
                  Digits(figures.errors, Exact(table, set.name, "sdB", column)).c_str());
    };
    cell(Ours(set, data, false), "extended");
    cell(Ours(set, data, true), "decimal");
    cell(EigenInLongDouble(design, y), "extended");
    cell(Gsl(design, y), "decimal");
    cell({r.Values(row, "values"), r.Values(row, "errors")}, "decimal");
    ++row;
    std::puts("");
  }
}

Numbers FiguresOf(const OneWayAnovaTable& table) {
  return {table.between.sum_of_squares, table.within.sum_of_squares, table.between.f};
}

// By the means of the groups, in two passes.
Numbers TwoPasses(const std::vector<Numbers>& groups) {
  const auto sum = [](const Numbers& values, auto term) {
    Extended total = 0;
    for (const Extended value : values) total += term(value);
    return total;
  };
  const auto itself = [](Extended value) { return value; };
  Extended total = 0;
  Extended count = 0;
  for (const Numbers& group : groups) {
    total += sum(group, itself);
    count += static_cast<Extended>(group.size());
  }
  Extended between = 0;
  Extended within = 0;
  for (const Numbers& group : groups) {
    const auto size = static_cast<Extended>(group.size());
    const Extended mean = sum(group, itself) / size;
    between += size * (mean - total / count) * (mean - total / count);
    within += sum(group, [&](Extended value) { return (value - mean) * (value - mean); });
  }
  const auto k = static_cast<Extended>(groups.size());
  return {between, within, between / (k - 1) / (within / (count - k))};
}

void PrintAnova() {
  std::puts("\n| set | Qorvex | Qorvex, decimal data | two passes, long double | R |");
  std::puts("|---|---|---|---|---|");
  const Table table("nist/anova.csv");
  const Table r("regression/r_nist.csv");
  std::size_t row = std::size(testing::kLinearSets);
  for (const auto& set : testing::AnovaSets()) {
    const std::string& name = set.first;
    const DataColumns& groups = set.second;
    const auto exact = [&](const std::string& column) {
      Numbers figures;
      for (const char* figure : {"ssbetween", "sswithin", "F"})
        figures.push_back(Exact(table, name, figure, column).at(0));
      return figures;
    };
    Numbers of_r = r.Values(row, "values");
    of_r.push_back(r.Value(row, "f"));
    ++row;
    std::printf("| %s | %s | %s | %s | %s |\n", name.c_str(),
                Digits(FiguresOf(OneWayAnova(groups.extended)), exact("extended")).c_str(),
                Digits(FiguresOf(OneWayAnova(groups.Views(true))), exact("decimal")).c_str(),
                Digits(TwoPasses(groups.extended), exact("extended")).c_str(),
                Digits(of_r, exact("decimal")).c_str());
  }
}

}  // namespace

}  // namespace qorvex::benchmarks

int main() {
  qorvex::benchmarks::PrintLinearModels();
  qorvex::benchmarks::PrintAnova();
}
