// The mode and the most frequent values, against a plain scan of neighbours.

#include "qorvex/base/comparisons.h"
#include "qorvex/stats/order_statistics.h"
#include "qorvex/vector/sorting.h"
#include "support/hard_vectors.h"
#include "support/kept_tolerance.h"
#include "support/test.h"

namespace qorvex {

using testing::Engine;
using testing::SameBits;

void ExpectResultsOfPlainScan(const TQorFloatVector& v) {
  bool unique = v.size() == 1;
  Extended mode = unique ? v[0] : -1.1E4932L;
  TQorFloatVector most_frequent(v.begin(), unique ? v.end() : v.begin());
  std::size_t longest = 1;
  for (std::size_t first = 0, end = 1; first < v.size(); first = end++) {
    while (end < v.size() && SameFloat(v[end], v[end - 1])) ++end;
    const std::size_t length = end - first;
    if (length == 1 || length < longest) continue;
    unique = length > longest;
    if (unique) {
      mode = v[end - 1];
      most_frequent.clear();
    }
    most_frequent.Append(length == v.size() ? v[0] : v[end - 1]);
    longest = length;
  }
  Extended found = 0;
  ASSERT_EQ(GetMode(v, found), unique) << v.size();
  ASSERT_TRUE(SameBits(found, mode)) << v.size();
  ASSERT_TRUE(SameBits(GetMostFrequent(v), most_frequent)) << v.size();
}

// Calls check(n) for every length up to 300 and one of many words.
template <class Check>
void ForEachLength(Check check) {
  for (std::size_t n = 1; n <= 300; ++n) ASSERT_NO_FATAL_FAILURE(check(n));
  ASSERT_NO_FATAL_FAILURE(check(20'011));
}

TEST(Runs, AreThoseOfAPlainScanInHardData) {
  Engine engine(101);
  testing::ForEachHardKind([&](testing::Hard kind) {
    ForEachLength([&](std::size_t n) {
      auto v = testing::HardVector<Extended>(engine, n, kind);
      ExpectResultsOfPlainScan(v);
      QSortVector(v, n % 2 == 0);
      ExpectResultsOfPlainScan(v);
    });
  });
}

// Few values, in runs at the ends and across words: zeros of both signs, both infinities, NaN,
// subnormal numbers.
TEST(Runs, AreThoseOfAPlainScanAmongTies) {
  using Limits = std::numeric_limits<Extended>;
  const TQorFloatVector values{-kInfinity, -2, -Limits::denorm_min(), -0.0L, 0, 1, kInfinity, kNaN};
  Engine engine(102);
  for (const std::size_t variety : {2U, 5U, 8U, 100U}) {
    ForEachLength([&](std::size_t n) {
      auto v = TQorFloatVector::WithLength(n);
      const std::size_t first = engine() % 8;
      for (Extended& x : v) {
        const std::size_t choice = first + engine() % variety;
        x = values[choice % 8] + static_cast<Extended>(choice / 8);
      }
      if (n > 100) std::fill_n(v.begin() + static_cast<std::ptrdiff_t>(engine() % 30), 70, v[0]);
      QSortVector(v, true);
      ExpectResultsOfPlainScan(v);
    });
  }
}

// Ascending values whose mantissas differ by about as much as the tolerance allows, past powers of
// two.
TEST(Runs, AreThoseOfAPlainScanNearTheTolerance) {
  const testing::KeptTolerance kept;
  Engine engine(103);
  for (const Extended tolerance : {1e-15L, 0.0L, 1e-6L, 0.2499L, 0.25L, 0.75L, 2.0L, kNaN}) {
    QorTolerance = tolerance;
    const Extended bound = std::min(0.2L, std::max(0x1p-61L, tolerance));
    ForEachLength([&](std::size_t n) {
      auto v = TQorFloatVector::WithLength(n);
      int exponent = static_cast<int>(engine() % 200) - 160;
      if (n % 4 == 0) exponent = -16'445 - static_cast<int>(engine() % 30);
      std::uint64_t mantissa = std::uint64_t{1} << 63 | engine() >> (1 + engine() % 60);
      for (Extended& x : v) {
        x = std::ldexp(static_cast<Extended>(mantissa), exponent);
        const auto step =
            static_cast<std::uint64_t>(std::ldexp(bound, 63 + static_cast<int>(engine() % 2))) +
            engine() % 5 - 2;
        const std::uint64_t steps[] = {0, 1, step, engine() >> 20};
        const std::uint64_t sum = mantissa + steps[engine() % 4];
        exponent += sum < mantissa;
        mantissa = sum < mantissa ? std::uint64_t{1} << 63 | sum >> 1 : sum;
      }
      if (engine() % 2 == 0) {
        for (Extended& x : v) x = -x;
        std::ranges::reverse(v);
      }
      ExpectResultsOfPlainScan(v);
    });
  }
}

}  // namespace qorvex
