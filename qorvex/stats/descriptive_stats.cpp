#include "qorvex/stats/descriptive_stats.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "qorvex/base/comparisons.h"
#include "qorvex/base/errors.h"
#include "qorvex/base/text.h"
#include "qorvex/stats/detail/moments.h"
#include "qorvex/stats/detail/sample_sums.h"
#include "qorvex/stats/order_statistics.h"
#include "qorvex/vector/detail/sort_keys.h"
#include "qorvex/vector/sorting.h"

namespace qorvex {

using QorvexStatistics::detail::kMinCountForKurtosis;
using QorvexStatistics::detail::kMinCountForSkew;

namespace {

// NaN sorts last.
bool HoldsNaN(const TQorFloatVector& sorted) {
  return !sorted.empty() && std::isnan(sorted[sorted.size() - 1]);
}

// Inserts a value at the place where QSortVector would put it.
void InsertSorted(TQorFloatVector& sorted, Extended value) {
  sorted.Append(value);
  Extended* const last = sorted.end() - 1;
  Extended* const place =
      std::upper_bound(sorted.begin(), last, value, QorvexVector::detail::SortsBefore<Extended>);
  std::move_backward(place, last, sorted.end());
  *place = value;
}

// Removes an element that has exactly the bits of the value.
void EraseSorted(TQorFloatVector& sorted, Extended value) {
  Extended* const place = std::lower_bound(sorted.begin(), sorted.end(), value,
                                           QorvexVector::detail::SortsBefore<Extended>);
  std::move(place + 1, sorted.end(), place);
  sorted.SetLength(sorted.size() - 1);
}

}  // namespace

std::string ReportFigure::Text(int decimals) const {
  if (!value) return "";
  return Float2EStr(*value, label == rsDSNoOfValues ? 0 : decimals);
}

std::string ReportLine(const ReportFigure& figure, const std::string& text) {
  return figure.value ? ReportText(figure.label) + '\t' + text : ReportText(figure.label);
}

std::vector<ReportFigure> DescriptiveFigures(const DescriptiveResults& r, std::size_t count,
                                             bool population, bool has_spread) {
  if (count == 0) return {};

  const auto moment = [&](ReportTextId id, Extended value, std::size_t least,
                          ReportTextId not_enough, ReportTextId no_spread) -> ReportFigure {
    if (count < least) return {not_enough};
    if (!has_spread) return {no_spread};
    return {id, value};
  };
  const bool has_variance = population || count > 1;
  return {
      {rsDSNoOfValues, static_cast<Extended>(count)},
      {rsDSMaximum, r.maximum},
      {rsDSMinimum, r.minimum},
      {rsDSRange, r.maximum - r.minimum},
      {rsDSSum, r.sum},
      {rsDSSumSQ, r.sum_sq},
      {rsDSMean, r.mean},
      r.mode_exists ? ReportFigure{rsDSMode, r.mode} : ReportFigure{rsDSNoMode},
      {rsDSMedian, r.median},
      has_variance ? ReportFigure{rsDSVariance, r.variance} : ReportFigure{rsDSNEVariance},
      has_variance ? ReportFigure{rsDSStdDev, r.std_dev} : ReportFigure{rsDSNEStdDev},
      moment(rsDSKurtosis, r.kurtosis, kMinCountForKurtosis, rsDSNEKurtosis, rsDSSDKurtosis),
      moment(rsDSSkew, r.skew, kMinCountForSkew, rsDSNESkew, rsDSSDSkew),
      {rsDSQtr1, r.quartile_1st},
      {rsDSQtr3, r.quartile_3rd},
      {rsDSIQR, r.inter_quartile_range},
  };
}

DescriptiveStats::DescriptiveStats(const DescriptiveStats& other)
    : values_(CopyVector(other.values_)),
      sorted_(CopyVector(other.sorted_)),
      results_(other.results_),
      updating_(other.updating_),
      population_(other.population_) {}

DescriptiveStats::DescriptiveStats(DescriptiveStats&& other) noexcept {
  Swap(other);
}

DescriptiveStats& DescriptiveStats::operator=(DescriptiveStats other) noexcept {
  Swap(other);
  return *this;
}

void DescriptiveStats::Swap(DescriptiveStats& other) noexcept {
  std::swap(values_, other.values_);
  std::swap(sorted_, other.sorted_);
  std::swap(results_, other.results_);
  std::swap(updating_, other.updating_);
  std::swap(population_, other.population_);
}

void DescriptiveStats::SetValues(TQorFloatVector values) {
  values_ = values.IsShared() ? CopyVector(values) : std::move(values);
  UpdateStats();
}

TQorFloatVector DescriptiveStats::Values() const {
  return CopyVector(values_);
}

void DescriptiveStats::AddValue(Extended value) {
  values_.Append(value);
  if (updating_) return;
  // The first value must start the sums: added to 0, a negative zero would be lost.
  const bool continues = !sorted_.empty() && sorted_.size() + 1 == values_.size();
  if (!continues || std::isnan(value) || HoldsNaN(sorted_)) {
    UpdateStats();
    return;
  }
  InsertSorted(sorted_, value);
  results_.sum += value;
  results_.sum_sq += value * value;
  UpdateFromSums();
}

bool DescriptiveStats::DeleteValue(std::int64_t index) {
  if (index < 0 || index > values_.High()) return false;
  Extended* const place = values_.data() + index;
  const Extended value = *place;
  std::move(place + 1, values_.end(), place);
  values_.SetLength(values_.size() - 1);
  if (updating_) return true;
  const bool continues =
      sorted_.size() == values_.size() + 1 && !HoldsNaN(sorted_) && !values_.empty();
  if (!continues) {
    UpdateStats();
    return true;
  }
  EraseSorted(sorted_, value);
  SumUp();
  UpdateFromSums();
  return true;
}

void DescriptiveStats::Clear() {
  values_.SetLength(0);
  EndUpdate();
}

void DescriptiveStats::EndUpdate() {
  updating_ = false;
  UpdateStats();
}

void DescriptiveStats::SetPopulation(bool population) {
  if (population == population_) return;
  population_ = population;
  // The divisor affects neither the order nor the sums.
  const bool in_step = !updating_ && !values_.empty() && sorted_.size() == values_.size();
  if (in_step) {
    UpdateFromSums();
  } else {
    UpdateStats();
  }
}

void DescriptiveStats::UpdateStats() {
  if (updating_) return;
  sorted_.SetLength(0);
  if (values_.empty()) {
    results_ = {};
    return;
  }
  // If memory runs out, no sorted copy remains, and the next update starts from the values.
  sorted_ = SortedVector(values_);
  SumUp();
  UpdateFromSums();
}

void DescriptiveStats::SumUp() {
  const auto sums = QorvexStatistics::detail::AddUp(values_);
  results_.sum = sums.sum;
  results_.sum_sq = sums.squares;
}

void DescriptiveStats::UpdateFromSums() {
  namespace detail = QorvexStatistics::detail;
  DescriptiveResults& r = results_;
  const std::size_t count = values_.size();
  const auto n = static_cast<Extended>(count);
  r.mean = r.sum / n;
  const detail::DeviationSums deviations = detail::AddUpDeviations(values_, r.mean);
  if (population_) {
    r.variance = deviations.squares / n;
  } else {
    r.variance = count >= 2 ? deviations.squares / (n - 1) : 0;
  }
  r.std_dev = std::sqrt(r.variance);

  r.median = GetMedian(sorted_);
  r.mode_exists = GetMode(sorted_, r.mode);
  r.minimum = sorted_[0];
  r.maximum = sorted_[count - 1];

  const bool spread = FloatIsNotZero(r.std_dev);
  r.kurtosis = 0;
  if (count >= kMinCountForKurtosis && spread) {
    const auto kurtosis = population_ ? detail::PopulationKurtosis : detail::SampleKurtosis;
    r.kurtosis = kurtosis(n, deviations.fourth_powers, r.std_dev);
  }
  r.skew = 0;
  if (count >= kMinCountForSkew && spread) {
    const auto skew = population_ ? detail::PopulationSkew : detail::SampleSkew;
    r.skew = skew(n, deviations.cubes, r.std_dev);
  }

  GetQuartiles(sorted_, r.quartile_1st, r.quartile_3rd);
  r.inter_quartile_range = r.quartile_3rd - r.quartile_1st;
}

std::vector<ReportFigure> DescriptiveStats::Figures() {
  if (updating_) EndUpdate();
  return DescriptiveFigures(results_, values_.size(), population_,
                            FloatIsNotZero(results_.std_dev));
}

std::vector<std::string> DescriptiveStats::Report(int decimals) {
  std::vector<std::string> lines;
  for (const ReportFigure& figure : Figures())
    lines.push_back(ReportLine(figure, figure.Text(decimals)));
  if (lines.empty()) lines.push_back(MessageText(rsVectorIsEmpty));
  return lines;
}

}  // namespace qorvex
