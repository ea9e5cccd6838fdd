#pragma once

#include <cstddef>
#include <gtest/gtest.h>
#include <new>

namespace qorvex::testing {

/// The number of allocations by operator new that succeed before one fails. All allocations after
/// that succeed. If it is negative, none fails. Needs failing_allocation.cpp.
extern int allocations_left;
/// Allocations of more bytes fail.
extern std::size_t largest_allocation;

/// Calls work() repeatedly: first its first allocation fails, then its second, and so on until none
/// fails. Expects at least one failure, and that after each unchanged() is true.
template <class Work, class Unchanged>
void ExpectFailuresChangeNothing(Work work, Unchanged unchanged) {
  for (int allocation = 0;; ++allocation) {
    try {
      allocations_left = allocation;
      work();
      allocations_left = -1;
      EXPECT_GT(allocation, 0);
      return;
    } catch (const std::bad_alloc&) {
      EXPECT_TRUE(unchanged()) << "allocation " << allocation;
    }
  }
}

}  // namespace qorvex::testing
