#pragma once

#include <CLI/CLI.hpp>

namespace qorvex::apps {

/// Adds the command `matrix`, whose commands compute with matrices that are read from files.
void AddMatrix(CLI::App& program);

}  // namespace qorvex::apps
