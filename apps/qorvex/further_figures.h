#pragma once

/// @file
/// The figures of `describe` that are not in its usual report.

#include <vector>

#include "apps/common/column_numbers.h"
#include "apps/qorvex/describe_options.h"
#include "apps/qorvex/figures.h"

namespace qorvex::apps {

/// Those that the options choose, of numbers in ascending order if one of them needs it. Without
/// numbers they do not exist.
[[nodiscard]] std::vector<Figure> FurtherFigures(const ColumnNumbers& numbers,
                                                 const DescribeOptions& options);

}  // namespace qorvex::apps
