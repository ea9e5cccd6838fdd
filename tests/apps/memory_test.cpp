// The memory that the program needs for a million values.

#include <gtest/gtest.h>
#include <sys/resource.h>

#include "apps/shell.h"

namespace qorvex::apps {

// The largest resident size, in bytes, of all child processes so far.
long PeakAfter(const std::string& command) {
  EXPECT_EQ(Shell(command + " | qorvex describe - >/dev/null; echo $?"), "0\n");
  rusage usage{};
  EXPECT_EQ(::getrusage(RUSAGE_CHILDREN, &usage), 0);
  return usage.ru_maxrss * 1024;
}

TEST(Memory, IsSmallForEachValue) {
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
  GTEST_SKIP() << "sanitizers do not return freed memory";
#endif
  const long base = PeakAfter("echo 1,2,3,4,5,6");
  // 8 bytes per integer, and 8 more for one in six: one column at a time is sorted.
  const long six_columns = PeakAfter("seq 200000 | sed 's/.*/&,&,&,&,&,&/'") - base;
  EXPECT_LT(six_columns / 1'200'000, 14);
  const long integers = PeakAfter("seq 1000000 -1 1") - base;
  EXPECT_LT(integers / 1'000'000, 24);
  const long values = PeakAfter("seq 1000000 -1 1 | sed 's/$/e30/'") - base;
  EXPECT_LT(values / 1'000'000, 40);
}

}  // namespace qorvex::apps
