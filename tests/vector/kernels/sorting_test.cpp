// Sorting at every level of instructions, compared with the standard library's.

#include "qorvex/vector/sorting.h"

#include <array>
#include <functional>
#include <numeric>

#include "qorvex/vector/building.h"
#include "qorvex/vector/detail/key_sort.h"
#include "qorvex/vector/detail/sorted_indices.h"
#include "support/hard_vectors.h"
#include "support/random_vectors.h"
#include "support/test.h"

namespace qorvex {

using testing::Engine;

template <class T>
class SortingKernels : public ::testing::Test {};
using SortedTypes = ::testing::Types<Extended, double, float, std::int64_t, std::uint32_t,
                                     std::int32_t, std::uint16_t, std::int16_t, std::uint8_t,
                                     std::int8_t, Currency, QorCurrency, QorLongCurrency>;
TYPED_TEST_SUITE(SortingKernels, SortedTypes);

// Whole numbers in orders and frequencies that are hard for a quicksort or a radix sort.
struct Input {
  const char* name;
  std::function<std::int64_t(Engine& engine, std::int64_t i, std::int64_t n)> element;
};
const auto kInputs = std::to_array<Input>({
    {"random", [](Engine& e, auto, auto) { return static_cast<std::int64_t>(e()); }},
    {"both signs",
     [](Engine& e, auto, auto) { return static_cast<std::int64_t>(e() % 1000) - 500; }},
    {"cents", [](Engine& e, auto,
                 auto) { return static_cast<std::int64_t>(e() % 100'000'000) - 20'000'000; }},
    {"outliers",
     [](Engine& e, auto i, auto n) {
       return i == n / 2   ? INT64_MIN
              : i == n / 3 ? INT64_MAX
                           : static_cast<std::int64_t>(e() % 5000);
     }},
    {"three keys", [](Engine& e, auto, auto) { return static_cast<std::int64_t>(e() % 3); }},
    {"four keys, then a fifth",
     [](Engine& e, auto i, auto n) {
       return i < n / 2 ? static_cast<std::int64_t>(e() % 4) - 3 : 17 * (i % 2);
     }},
    {"extremes", [](Engine& e, auto, auto) { return e() % 2 == 0 ? INT64_MIN : INT64_MAX; }},
    {"mostly the largest",
     [](Engine& e, auto, auto) { return std::int64_t{20} - std::countr_zero(e() | 1U << 20); }},
    {"equal", [](Engine&, auto, auto) { return std::int64_t{7}; }},
    {"rising", [](Engine&, auto i, auto) { return i; }},
    {"falling", [](Engine&, auto i, auto) { return -i / 2; }},
    {"rising but the last", [](Engine&, auto i, auto n) { return i == n - 1 ? 0 : i; }},
    {"nearly rising",
     [](Engine& e, auto i, auto) {
       return e() % 50 == 0 ? static_cast<std::int64_t>(e() % 1000) : i;
     }},
    {"organ pipe", [](Engine&, auto i, auto n) { return std::min(i, n - i); }},
    {"sawtooth", [](Engine&, auto i, auto) { return i % 37; }},
    {"two runs", [](Engine&, auto i, auto n) { return i < n / 2 ? i : i - n / 2; }},
    // Musser 1997: a quicksort on the median of three divides off two elements at a time.
    {"median of three",
     [](Engine&, auto i,
        auto n) { return i >= n / 2   ? 2 * (i - n / 2) + 2
                         : i % 2 == 0 ? i + 1
                                      : n / 2 + i; }},
});

template <class T>
bool IsBefore(const T& a, const T& b) {
  if constexpr (FloatElement<T>) {
    if (a == b) return std::signbit(a) && !std::signbit(b);
  }
  return a < b;
}

// The numbers are sorted, and NaN follows them.
template <class T>
void ExpectSorts(const TQorVector<T>& vector, const char* name) {
  std::vector<T> expected(vector.begin(), vector.end());
  const auto numbers =
      std::partition(expected.begin(), expected.end(), [](const T& x) { return x == x; });
  std::sort(expected.begin(), numbers, IsBefore<T>);
  const auto count = numbers - expected.begin();
  for (const bool ascending : {true, false}) {
    const TQorVector<T> sorted = SortedVector(vector, ascending);
    const bool same = std::equal(
        expected.begin(), numbers, sorted.begin(),
        [](const T& a, const T& b) { return !IsBefore(a, b) && !IsBefore(b, a) && a == b; });
    ASSERT_TRUE(same) << name << ", " << vector.size() << " elements";
    ASSERT_TRUE(std::none_of(sorted.begin() + count, sorted.end(), [](const T& x) {
      return x == x;
    })) << name;
    std::reverse(expected.begin(), numbers);
  }
}

// Elements with equal keys stay in the order of their indices.
template <class T>
void ExpectSortsIndices(const TQorVector<T>& vector, const char* name) {
  const auto before = [&](std::size_t i, std::size_t j) {
    if (vector[i] != vector[i] || vector[j] != vector[j])
      return vector[i] == vector[i] && vector[j] != vector[j];
    return IsBefore(vector[i], vector[j]);
  };
  std::vector<std::size_t> expected(vector.size());
  std::iota(expected.begin(), expected.end(), std::size_t{0});
  std::stable_sort(expected.begin(), expected.end(), before);
  const QorvexVector::detail::SortedIndices<T> sorted(
      vector.size(), true, [&](std::size_t i) -> const T& { return vector[i]; });
  for (std::size_t i = 0; i < vector.size(); ++i) ASSERT_EQ(sorted.Index(i), expected[i]) << name;
}

TYPED_TEST(SortingKernels, SortElementsAndIndicesOfEveryLength) {
  Engine engine(44);
  std::vector<std::int64_t> lengths(301);
  std::iota(lengths.begin(), lengths.end(), 0);
  for (const std::int64_t n : {399, 400, 1025, 2048, 10'000, 40'001}) lengths.push_back(n);
  for (const Input& input : kInputs) {
    for (const std::int64_t n : lengths) {
      auto vector = TQorVector<TypeParam>::WithLength(static_cast<std::size_t>(n));
      for (std::int64_t i = 0; i < n; ++i) {
        const std::int64_t whole = input.element(engine, i, n);
        TypeParam& x = vector[static_cast<std::size_t>(i)];
        if constexpr (CurrencyElement<TypeParam>) {
          x = TypeParam(static_cast<typename TypeParam::StoredType>(whole));
        } else if constexpr (FloatElement<TypeParam>) {
          x = static_cast<TypeParam>(whole) / 100;
        } else {
          x = static_cast<TypeParam>(whole);
        }
      }
      ASSERT_NO_FATAL_FAILURE(ExpectSorts(vector, input.name));
      if (n % 7 == 0 || n > 300) {
        ASSERT_NO_FATAL_FAILURE(ExpectSortsIndices(vector, input.name));
      }
    }
  }
}

template <class T>
class SortingFloatKernels : public ::testing::Test {};
TYPED_TEST_SUITE(SortingFloatKernels, FloatTypes);

TYPED_TEST(SortingFloatKernels, SortHardNumbersAndNaN) {
  Engine engine(45);
  testing::ForEachHardKind([&](testing::Hard kind) {
    for (const std::size_t n : {2U, 3U, 32U, 33U, 64U, 257U, 300U, 5000U, 30'000U}) {
      auto vector = testing::HardVector<TypeParam>(engine, n, kind);
      ExpectSorts(vector, "hard");
      ExpectSortsIndices(vector, "hard");
      vector[engine() % n] = -kNaN;
      vector[engine() % n] = kNaN;
      ExpectSorts(vector, "with NaN");
      ExpectSortsIndices(vector, "with NaN");
    }
  });
}

template <class Key>
void ExpectSortsWithDivisions(Engine& engine, std::size_t n, int most_divisions) {
  using namespace QorvexVector::detail;
  std::vector<Key> keys(n);
  for (Key& key : keys) key = static_cast<Key>(engine());
  std::vector<Key> expected = keys;
  std::sort(expected.begin(), expected.end());
  const auto sort = BestInstructions() == Instructions::kAvx512 ? VectorQuickSortAvx512<Key>
                                                                : VectorQuickSortAvx2<Key>;
  sort(keys.data(), n, KeyForm::kInteger, most_divisions);
  EXPECT_EQ(keys, expected) << most_divisions << " divisions";
}

// A heap sort takes over where no division is left.
TEST(SortingVectorKernels, SortWithFewDivisions) {
  if (BestInstructions() == Instructions::kBaseline) GTEST_SKIP();
  Engine engine(47);
  for (const std::size_t n : {50U, 300U, 10'000U}) {
    for (const int most_divisions : {0, 1, 3, 5}) {
      ExpectSortsWithDivisions<std::int32_t>(engine, n, most_divisions);
      ExpectSortsWithDivisions<std::int64_t>(engine, n, most_divisions);
    }
  }
}

// Differences in the last bit, and huge numbers that hide them.
TEST(SortingExtendedKernels, SortByTheLastBits) {
  Engine engine(46);
  for (const std::size_t n : {100U, 3000U, 70'000U}) {
    auto vector = TQorFloatVector::WithLength(n);
    for (Extended& x : vector) x = 1 + static_cast<Extended>(engine() % (4 * n)) * 0x1p-63L;
    vector[n / 2] = std::numeric_limits<Extended>::max();
    vector[n / 3] = std::numeric_limits<Extended>::lowest();
    ExpectSorts(vector, "last bits");
    ExpectSortsIndices(vector, "last bits");
  }
}

}  // namespace qorvex
