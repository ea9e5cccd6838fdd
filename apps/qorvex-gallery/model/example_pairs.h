#pragma once

/// @file
/// An example of pairs.

#include <utility>

namespace qorvex::gallery {

/// Years, and thousands of people of 14 years and more in the United States. From J. W. Longley, An
/// appraisal of least squares programs for the electronic computer from the point of view of the
/// user, 1967. The digits that the years share are what such programs lost.
inline constexpr std::pair<int, int> kExamplePairs[] = {
    {1947, 107608}, {1948, 108632}, {1949, 109773}, {1950, 110929}, {1951, 112075}, {1952, 113270},
    {1953, 115094}, {1954, 116219}, {1955, 117388}, {1956, 118734}, {1957, 120445}, {1958, 121950},
    {1959, 123366}, {1960, 125368}, {1961, 127852}, {1962, 130081}};

}  // namespace qorvex::gallery
