#include "apps/qorvex/grouped_figures.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <numeric>
#include <string>

#include "qorvex/base/text.h"
#include "qorvex/stats/Qorvex_RS_DescStats.h"
#include "qorvex/stats/grouped.h"
#include "qorvex/stats/weighted_grouped.h"

namespace qorvex::apps {

namespace {

std::uint64_t TotalOf(const ClassTable& table) {
  return std::accumulate(table.counts.begin(), table.counts.end(), std::uint64_t{0});
}

}  // namespace

ResultTable RowsOf(const ClassTable& table) {
  ResultTable rows{.columns = {{"from", "From"},
                               {"to", "To"},
                               {"count", "Count"},
                               {"share", "Share"},
                               {"cumulative_share", "Cumulative Share"}}};
  const auto total = static_cast<Extended>(TotalOf(table));
  std::uint64_t sum = 0;
  for (std::size_t i = 0; i < table.counts.size(); ++i) {
    const std::uint64_t count = table.counts[i];
    sum += count;
    rows.rows.push_back({table.bounds[i], table.bounds[i + 1], count,
                         static_cast<Extended>(count) / total, static_cast<Extended>(sum) / total});
  }
  return rows;
}

std::vector<Figure> GroupedFigures(const ClassTable& table, bool population) {
  // The routine for deciles does not interpolate in the last class, so there is an empty one.
  TQorLWordVector counts = CopyVector(table.counts);
  counts.Append(0);
  const Extended lower = table.bounds[0];
  const Extended width = table.bounds.Width();
  const std::uint64_t total = TotalOf(table);
  const bool has_spread = *std::ranges::max_element(counts) < total;
  const Estimate estimate = population ? Estimate::kPopulation : Estimate::kSample;
  std::vector<Figure> figures;
  const auto add = [&](const char* key, ReportTextId label, Cell value) {
    figures.push_back({key, ReportText(label), value});
  };
  const auto add_if = [&](bool exists, const char* key, ReportTextId label, auto figure,
                          ReportTextId reason) {
    if (exists) return add(key, label, figure());
    figures.push_back({key, ReportText(label), {}, ReportText(reason)});
  };
  const Extended mean = GroupedMean(counts, lower, width);
  add("count", rsDSNoOfValues, total);
  add("mean", rsDSMean, mean);
  Extended mode = 0;
  add_if(
      GroupedMode(counts, lower, width, mode), "mode", rsDSMode, [&] { return mode; }, rsDSNoMode);
  add("median", rsDSMedian, GroupedMedian(counts, lower, width));
  const bool has_variance = population || total > 1;
  add_if(
      has_variance, "variance", rsDSVariance,
      [&] {
        return population ? GroupedPopulationVariance(counts, lower, width)
                          : GroupedSampleVariance(counts, lower, width);
      },
      rsDSNEVariance);
  add_if(
      has_variance, "standard_deviation", rsDSStdDev,
      [&] {
        return population ? GroupedPopulationStdDev(counts, lower, width)
                          : GroupedSampleStdDev(counts, lower, width);
      },
      rsDSNEStdDev);
  figures.push_back(
      {"mean_deviation", "Mean Deviation:", GetGroupedMeanDev(counts, lower, width, mean)});
  add_if(
      has_spread && total > 3, "excess_kurtosis", rsDSKurtosis,
      [&] { return WeightedGroupedKurtosis(counts, estimate); },
      total > 3 ? rsDSSDKurtosis : rsDSNEKurtosis);
  add_if(
      has_spread && total > 2, "skewness", rsDSSkew,
      [&] { return WeightedGroupedSkew(counts, estimate); }, total > 2 ? rsDSSDSkew : rsDSNESkew);
  Extended q1 = 0;
  Extended q3 = 0;
  GroupedQuartiles(counts, lower, width, q1, q3);
  add("first_quartile", rsDSQtr1, q1);
  add("third_quartile", rsDSQtr3, q3);
  add("interquartile_range", rsDSIQR, q3 - q1);
  std::array<Extended, 9> deciles{};
  GetGroupedDeciles(counts, lower, width, deciles);
  for (std::size_t i = 0; i < deciles.size(); ++i) {
    const std::string number = Int2EStr(i + 1);
    figures.push_back({"decile_" + number, "Decile " + number + ':', deciles[i]});
  }
  return figures;
}

}  // namespace qorvex::apps
