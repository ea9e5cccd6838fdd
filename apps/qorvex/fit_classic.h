#pragma once

/// @file
/// Lines and parabolas by the classic routines of the unit QorvexPairStats.

#include <string>

#include "apps/qorvex/fit_arguments.h"
#include "apps/qorvex/fit_model.h"

namespace qorvex::apps {

/// The output of `fit --classic`. Throws InputError for pairs that the routines refuse.
[[nodiscard]] std::string ClassicOutput(const FitColumns& columns, const FitArguments& arguments);

}  // namespace qorvex::apps
