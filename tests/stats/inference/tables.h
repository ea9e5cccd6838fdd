#pragma once

/// @file
/// Tests of hypotheses and intervals by their names in the reference tables.

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "qorvex/stats/distributions/uniform.h"
#include "qorvex/stats/inference/inference.h"
#include "support/table.h"

namespace qorvex::testing {

/// The arguments of a case: samples, and numbers as samples of one value.
class Arguments : public std::vector<std::vector<Extended>> {
 public:
  explicit Arguments(const std::string& text) {
    static const std::map<std::string, std::vector<Extended>> samples = ReadSamples();
    std::istringstream parts(text);
    for (std::string part; std::getline(parts, part, '|');) {
      const auto sample = samples.find(part);
      push_back(sample != samples.end() ? sample->second : Numbers(part));
    }
  }

  /// A number of the list, or the default beyond its end.
  [[nodiscard]] Extended Number(std::size_t index, Extended by_default = 0) const {
    return index < size() ? at(index).at(0) : by_default;
  }
  [[nodiscard]] std::uint32_t Count(std::size_t index) const {
    return static_cast<std::uint32_t>(Number(index));
  }
  [[nodiscard]] std::vector<std::int64_t> Counts(std::size_t index) const {
    return {at(index).begin(), at(index).end()};
  }

 private:
  static std::map<std::string, std::vector<Extended>> ReadSamples() {
    const Table table("tables/inference_samples.csv");
    std::map<std::string, std::vector<Extended>> samples;
    for (std::size_t row = 0; row < table.size(); ++row)
      samples[table.Text(row, "name")] = table.Values(row, "values");
    return samples;
  }

  // Decimals, or "formula" with the number of values and the first index.
  static std::vector<Extended> Numbers(const std::string& text) {
    const std::vector<std::string> words = Words(text);
    std::vector<Extended> numbers;
    if (words[0] == "formula") {
      const int start = std::stoi(words[2]);
      for (int i = start; i < start + std::stoi(words[1]); ++i)
        numbers.push_back(static_cast<Extended>(i * 7919 % 8191) / 8192);
    } else {
      for (const std::string& word : words) numbers.push_back(Str2Float(word));
    }
    return numbers;
  }
};

using TestRoutine = std::function<TestResult(const Arguments&, Alternative)>;

/// All tests.
inline const std::map<std::string, TestRoutine>& TestRoutines() {
  static const std::map<std::string, TestRoutine> routines = {
      {"one-sample-t", [](const Arguments& a,
                          Alternative side) { return OneSampleTTest(a[0], a.Number(1), side); }},
      {"two-sample-t",
       [](const Arguments& a, Alternative side) {
         return TwoSampleTTest(a[0], a[1], a.Number(2), side);
       }},
      {"welch-t", [](const Arguments& a,
                     Alternative side) { return WelchTTest(a[0], a[1], a.Number(2), side); }},
      {"paired-t", [](const Arguments& a,
                      Alternative side) { return PairedTTest(a[0], a[1], a.Number(2), side); }},
      {"variance",
       [](const Arguments& a, Alternative side) { return VarianceTest(a[0], a.Number(1), side); }},
      {"variance-ratio",
       [](const Arguments& a, Alternative side) {
         return VarianceRatioTest(a[0], a[1], a.Number(2, 1), side);
       }},
      {"fit",
       [](const Arguments& a, Alternative) {
         return GoodnessOfFitTest(a.Counts(0), a[1], a.size() > 2 ? a.Count(2) : 0);
       }},
      {"independence",
       [](const Arguments& a, Alternative) {
         TQorInt64Matrix counts;
         for (std::size_t i = 0; i + 1 < a.size(); ++i) counts.Append(TQorInt64Vector(a.Counts(i)));
         return IndependenceTest(
             counts, a.back()[0] == 1 ? ContinuityCorrection::kYates : ContinuityCorrection::kNone);
       }},
      {"binomial",
       [](const Arguments& a, Alternative side) {
         return BinomialTest(a.Count(0), a.Count(1), a.Number(2), side);
       }},
      {"ks-uniform",
       [](const Arguments& a, Alternative side) {
         return KolmogorovSmirnovTest(a[0], UniformDistribution(a.Number(1), a.Number(2)), side);
       }},
      {"ks-two", [](const Arguments& a,
                    Alternative side) { return KolmogorovSmirnovTest(a[0], a[1], side); }},
      {"shapiro-wilk", [](const Arguments& a, Alternative) { return ShapiroWilkTest(a[0]); }},
      {"mann-whitney",
       [](const Arguments& a, Alternative side) {
         return MannWhitneyTest(a[0], a[1], a.Number(2), side);
       }},
      {"signed-rank",
       [](const Arguments& a, Alternative side) {
         return WilcoxonSignedRankTest(a[0], a.Number(1), side);
       }},
      {"signed-rank-pairs", [](const Arguments& a, Alternative side) {
         return WilcoxonSignedRankTest(a[0], a[1], a.Number(2), side);
       }}};
  return routines;
}

using IntervalRoutine = std::function<Interval<Extended>(const Arguments&)>;

/// All intervals.
inline const std::map<std::string, IntervalRoutine>& IntervalRoutines() {
  static const std::map<std::string, IntervalRoutine> routines = {
      {"mean", [](const Arguments& a) { return MeanInterval(a[0], a.Number(1)); }},
      {"prediction", [](const Arguments& a) { return PredictionInterval(a[0], a.Number(1)); }},
      {"variance", [](const Arguments& a) { return VarianceInterval(a[0], a.Number(1)); }},
      {"pooled-difference",
       [](const Arguments& a) { return PooledDifferenceInterval(a[0], a[1], a.Number(2)); }},
      {"welch-difference",
       [](const Arguments& a) { return WelchDifferenceInterval(a[0], a[1], a.Number(2)); }},
      {"clopper-pearson",
       [](const Arguments& a) {
         return ClopperPearsonInterval(a.Count(0), a.Count(1), a.Number(2));
       }},
      {"wilson",
       [](const Arguments& a) { return WilsonInterval(a.Count(0), a.Count(1), a.Number(2)); }},
      {"correlation", [](const Arguments& a) {
         return CorrelationInterval(a.Number(0), a.Count(1), a.Number(2));
       }}};
  return routines;
}

}  // namespace qorvex::testing
