#pragma once

#include <CLI/CLI.hpp>

namespace qorvex::apps {

/// Adds the command `random`: random variates.
void AddRandom(CLI::App& program);

}  // namespace qorvex::apps
