#pragma once

/// @file
/// Reports on tests of hypotheses as text and as JSON.

#include <string>
#include <vector>

#include "apps/common/test_report.h"

namespace qorvex::apps {

struct TestArguments;

/// Writes remarks if figures of the reports are too small for the format or for the decimals.
void RemarkOnSmallFigures(const std::vector<TestReport>& reports, const TestArguments& arguments);

/// The reports in text, separated by blank lines, or in CSV.
[[nodiscard]] std::string TextOf(const std::vector<TestReport>& reports,
                                 const TestArguments& arguments);

/// One JSON document. The name is that of the command.
[[nodiscard]] std::string JsonOf(const std::vector<TestReport>& reports, const std::string& name,
                                 const TestArguments& arguments);

}  // namespace qorvex::apps
