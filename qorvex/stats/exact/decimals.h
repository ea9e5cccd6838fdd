#pragma once

/// @file
/// The limit of decimals that exact samples, pairs and columns of data have in common.

namespace qorvex {

/// The largest number of decimals of scaled integers: 10^-5000 is below every extended number.
inline constexpr int kMaxDecimals = 5000;

}  // namespace qorvex
