#pragma once

/// @file
/// The columns that the commands of `test` read.

#include <functional>
#include <string>
#include <vector>

#include "apps/common/column_numbers.h"
#include "apps/common/input_error.h"
#include "apps/common/sample_figures.h"
#include "apps/qorvex/test_arguments.h"
#include "apps/qorvex/test_report.h"
#include "qorvex/base/errors.h"

namespace qorvex::apps {

/// The numbers of a sample, and where they are from.
struct NumberSample {
  ColumnNumbers numbers;
  TestSample origin;

  /// "file: column 2 (speed)", followed by ", " and the group if it is one.
  [[nodiscard]] std::string Place(const std::string& file) const;
};

/// Reads each chosen column as a sample, or splits one by its labels.
[[nodiscard]] std::vector<NumberSample> ReadSamples(const TestArguments& arguments);
/// Reads the columns of --x and --y.
[[nodiscard]] std::vector<NumberSample> ReadPairs(const TestArguments& arguments);

/// @{
/// The origin of a sample with its number, mean and standard deviation, or its number and median.
[[nodiscard]] TestSample WithMoments(const NumberSample& sample);
[[nodiscard]] TestSample WithMedian(const NumberSample& sample);
/// @}

/// A report on each sample. An error names its column.
[[nodiscard]] std::vector<TestReport> TestEach(
    const TestArguments& arguments, const std::function<TestReport(const NumberSample&)>& test);

/// A report on two samples. An error names the one at fault, if only one is.
[[nodiscard]] std::vector<TestReport> TestTwo(
    const TestArguments& arguments,
    const std::function<TestReport(const std::vector<NumberSample>& samples)>& test);

/// The InputError for what a test refuses.
[[nodiscard]] InputError TestRefusal(const std::string& place, const EMathError& error);

/// Numbers less the value of a null hypothesis, and what remains to subtract: 0 if all of them are
/// decimal, otherwise the whole value.
struct Shifted {
  ColumnNumbers numbers;
  Extended rest;
};
[[nodiscard]] Shifted ShiftedBy(const WrittenNumber& hypothesis, const ColumnNumbers& numbers);

}  // namespace qorvex::apps
