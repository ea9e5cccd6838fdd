#pragma once

#include <gtest/gtest.h>
#include <new>

namespace qorvex::testing {

/// So many more allocations by operator new succeed, the next one fails, and all after it succeed
/// again; none fails while it is negative. Programs that link failing_allocation.cpp.
extern int allocations_left;

/// Calls work with its first allocation failing, then with its second, and so on until none fails.
/// Each failure must raise std::bad_alloc and leave unchanged() true. Expects at least one.
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
