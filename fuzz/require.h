#pragma once

/// @file
/// The check of the fuzzers.

#include <cstdio>
#include <cstdlib>

namespace qorvex {

/// Ends the program with a message unless the condition holds.
inline void Require(bool condition, const char* what) {
  if (condition) return;
  std::fputs(what, stderr);
  std::abort();
}

}  // namespace qorvex
