#pragma once

#include <cstdint>

#include "base/hard_case_list.h"

namespace qorvex::benchmarks {

/// How far a search went.
struct SearchExtent {
  Extended next = 0;     ///< where the next search would start
  double arguments = 0;  ///< how many were covered
};

/// Searches all arguments x from the start upwards for the given time, for results within 2^-40
/// units of a number or of the midpoint of two, and adds them to the list. y is fixed.
///
/// Blocks of 2^12 pieces have a polynomial of degree 4 through 5 exact values: results in half
/// units of the last place, as a function of k for x + k units. Over a piece it is c0 + c1 k + c2
/// k^2, with k counted from the middle; its hits are those k for which c0 + c1 k modulo 1 lies in a
/// window that allows for c2 k^2. Arguments at the ends of binades are left out.
SearchExtent SearchFrom(const testing::ElementaryFunction& function, testing::Arguments start,
                        double seconds, HardCaseList& list);

}  // namespace qorvex::benchmarks
