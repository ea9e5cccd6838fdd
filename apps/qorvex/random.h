#pragma once

#include <CLI/CLI.hpp>

namespace qorvex::cli {

/// Adds the command `random`: random variates.
void AddRandom(CLI::App& program);

}  // namespace qorvex::cli
