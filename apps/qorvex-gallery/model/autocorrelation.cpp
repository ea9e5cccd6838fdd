#include "apps/qorvex-gallery/model/autocorrelation.h"

#include <algorithm>
#include <cmath>

namespace qorvex::gallery {

namespace {

// The deviations from the mean of the values that are not NaN.
TQorFloatVector Deviations(const TQorFloatVector& values) {
  Extended sum = 0;
  std::size_t count = 0;
  for (const Extended value : values) {
    if (std::isnan(value)) continue;
    sum += value;
    ++count;
  }
  const Extended mean = sum / static_cast<Extended>(count);
  auto deviations = TQorFloatVector::ForOverwrite(values.size());
  std::ranges::transform(values, deviations.begin(),
                         [mean](Extended value) { return value - mean; });
  return deviations;
}

Extended Covariance(const TQorFloatVector& deviations, std::size_t lag) {
  Extended sum = 0;
  std::size_t products = 0;
  for (std::size_t i = lag; i < deviations.size(); ++i) {
    const Extended product = deviations[i] * deviations[i - lag];
    if (std::isnan(product)) continue;
    sum += product;
    ++products;
  }
  return products == 0 ? 0 : sum / static_cast<Extended>(products + lag);
}

}  // namespace

std::vector<Extended> Autocorrelations(const TQorFloatVector& values, std::size_t most_lags) {
  const TQorFloatVector deviations = Deviations(values);
  const Extended variance = values.empty() ? 0 : Covariance(deviations, 0);
  if (!(variance > 0) || !std::isfinite(variance)) return {};
  std::vector<Extended> correlations;
  for (std::size_t lag = 0; lag <= std::min(most_lags, values.size() - 1); ++lag)
    correlations.push_back(Covariance(deviations, lag) / variance);
  return correlations;
}

}  // namespace qorvex::gallery
