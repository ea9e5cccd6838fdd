#pragma once

#include <CLI/App.hpp>

namespace qorvex::cli {

/// Adds the command `describe`: the descriptive statistics of columns of numbers.
void AddDescribe(CLI::App& program);

}  // namespace qorvex::cli
