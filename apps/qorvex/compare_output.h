#pragma once

/// @file
/// The forms of the output of `compare`.

#include <string>

#include "apps/qorvex/compare_report.h"
#include "apps/qorvex/output_format.h"
#include "apps/qorvex/parameters.h"

namespace qorvex::apps {

/// What the report is on.
struct ComparisonHeading {
  const ComparedColumn& first;
  const ComparedColumn& second;
  bool paired = false;
  WrittenNumber confidence = {};
};

/// Tables of figures and tests, and box plots; without these plots in CSV. Writes a remark if
/// decimals show figures as 0 that are not 0.
[[nodiscard]] std::string TextOf(const ComparisonReport& report, const ComparisonHeading& heading,
                                 const OutputFormat& output);

/// Writes a remark if figures are below the range of the format.
void RemarkOnUnderflow(const ComparisonReport& report);

/// One JSON document.
[[nodiscard]] std::string JsonOf(const ComparisonReport& report, const ComparisonHeading& heading);

}  // namespace qorvex::apps
