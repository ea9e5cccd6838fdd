#pragma once

/// @file
/// TestReport, what both programs show of a test of hypotheses.

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "qorvex/stats/distributions/distribution.h"
#include "qorvex/stats/inference/test_result.h"

namespace qorvex::apps {

/// A figure with its key in JSON.
struct TestFigure {
  const char* key;
  std::string label;
  Extended value;
  bool is_count = false;
  /// Not 0 if the exact figure is not 0, whatever became of the value.
  Extended witness = 0;
};

/// An interval with its key in JSON.
struct TestInterval {
  const char* key;
  std::string label;
  Interval<Extended> ends;
  /// Not 0 if the exact ends are not 0.
  Extended witness = 0;
};

/// A sample of a test.
struct TestSample {
  /// From 1; 0 if it is no column.
  std::size_t column = 0;
  std::string name = {};
  /// The label of the group; empty if it is the whole column.
  std::string group = {};
  /// The missing values that were skipped.
  std::size_t missing = 0;
  /// Of the numbers.
  int significant_digits = 0;
  std::vector<TestFigure> figures = {};
};

/// The distribution of a statistic if the null hypothesis holds.
enum class StatisticLaw : std::uint8_t { kStudentT, kChiSquare, kF, kOther };

/// A test and its result.
struct TestReport {
  std::string title;
  std::vector<TestSample> samples = {};
  std::vector<TestFigure> figures = {};
  std::string null_hypothesis = {};
  std::string alternate_hypothesis = {};
  /// On which sides of its distribution the statistic speaks against the null hypothesis.
  Alternative alternative = Alternative::kGreater;
  /// The symbol of the statistic, whether it is a count, and its distribution if that has known
  /// quantiles.
  const char* symbol = "";
  bool statistic_is_count = false;
  StatisticLaw law = StatisticLaw::kOther;
  TestResult result = {};
  std::vector<TestInterval> intervals = {};

  /// States that the subject has the value, or differs from it in the direction of the alternative.
  void SetHypotheses(const std::string& subject, const std::string& value);
};

}  // namespace qorvex::apps
