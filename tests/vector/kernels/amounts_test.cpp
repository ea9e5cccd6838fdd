// Transforms and conversions of amounts, compared with those of single amounts.

#include <algorithm>
#include <cstdint>
#include <limits>
#include <utility>

#include "qorvex/base/rounding.h"
#include "qorvex/vector/QorvexFinVector.h"
#include "support/kernel_lengths.h"
#include "support/random_vectors.h"
#include "support/test.h"

namespace qorvex {
namespace {

// In this order of operations, each rounded to 64 bits.
template <class T>
T Transformed(T x, Extended slope, Extended intercept) {
  if constexpr (std::same_as<T, Currency>) {
    const Extended value = slope * static_cast<Extended>(x.stored());
    return T(RoundToInteger<std::int64_t>(value + intercept * 10'000));
  } else if constexpr (std::same_as<T, QorCurrency>) {
    return Float2QorCurrency(slope * Currency2Float(x) + intercept);
  } else {
    return Float2QorLongCurrency(slope * Currency2Float(x) + intercept);
  }
}

// Stored integers of any number of bits, of which some end in digits that make ties of conversions.
template <class T>
TQorVector<T> Amounts(testing::Engine& engine, std::size_t n) {
  using Stored = typename T::StoredType;
  auto amounts = testing::RandomVector<T>(engine, n);
  for (T& x : amounts) {
    const std::int64_t stored = x.stored() >> engine() % (8 * sizeof(Stored));
    const auto units = static_cast<std::int64_t>(engine() % 5) * 5'000;
    x = T(static_cast<Stored>(engine() % 2 == 0 ? stored : stored / 10'000 * 10'000 + units / 100));
    if (engine() % 4 == 0) x = T(static_cast<Stored>(stored / 10'000 * 10'000 + units));
  }
  return amounts;
}

template <class T>
class AmountKernels : public ::testing::Test {};
TYPED_TEST_SUITE(AmountKernels, CurrencyTypes);

TYPED_TEST(AmountKernels, TransformEveryAmountAsASingleOne) {
  using T = TypeParam;
  const std::pair<Extended, Extended> lines[] = {{1.19L, 0.5L},
                                                 {1.5L, 0},
                                                 {0.5L, 0.005L},
                                                 {-0.05L, 1e-6L},
                                                 {1 / 3.0L, -7},
                                                 {1, 0},
                                                 {0, 0.015L},
                                                 {1, 1e13L},
                                                 {1e9L, 0},
                                                 {1e-9L, 2e7L},
                                                 {0x1p-16000L, 0.005L},
                                                 {1e400L, 0},
                                                 {kInfinity, 0},
                                                 {1, -kInfinity},
                                                 {0, kNaN},
                                                 {0x1.0000000000001p0L, 0.005L},
                                                 {0.1L + 0.2L, 0},
                                                 {2, -1e4L},
                                                 {0.5L + 0x1p-64L, 0.5L}};
  testing::Engine engine(4);
  for (const std::size_t n : testing::KernelLengths()) {
    const auto amounts = Amounts<T>(engine, n);
    for (const auto& line : lines) {
      if (n > 300 && &line > &lines[5]) continue;
      auto transformed = CopyVector(amounts);
      LinearTransformVector(transformed, line.first, line.second);
      for (std::size_t i = 0; i < n; ++i) {
        ASSERT_EQ(transformed[i], Transformed(amounts[i], line.first, line.second))
            << amounts[i].stored() << " of " << n << ", slope " << line.first;
      }
    }
  }
}

// The amounts beside ties in units of the target, the limits of the target and those of the source.
template <class To, class From>
TQorVector<From> HardAmounts(testing::Engine& engine, std::size_t n) {
  using Stored = typename From::StoredType;
  auto amounts = Amounts<From>(engine, n);
  constexpr std::int64_t kRatio = std::max<std::int64_t>(1, From::kScale / To::kScale);
  for (From& x : amounts) {
    if (engine() % 2 == 0) continue;
    const std::int64_t limit = engine() % 2 == 0 ? std::numeric_limits<std::int32_t>::min()
                                                 : std::numeric_limits<std::int32_t>::max();
    const auto beside = static_cast<std::int64_t>(engine() % 3) - 1;
    const std::int64_t half = static_cast<std::int64_t>(engine() % 5) * (kRatio / 2);
    x = From(static_cast<Stored>(limit * kRatio + half + beside));
  }
  amounts[0] = std::numeric_limits<From>::min();
  amounts[n / 2] = std::numeric_limits<From>::max();
  return amounts;
}

template <class To, class From>
void ExpectConversionOfEach(TQorVector<To> (*convert)(VectorView<From>), To (*convert_one)(From)) {
  testing::Engine engine(5);
  for (const std::size_t n : testing::KernelLengths()) {
    const auto amounts = HardAmounts<To, From>(engine, n);
    const TQorVector<To> converted = convert(amounts);
    ASSERT_EQ(converted.size(), n);
    for (std::size_t i = 0; i < n; ++i) {
      ASSERT_EQ(converted[i], convert_one(amounts[i])) << amounts[i].stored() << " of " << n;
    }
  }
}

TEST(AmountKernels, ConvertEveryAmountAsASingleOne) {
  ExpectConversionOfEach<QorCurrency, Currency>(Vector2QorCurrVector, Currency2QorCurrency);
  ExpectConversionOfEach<QorCurrency, QorLongCurrency>(Vector2QorCurrVector,
                                                       QorLongCurrency2QorCurrency);
  ExpectConversionOfEach<Currency, QorLongCurrency>(Vector2QorCurrencyVector,
                                                    QorLongCurrency2Currency);
}

}  // namespace
}  // namespace qorvex
