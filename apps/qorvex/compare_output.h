#pragma once

/// @file
/// The two forms of the output of `compare`.

#include <string>

#include "apps/qorvex/compare_report.h"
#include "apps/qorvex/parameters.h"

namespace qorvex::apps {

/// What the report is on.
struct ComparisonHeading {
  const ComparedColumn& first;
  const ComparedColumn& second;
  bool paired = false;
  WrittenNumber confidence = {};
};

/// Tables of figures and tests, and box plots.
[[nodiscard]] std::string TextOf(const ComparisonReport& report, const ComparisonHeading& heading,
                                 int decimals);

/// Writes a remark if figures are below the range of the format.
void RemarkOnUnderflow(const ComparisonReport& report);

/// Writes a remark if figures are too small for the decimals.
void RemarkOnHiddenFigures(const ComparisonReport& report, int decimals);

/// One JSON document.
[[nodiscard]] std::string JsonOf(const ComparisonReport& report, const ComparisonHeading& heading);

}  // namespace qorvex::apps
