// Conversions and linear transformations of the short currency against exact integer arithmetic:
// every 4096th block of amounts in the fast tests, every 16th in the slow ones. All 2^32 amounts
// take two minutes, with QORVEX_EVERY_NTH_BLOCK=1 in the environment.

#include <cstdint>
#include <limits>

#include "qorvex/vector/QorvexFinVector.h"
#include "support/environment.h"
#include "support/test.h"

namespace qorvex {
namespace {

constexpr std::int64_t kSmallest = std::numeric_limits<std::int32_t>::min();
constexpr std::int64_t kLargest = std::numeric_limits<std::int32_t>::max();
constexpr std::int64_t kBlock = 1 << 12;

QorCurrency AmountOrSmallest(std::int64_t stored) {
  const bool fits = stored >= kSmallest && stored <= kLargest;
  return QorCurrency(static_cast<std::int32_t>(fits ? stored : kSmallest));
}

// Expects converted[i] to be expected(the stored integer of amount i).
template <class T, class Expected>
void ExpectEach(const TQorCurrVector& amounts, const TQorVector<T>& converted, Expected expected) {
  for (std::size_t i = 0; i < amounts.size(); ++i) {
    const std::int64_t stored = amounts[i].stored();
    // Far quicker than an expectation for each.
    if (converted[i] == expected(stored)) continue;
    FAIL() << stored << " became " << converted[i];
  }
}

void CheckBlock(std::int64_t first) {
  auto amounts = TQorCurrVector::ForOverwrite(kBlock);
  for (std::int64_t i = 0; i < kBlock; ++i)
    amounts[static_cast<std::size_t>(i)] = QorCurrency(static_cast<std::int32_t>(first + i));

  TQorCurrencyVector longer = Vector2QorCurrencyVector(amounts);
  const TQorLongCurrVector longest = Vector2QorLongCurrVector(amounts);
  ExpectEach(amounts, longer, [](std::int64_t stored) { return Currency(100 * stored); });
  ExpectEach(amounts, longest,
             [](std::int64_t stored) { return QorLongCurrency(10'000 * stored); });
  EXPECT_EQ(Vector2QorCurrVector(longer), amounts);
  EXPECT_EQ(Vector2QorCurrVector(longest), amounts);
  EXPECT_EQ(Vector2QorCurrVector(Vector2FloatVector(amounts)), amounts);

  // Half a cent more: a tie, which the even neighbour gets.
  for (Currency& x : longer) x += Currency(50);
  ExpectEach(amounts, Vector2QorCurrVector(longer),
             [](std::int64_t stored) { return AmountOrSmallest(stored + (stored & 1)); });

  TQorCurrVector transformed = CopyVector(amounts);
  LinearTransformVector(transformed, 3, -7.25L);
  ExpectEach(amounts, transformed,
             [](std::int64_t stored) { return AmountOrSmallest(3 * stored - 725); });
}

// The blocks are dealt out to a number of tests that run side by side.
class ShortCurrency : public ::testing::TestWithParam<int> {};

TEST_P(ShortCurrency, ConvertsAndTransformsExactly) {
  const std::int64_t every = testing::FromEnvironment("QORVEX_EVERY_NTH_BLOCK", 4096);
  for (std::int64_t first = kSmallest + GetParam() * kBlock; first <= kLargest;
       first += 4 * every * kBlock) {
    CheckBlock(first);
    if (HasFatalFailure()) return;
  }
  CheckBlock(kLargest + 1 - kBlock);
}

INSTANTIATE_TEST_SUITE_P(Blocks, ShortCurrency, ::testing::Range(0, 4));

}  // namespace
}  // namespace qorvex
