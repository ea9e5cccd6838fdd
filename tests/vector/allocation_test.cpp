#include "qorvex/vector/allocation.h"

#include <array>
#include <numeric>
#include <random>

#include "qorvex/base/currency_literals.h"
#include "qorvex/vector/transforms.h"
#include "support/amounts.h"
#include "support/test.h"

namespace qorvex {
namespace {

using testing::Int128;

// The method by its definition. All products fit 128 bits.
template <class C>
TQorVector<C> PartsByDefinition(C amount, const std::vector<std::int64_t>& weights) {
  const Int128 sign = amount < C() ? -1 : 1;
  const Int128 total = std::accumulate(weights.begin(), weights.end(), Int128{0});
  Int128 left = sign * amount.stored();
  std::vector<Int128> shares;
  std::vector<std::pair<Int128, std::size_t>> losses;
  for (std::size_t i = 0; i < weights.size(); ++i) {
    const Int128 product = sign * amount.stored() * weights[i];
    shares.push_back(product / total);
    losses.emplace_back(-(product % total), i);
    left -= shares[i];
  }
  std::ranges::sort(losses);
  for (std::size_t i = 0; left > 0; ++i, --left) ++shares[losses[i].second];
  TQorVector<C> parts;
  for (const Int128 share : shares)
    parts.Append(C(static_cast<typename C::StoredType>(sign * share)));
  return parts;
}

// The weights as elements of this type; floating ones times 2^-20.
template <class Weight>
std::vector<Weight> WeightsOf(const std::vector<std::int64_t>& integers) {
  std::vector<Weight> weights;
  for (const std::int64_t weight : integers) {
    if constexpr (FloatElement<Weight>) {
      weights.push_back(std::ldexp(static_cast<Weight>(weight), -20));
    } else {
      weights.push_back(Weight(static_cast<std::int32_t>(weight)));
    }
  }
  return weights;
}

template <class C>
class Allocation : public ::testing::Test {};
TYPED_TEST_SUITE(Allocation, CurrencyTypes);

TYPED_TEST(Allocation, GivesWhatIsLeftToTheLargestRemainders) {
  using C = TypeParam;
  using Stored = typename C::StoredType;
  std::mt19937_64 engine(21);
  std::vector<Stored> amounts{std::numeric_limits<Stored>::min(),
                              std::numeric_limits<Stored>::max(), 0, 1, -1};
  for (int i = 0; i < 240; ++i)
    amounts.push_back(static_cast<Stored>(static_cast<std::int64_t>(engine()) >> i % 64));
  for (const Stored x : amounts) {
    std::vector<std::int64_t> integers(1 + engine() % 20);
    // Small ranges have equal remainders and zeros.
    const std::uint64_t range = engine() % 2 == 0 ? 3 : 128;
    for (std::int64_t& weight : integers) weight = static_cast<std::int64_t>(engine() % range);
    integers[engine() % integers.size()] = 1;
    const TQorVector<C> parts = PartsByDefinition(C(x), integers);
    const auto expect_parts = [&]<class... Weight>(::testing::Types<Weight...>) {
      for (const auto& allocated : {Allocate(C(x), WeightsOf<Weight>(integers))...})
        EXPECT_EQ(allocated, parts) << x;
    };
    expect_parts(AllTypes());
    expect_parts(CurrencyTypes());
  }
}

// The parts were computed from fractions of unlimited integers; the short ones in the head.
TEST(AllocationOfAmounts, ComparesWeightsOfEverySizeExactly) {
  constexpr Extended tiny = 0x1p-16000L;
  const struct {
    std::int64_t amount;
    std::vector<Extended> weights;
    std::vector<std::int64_t> parts;
  } cases[] = {
      {1, {1, 1 + 0x1p-63L}, {0, 1}},
      {1, {tiny, 1, 1}, {0, 1, 0}},
      {3, {1, tiny, 1}, {2, 0, 1}},
      {2, {tiny, 1, -0.0L}, {0, 2, 0}},
      {100, {0, 0x1p200L, 0x1p201L}, {0, 33, 67}},
      {1, {tiny, 2 * tiny}, {0, 1}},
      {100, {1e4932L, 1e4932L, 1e4932L}, {34, 33, 33}},
      {1'000'000'000'000'000'001,
       {0x97b750923ceb3ffdp+6L, 0x5eb561a421636369p+10L, 0xa02f34a6795b929fp+9L,
        0x9b08923d10c67fd9p-28L},
       {51454859628010226, 513929848965183694, 434615291403745524, 3060557}},
      {INT64_MAX,
       {0xd6645fa9e8a8529fp+0L, 0x8d0038ec42650645p-16L, 0xfee2947631162427p+15L,
        0x8a7d43b578633075p+23L},
       {1689978246655, 16959546, 65836496638898862, 9157533850220670744}},
  };
  for (const auto& [amount, weights, parts] : cases) {
    EXPECT_EQ(testing::Stored(Allocate(Currency(amount), weights)), TQorInt64Vector(parts));
    TQorInt64Vector negated(parts);
    LinearTransformVector(negated, -1, 0);
    EXPECT_EQ(testing::Stored(Allocate(-Currency(amount), weights)), negated);
  }
  // The total of these integers takes more than 64 bits.
  const std::array<std::int64_t, 4> largest{INT64_MAX, INT64_MAX, INT64_MAX, INT64_MAX - 1};
  EXPECT_EQ(
      Allocate(0.07_qor_currency, largest),
      (TQorCurrVector{0.02_qor_currency, 0.02_qor_currency, 0.02_qor_currency, 0.01_qor_currency}));
}

TEST(AllocationOfAmounts, RefusesWeightsWithoutProportions) {
  const Currency amount(100);
  EXPECT_MATH_ERROR(Allocate(amount, TQorFloatVector()), rsVectorIsEmpty);
  EXPECT_MATH_ERROR(Allocate(amount, {0, 0}), rsWeightsZero);
  EXPECT_MATH_ERROR(Allocate(amount, {0, -1}), rsInvalidWeight);
  EXPECT_MATH_ERROR(Allocate(amount, {-0.01_qor_currency, 1_qor_currency}), rsInvalidWeight);
  for (const double weight : {-0x1p-1074, std::nan(""), HUGE_VAL})
    EXPECT_MATH_ERROR(Allocate(amount, {0.0, weight}), rsInvalidWeight);
}

}  // namespace
}  // namespace qorvex
