#pragma once

/// @file
/// NumberSample, a sample of a test of hypotheses.

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "apps/common/column_numbers.h"
#include "apps/common/number_parameter.h"
#include "apps/common/test_report.h"
#include "qorvex/base/Qorvex_rs_math.h"

namespace qorvex::apps {

/// The numbers of a sample, and where they are from.
struct NumberSample {
  ColumnNumbers numbers = {};
  TestSample origin = {};

  /// "column 2 (speed)", followed by ", " and the group if it is one.
  [[nodiscard]] std::string Title() const;
};

/// @{
/// The origin of a sample with its number, mean and standard deviation, or its number and median.
[[nodiscard]] TestSample WithMoments(const NumberSample& sample);
[[nodiscard]] TestSample WithMedian(const NumberSample& sample);
/// @}

/// Numbers less the value of a null hypothesis, and what remains to subtract: 0 if all of them are
/// decimal, otherwise the whole value.
struct Shifted {
  ColumnNumbers numbers;
  Extended rest;
};
[[nodiscard]] Shifted ShiftedBy(const WrittenNumber& hypothesis, const ColumnNumbers& numbers);

/// The first number that is no count, and what is wrong with it; empty if all are counts.
[[nodiscard]] std::string WhatIsWrongWithCounts(const NumberSample& sample);

/// @{
/// Of the error of a test: what it means for samples, or null if it does not concern them; and the
/// index of the sample that it is about, if it is about one of them only.
[[nodiscard]] const char* WhyNoResult(MessageId error);
[[nodiscard]] std::optional<std::size_t> SampleAtFault(std::span<const NumberSample> samples,
                                                       MessageId error);
/// @}

}  // namespace qorvex::apps
