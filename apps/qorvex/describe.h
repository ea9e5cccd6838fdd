#pragma once

#include <CLI/CLI.hpp>

namespace qorvex::apps {

/// Adds the command `describe`: the descriptive statistics of columns of numbers.
void AddDescribe(CLI::App& program);

}  // namespace qorvex::apps
