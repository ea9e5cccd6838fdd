#pragma once

/// @file
/// An example of pairs: the calibration of an ozone monitor.

#include <utility>

namespace qorvex::gallery {

/// Set "Norris" of the Statistical Reference Datasets of the National Institute of Standards and
/// Technology (doi 10.18434/T43G6C): readings of a customer's instrument, and of the standard.
inline constexpr std::pair<long double, long double> kNorris[] = {
    {0.2L, 0.1L},     {337.4L, 338.8L}, {118.2L, 118.1L}, {884.6L, 888.0L}, {10.1L, 9.2L},
    {226.5L, 228.1L}, {666.3L, 668.5L}, {996.3L, 998.5L}, {448.6L, 449.1L}, {777.0L, 778.9L},
    {558.2L, 559.2L}, {0.4L, 0.3L},     {0.6L, 0.1L},     {775.5L, 778.1L}, {666.9L, 668.8L},
    {338.0L, 339.3L}, {447.5L, 448.9L}, {11.6L, 10.8L},   {556.0L, 557.7L}, {228.1L, 228.3L},
    {995.8L, 998.0L}, {887.6L, 888.8L}, {120.2L, 119.6L}, {0.3L, 0.3L},     {0.3L, 0.6L},
    {556.8L, 557.6L}, {339.1L, 339.3L}, {887.2L, 888.0L}, {999.0L, 998.5L}, {779.0L, 778.9L},
    {11.1L, 10.2L},   {118.3L, 117.6L}, {229.2L, 228.9L}, {669.1L, 668.4L}, {448.9L, 449.2L},
    {0.5L, 0.2L}};

}  // namespace qorvex::gallery
