#include "qorvex/random/multivariate_normal_source.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>
#include <utility>
#include <vector>

#include "qorvex/base/errors.h"
#include "qorvex/random/detail/cholesky.h"
#include "qorvex/random/normal.h"

namespace qorvex::inline QorvexRandom {

namespace {

// The share of a variance that rounding may have made of nothing.
Extended Tolerance(std::size_t n) {
  return 4 * static_cast<Extended>(n) * std::numeric_limits<Extended>::epsilon();
}

// The rows of a factor, all of full length, that has as many rows as the matrix has rank.
class PivotedFactor {
 public:
  PivotedFactor(VectorView<Extended> covariance, std::size_t n)
      : n_(n), tolerance_(Tolerance(n)), scale_(n), rest_(n * n), left_(n) {
    std::iota(left_.begin(), left_.end(), std::size_t{0});
    Standardise(covariance);
    while (!left_.empty()) {
      const auto largest = std::ranges::max_element(
          left_, [this](std::size_t a, std::size_t b) { return Rest(a, a) < Rest(b, b); });
      const std::size_t pivot = *largest;
      if (!(Rest(pivot, pivot) > tolerance_)) break;
      left_.erase(largest);
      AddRow(pivot);
    }
    RequireNothingLeft();
  }

  [[nodiscard]] const std::vector<Extended>& Rows() const { return rows_; }

 private:
  Extended& Rest(std::size_t i, std::size_t j) { return rest_[i * n_ + j]; }

  // Divides by the standard deviations, so that the units of the components make no difference.
  void Standardise(VectorView<Extended> covariance) {
    for (std::size_t i = 0; i < n_; ++i) scale_[i] = std::sqrt(covariance[i * (i + 1) / 2 + i]);
    std::size_t next = 0;
    for (std::size_t j = 0; j < n_; ++j) {
      for (std::size_t i = 0; i <= j; ++i) {
        const Extended element = covariance[next++];
        // A component without variance has no covariances.
        Rest(i, j) = Rest(j, i) = element == 0 ? 0 : element / scale_[i] / scale_[j];
      }
    }
  }

  // Takes away what depends on one component.
  void AddRow(std::size_t pivot) {
    const Extended root = std::sqrt(Rest(pivot, pivot));
    std::vector<Extended> row(n_);
    row[pivot] = root;
    for (const std::size_t j : left_) row[j] = Rest(pivot, j) / root;
    for (const std::size_t i : left_) {
      for (const std::size_t j : left_) Rest(i, j) -= row[i] * row[j];
    }
    for (std::size_t j = 0; j < n_; ++j) rows_.push_back(row[j] * scale_[j]);
  }

  void RequireNothingLeft() {
    for (const std::size_t i : left_) {
      for (const std::size_t j : left_) {
        if (!(std::fabs(Rest(i, j)) <= tolerance_)) RaiseMathError(rsCovariance);
      }
    }
  }

  std::size_t n_;
  Extended tolerance_;
  std::vector<Extended> scale_;  // the standard deviations
  std::vector<Extended> rest_;   // what the rows do not yet account for
  std::vector<std::size_t> left_;
  std::vector<Extended> rows_;
};

}  // namespace

MultivariateNormal::MultivariateNormal(VectorView<Extended> mean, VectorView<Extended> covariance)
    : mean_(mean) {
  const std::size_t n = mean.size();
  if (n == 0) RaiseMathError(rsVectorEmpty);
  const std::size_t triangle_size = n * (n + 1) / 2;
  if (covariance.size() < triangle_size) RaiseMathError(rsVectorTooSmall);
  if (!std::ranges::all_of(covariance.first(triangle_size),
                           [](Extended c) { return std::isfinite(c); })) {
    RaiseMathError(rsCovariance);
  }
  if (!FactoriseDefinite(covariance)) {
    rows_ = TQorFloatVector(PivotedFactor(covariance, n).Rows());
  }
}

bool MultivariateNormal::FactoriseDefinite(VectorView<Extended> covariance) {
  const std::size_t n = mean_.size();
  auto triangle = TQorFloatVector::WithLength(n * (n + 1) / 2);
  if (!detail::Factorise(covariance, n, triangle)) return false;
  auto rows = TQorFloatVector::WithLength(n * n);
  for (std::size_t i = 0; i < n; ++i) {
    const Extended* const row = detail::Row(triangle, n, i);
    if (row[i] * row[i] <= Tolerance(n) * covariance[i * (i + 1) / 2 + i]) return false;
    std::copy(row + i, row + n, rows.begin() + static_cast<std::ptrdiff_t>(i * n + i));
  }
  rows_ = rows;
  return true;
}

TQorFloatVector MultivariateNormal::Draw(UniformSource source) const {
  const std::size_t n = mean_.size();
  auto variate = TQorFloatVector(VectorView<Extended>(mean_));
  for (std::size_t i = 0; i < rows_.size(); i += n) {
    const Extended z = Random_Normal(source);
    for (std::size_t j = 0; j < n; ++j) variate[j] += rows_[i + j] * z;
  }
  return variate;
}

}  // namespace qorvex::inline QorvexRandom
