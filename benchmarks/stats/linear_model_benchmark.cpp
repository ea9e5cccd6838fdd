// Linear models compared with Householder's QR of Eigen in long double, and with GSL in double.

#include <Eigen/QR>
#include <gsl/gsl_multifit.h>
#include <memory>
#include <string>
#include <vector>

#include "qorvex/stats/regression/linear_model.h"
#include "qorvex/stats/regression/pair_fit.h"
#include "support/compare.h"

namespace qorvex::benchmarks {
namespace {

using Matrix = Eigen::Matrix<Extended, Eigen::Dynamic, Eigen::Dynamic>;
using Vector = Eigen::Matrix<Extended, Eigen::Dynamic, 1>;

// Normally distributed predictors and response, and the same as the matrices of others.
struct Data {
  std::vector<TQorFloatVector> predictors;
  TQorFloatVector response;
  TQorFloatVector weights;
  Matrix design;
  Vector y;

  Data(std::size_t n, std::size_t p) : response(Sample<Extended>(n, 0)), weights(n, 1.5L) {
    const auto rows = static_cast<Eigen::Index>(n);
    y = Eigen::Map<const Vector>(response.data(), rows);
    design = Matrix::Ones(rows, static_cast<Eigen::Index>(p + 1));
    for (std::size_t k = 1; k <= p; ++k) {
      predictors.push_back(Sample<Extended>(n, k));
      design.col(static_cast<Eigen::Index>(k)) =
          Eigen::Map<const Vector>(predictors.back().data(), rows);
    }
  }
};

Extended Householder(const Data& data) {
  const Vector b = Eigen::HouseholderQR<Matrix>(data.design).solve(data.y);
  return b.sum();
}

// GSL's matrices and work space, made once.
class GslData {
 public:
  explicit GslData(const Data& data)
      : n_(static_cast<std::size_t>(data.design.rows())),
        p_(static_cast<std::size_t>(data.design.cols())),
        x_(gsl_matrix_alloc(n_, p_)),
        y_(gsl_vector_alloc(n_)),
        b_(gsl_vector_alloc(p_)),
        covariance_(gsl_matrix_alloc(p_, p_)),
        workspace_(gsl_multifit_linear_alloc(n_, p_)) {
    for (std::size_t i = 0; i < n_; ++i) {
      const auto row = static_cast<Eigen::Index>(i);
      gsl_vector_set(y_, i, static_cast<double>(data.y(row)));
      for (std::size_t j = 0; j < p_; ++j) {
        gsl_matrix_set(x_, i, j,
                       static_cast<double>(data.design(row, static_cast<Eigen::Index>(j))));
      }
    }
  }
  GslData(const GslData&) = delete;
  GslData& operator=(const GslData&) = delete;
  ~GslData() {
    gsl_multifit_linear_free(workspace_);
    gsl_matrix_free(covariance_);
    gsl_vector_free(b_);
    gsl_vector_free(y_);
    gsl_matrix_free(x_);
  }

  [[nodiscard]] double Fit() const {
    double rss = 0;
    gsl_multifit_linear(x_, y_, b_, covariance_, &rss, workspace_);
    return gsl_vector_get(b_, 0);
  }

 private:
  std::size_t n_;
  std::size_t p_;
  gsl_matrix* x_;
  gsl_vector* y_;
  gsl_vector* b_;
  gsl_matrix* covariance_;
  gsl_multifit_linear_workspace* workspace_;
};

// Registers work(data) for rows of p predictors; the items are the rows.
template <class Work>
void CompareFits(const std::string& routine, const std::string& who, std::size_t p, Work work) {
  for (const std::size_t n : {1'000U, 100'000U}) {
    const std::string name = routine + "/Float/" + who + "/" + std::to_string(n);
    benchmark::RegisterBenchmark(name.c_str(), [n, p, work](benchmark::State& state) {
      const Data data(n, p);
      const auto prepared = work(data);
      for (auto _ : state) benchmark::DoNotOptimize(prepared());
      state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(n));
    });
  }
}

template <class Fit>
auto OfModel(Fit fit) {
  return [fit](const Data& data) { return [&data, fit] { return fit(data).Values()[0]; }; };
}

[[maybe_unused]] const bool registered = [] {
  for (const std::size_t p : {1U, 2U, 3U, 10U}) {
    const std::string routine = "LinearModel with " + std::to_string(p) + " predictors";
    CompareFits(routine, "ours", p, OfModel([p](const Data& data) {
                  LinearModel model(p);
                  model.Add(data.predictors, data.response);
                  return model.Fit();
                }));
    CompareFits(routine, "ours with weights", p, OfModel([p](const Data& data) {
                  LinearModel model(p);
                  model.AddWeighted(data.predictors, data.response, data.weights);
                  return model.Fit();
                }));
    CompareFits(routine, "Eigen QR long double", p,
                [](const Data& data) { return [&data] { return Householder(data); }; });
    CompareFits(routine, "GSL double", p, [](const Data& data) {
      return [gsl = std::make_shared<GslData>(data)] { return gsl->Fit(); };
    });
  }
  for (const std::size_t degree : {1U, 2U, 5U}) {
    const std::string routine = "FitPairs of degree " + std::to_string(degree);
    CompareFits(routine, "ours", 1, OfModel([degree](const Data& data) {
                  return FitPairs(data.predictors[0], data.response, degree).curve;
                }));
    CompareFits(routine, "Eigen QR long double", 1, [degree](const Data& data) {
      Data powers = data;
      powers.design.conservativeResize(Eigen::NoChange, static_cast<Eigen::Index>(degree + 1));
      for (Eigen::Index k = 2; k <= static_cast<Eigen::Index>(degree); ++k)
        powers.design.col(k) = powers.design.col(k - 1).cwiseProduct(powers.design.col(1));
      return [powers] { return Householder(powers); };
    });
  }
  for (const std::size_t p : {1U, 3U}) {
    const std::string routine = "Residuals of " + std::to_string(p) + " predictors";
    CompareFits(routine, "ours", p, [p](const Data& data) {
      LinearModel model(p);
      model.Add(data.predictors, data.response);
      return
          [&data, fit = model.Fit()] { return fit.Residuals(data.predictors, data.response)[0]; };
    });
  }
  return true;
}();

}  // namespace
}  // namespace qorvex::benchmarks
