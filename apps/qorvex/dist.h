#pragma once

#include <CLI/CLI.hpp>

namespace qorvex::apps {

/// Adds the command `dist`: probabilities, densities and quantiles of distributions.
void AddDist(CLI::App& program);

}  // namespace qorvex::apps
