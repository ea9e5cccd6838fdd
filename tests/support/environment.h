#pragma once

/// @file
/// How much a test tries, which its slow run sets.

#include <cstdlib>
#include <string>

namespace qorvex::testing {

/// The whole number that a variable of the environment holds, or the usual one without it.
inline int FromEnvironment(const char* variable, int usual) {
  const char* const text = std::getenv(variable);
  return text == nullptr ? usual : std::stoi(text);
}

}  // namespace qorvex::testing
