// Sums of integers and amounts, compared with plain loops.

#include <cstdint>
#include <limits>

#include "qorvex/vector/QorvexFinVector.h"
#include "qorvex/vector/QorvexVector.h"
#include "support/kernel_lengths.h"
#include "support/random_vectors.h"
#include "support/test.h"

namespace qorvex {
namespace {

// The element as an int64, and its product in the low bits of a type.
template <class T>
std::uint64_t Wide(T x) {
  return static_cast<std::uint64_t>(static_cast<std::int64_t>(x));
}
template <class Width, class T>
std::uint64_t Product(T x, T y) {
  return Wide(static_cast<Width>(Wide(x) * Wide(y)));
}

template <class T>
using SquareWidth = std::conditional_t<sizeof(T) == 8, std::int32_t,
                                       std::conditional_t<sizeof(T) == 1, std::int16_t, T>>;

template <class T, class Term>
std::int64_t Sum(VectorView<T> a, VectorView<T> b, Term term) {
  std::uint64_t sum = 0;
  for (std::size_t i = 0; i < a.size(); ++i) sum += term(a[i], b[i]);
  return static_cast<std::int64_t>(sum);
}

// Integers of the whole range, or mostly the largest or the smallest.
template <class T>
TQorVector<T> Integers(testing::Engine& engine, std::size_t n, int kind) {
  using Limits = std::numeric_limits<T>;
  TQorVector<T> vector = testing::RandomVector<T>(engine, n);
  for (T& x : vector) {
    if (kind != 0 && engine() % 16 != 0) x = kind == 1 ? Limits::max() : Limits::min();
  }
  return vector;
}

template <class T>
class IntegerSums : public ::testing::Test {};
using IntegerTypes = ::testing::Types<std::int64_t, std::uint32_t, std::int32_t, std::uint16_t,
                                      std::int16_t, std::uint8_t, std::int8_t>;
TYPED_TEST_SUITE(IntegerSums, IntegerTypes);

TYPED_TEST(IntegerSums, EqualThoseOfALoop) {
  using T = TypeParam;
  testing::Engine engine(1);
  for (const std::size_t n : testing::KernelLengths()) {
    for (int kind = 0; kind < 3; ++kind) {
      const TQorVector<T> first = Integers<T>(engine, n + 1, kind);
      const TQorVector<T> second = Integers<T>(engine, n, 0);
      const VectorView<T> a = std::span<const T>(first).subspan(1);  // not aligned
      const VectorView<T> b = second;
      ASSERT_EQ(SumVector(a), Sum(a, a, [](T x, T) { return Wide(x); })) << n;
      ASSERT_EQ(SumSqVector(a), Sum(a, a, [](T x, T y) { return Product<SquareWidth<T>>(x, y); }))
          << n;
      if constexpr (sizeof(T) >= 4) {
        ASSERT_EQ(DotProdVectors(a, b), Sum(a, b, [](T x, T y) { return Product<T>(x, y); })) << n;
        const auto squared_difference = [](T x, T y) {
          return Product<std::int32_t>(Wide(x) - Wide(y), Wide(x) - Wide(y));
        };
        ASSERT_EQ(SumSqDiffVectors(a, b), Sum(a, b, squared_difference)) << n;
      }
    }
  }
}

template <class T>
class AmountSums : public ::testing::Test {};
TYPED_TEST_SUITE(AmountSums, CurrencyTypes);

TYPED_TEST(AmountSums, EqualThoseOfALoop) {
  using T = TypeParam;
  testing::Engine engine(2);
  for (const std::size_t n : testing::KernelLengths()) {
    const auto amounts = testing::RandomVector<T>(engine, n);
    T sum;
    for (const T x : amounts) sum += x;
    ASSERT_EQ(SumVector(amounts), sum) << n;
  }
}

}  // namespace
}  // namespace qorvex
