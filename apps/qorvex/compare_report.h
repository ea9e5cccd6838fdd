#pragma once

/// @file
/// What `compare` reports on two columns.

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "apps/common/sample_figures.h"
#include "apps/common/table_reader.h"
#include "apps/qorvex/box_plot.h"
#include "qorvex/stats/distributions/distribution.h"
#include "qorvex/stats/inference/test_result.h"

namespace qorvex::apps {

/// A column to compare.
struct ComparedColumn {
  std::string file = {};
  TableColumn column = {};
  /// What tells it from the other.
  std::string title = {};
};

/// A test in a report.
struct ReportedTest {
  /// In JSON.
  const char* key;
  const char* name;
  const char* null_hypothesis;
  /// The symbol of the statistic.
  const char* symbol;
  /// None if the test does not exist for the values.
  std::optional<TestResult> result;
};

/// The report on two columns.
struct ComparisonReport {
  std::vector<ReportFigure> first;
  std::vector<ReportFigure> second;
  BoxPlot first_plot;
  BoxPlot second_plot;
  /// Of the means, first minus second.
  Extended difference = 0;
  /// None for a single value.
  std::optional<Interval<Extended>> interval = std::nullopt;
  std::vector<ReportedTest> tests = {};
};

/// The report. The values of paired columns belong together and are as many. Throws InputError
/// (kOutOfRange) for figures that overflow.
[[nodiscard]] ComparisonReport ReportOn(const ComparedColumn& first, const ComparedColumn& second,
                                        bool paired, Extended confidence);

}  // namespace qorvex::apps
