#pragma once

#include <ios>

namespace qorvex::inline QorvexGlobals::detail {

/// Handles the current exception of an operator for streams as those of the standard library do: it
/// sets badbit, and rethrows only if the stream reports badbit by exceptions.
inline void HandleStreamError(std::ios& stream) {
  try {
    stream.setstate(std::ios_base::badbit);
  } catch (const std::ios_base::failure&) {
    // The original exception says more.
  }
  if ((stream.exceptions() & std::ios_base::badbit) != std::ios_base::goodbit) throw;
}

}  // namespace qorvex::inline QorvexGlobals::detail
