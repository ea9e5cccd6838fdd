#pragma once

#include <CLI/CLI.hpp>

namespace qorvex::apps {

/// Adds the command `fit`, whose commands fit a line or a parabola to two columns of a table.
void AddFit(CLI::App& program);

}  // namespace qorvex::apps
