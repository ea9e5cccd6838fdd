#pragma once

#include <cstdlib>
#include <string>

namespace qorvex::testing {

/// The integer in an environment variable, which the slow run sets, or the default.
inline int FromEnvironment(const char* variable, int by_default) {
  const char* const text = std::getenv(variable);
  return text == nullptr ? by_default : std::stoi(text);
}

}  // namespace qorvex::testing
