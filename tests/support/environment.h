#pragma once

/// @file
/// Parameters of tests that differ in their slow run.

#include <cstdlib>
#include <string>

namespace qorvex::testing {

/// The integer in an environment variable, or the default if the variable is not set.
inline int FromEnvironment(const char* variable, int by_default) {
  const char* const text = std::getenv(variable);
  return text == nullptr ? by_default : std::stoi(text);
}

}  // namespace qorvex::testing
