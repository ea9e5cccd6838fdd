#include "qorvex/base/random.h"

#include "support/test.h"

namespace qorvex {

// The standard fixes the 10000th value of the generator under its default seed (ISO C++,
// [rand.predef]).
TEST(Random, IsTheStandardStreamScaledToTheUnitInterval) {
  SetRandSeed(5489);
  Extended smallest = 1;
  Extended largest = 0;
  Extended value = 0;
  for (int i = 0; i < 10'000; ++i) {
    value = Random();
    smallest = std::min(smallest, value);
    largest = std::max(largest, value);
  }
  EXPECT_EQ(value, 9981545732273789042.0L * 0x1p-64L);
  EXPECT_TRUE(smallest >= 0 && smallest < 0.001L && largest > 0.999L && largest < 1);

  SetRandSeed(1);
  const Extended first = Random();
  Randomize();
  EXPECT_NE(Random(), first);
  SetRandSeed(1);
  EXPECT_EQ(Random(), first);
}

}  // namespace qorvex
