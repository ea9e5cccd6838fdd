#include "qorvex/random/random_stream.h"

#include <random>

#include "support/test.h"

namespace qorvex {

static_assert(std::uniform_random_bit_generator<RandomStream>);

// From a separate program, in unlimited integers: it steps the recurrences, finds the
// characteristic polynomial from 600 bits of a state by the algorithm of Berlekamp and Massey, and
// jumps by powers of x modulo this polynomial, for each index by one.
TEST(RandomStream, AgreesWithAnIndependentProgram) {
  const struct {
    std::uint64_t seed, first, second, thousandth, of_substream_1, of_substream_5,
        of_last_substream, after_long_jump;
  } cases[] = {
      {0, 0x53175d61490b23df, 0x61da6f3dc380d507, 0x376300fa032f6483, 0x2107d23f5380538b,
       0x1c03dd26568ca9ed, 0xf76a5e50084e7620, 0x708919b147f78af3},
      {1879, 0x67888b77f60e622b, 0x5a965bb31c7aa73d, 0x1dd389489fa199b2, 0x012f8ab03f6fadfe,
       0x8d4820b2f2a36fcf, 0xf6f1741162d15421, 0xac21c21598fa78fc},
      {UINT64_MAX, 0x56ccf8ce948e27b2, 0xe68588432e5a5b90, 0x6e67f58f11f35060, 0x8ee9026a76b5ebf2,
       0x76a163695498bb09, 0x9b025d9d57646268, 0x0c9fead2b74f7be8},
  };
  for (const auto& expected : cases) {
    RandomStream stream(expected.seed);
    const RandomStream start = stream;
    EXPECT_EQ(stream(), expected.first);
    EXPECT_NE(stream, start);
    EXPECT_EQ(stream(), expected.second);
    for (int i = 3; i < 1000; ++i) static_cast<void>(stream());
    EXPECT_EQ(stream(), expected.thousandth);

    EXPECT_EQ(start.Substream(0), RandomStream(expected.seed));
    EXPECT_EQ(start.Substream(1)(), expected.of_substream_1);
    EXPECT_EQ(start.Substream(5)(), expected.of_substream_5);
    EXPECT_EQ(start.Substream(UINT64_MAX)(), expected.of_last_substream);
    stream = start;
    stream.LongJump();
    EXPECT_EQ(stream(), expected.after_long_jump);
  }
}

}  // namespace qorvex
