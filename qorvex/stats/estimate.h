#pragma once

/// @file
/// The choice between sample and population figures.

#include <cstdint>

namespace qorvex {

/// What a figure is of.
enum class Estimate : std::uint8_t {
  kSample,      ///< An estimate for the population that the values are a sample of.
  kPopulation,  ///< The figure of the values themselves.
};

}  // namespace qorvex
