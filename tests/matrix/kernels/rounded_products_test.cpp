#include "qorvex/matrix/detail/rounded_products.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "matrix/plain_reduction.h"
#include "qorvex/matrix/QorvexMatrix.h"
#include "qorvex/vector/building.h"
#include "support/hard_vectors.h"
#include "support/kept_tolerance.h"
#include "support/test.h"

namespace qorvex {
namespace {

using testing::Engine;
using testing::Hard;
using testing::HardVector;
using testing::SameBits;

template <class T>
T PlainSum(T target, T source, T factor) {
  return static_cast<T>(static_cast<Extended>(source) * factor + target);
}

template <class T>
TQorVector<T> PlainSums(const TQorVector<T>& target, const TQorVector<T>& source, T factor) {
  auto sums = CopyVector(target);
  for (std::size_t i = 0; i < sums.size(); ++i) sums[i] = PlainSum(target[i], source[i], factor);
  return sums;
}

template <class T>
void ExpectPlainSums(const TQorVector<T>& target, const TQorVector<T>& source, T factor) {
  auto sums = CopyVector(target);
  QorvexMatrix::detail::AddRoundedProducts(sums.data(), source.data(), sums.size(), factor);
  EXPECT_TRUE(SameBits(sums, PlainSums(target, source, factor)));
}

template <class T>
class RoundedProducts : public ::testing::Test {};
using Types = ::testing::Types<double, float>;
TYPED_TEST_SUITE(RoundedProducts, Types);

TYPED_TEST(RoundedProducts, AreThoseOfThePlainLoopForEveryLength) {
  using T = TypeParam;
  Engine engine(20261122);
  for (std::size_t n = QorvexMatrix::detail::kLeastRoundedProducts; n <= 10'007;
       n += n < 300 ? 1 : 9'707 / 3) {
    testing::ForEachHardKind([&](Hard kind) {
      SCOPED_TRACE(::testing::Message() << n << " elements, kind " << static_cast<int>(kind));
      const auto other = static_cast<Hard>(engine() % (static_cast<unsigned>(Hard::kLast) + 1));
      const auto target = HardVector<T>(engine, n, kind);
      const auto source = HardVector<T>(engine, n, other);
      ExpectPlainSums(target, source, HardVector<T>(engine, 1, kind)[0]);
      ExpectPlainSums(source, target, HardVector<T>(engine, 1, Hard::kSigned)[0]);
      // Sums that cancel or nearly so.
      const T factor = HardVector<T>(engine, 1, Hard::kTies)[0];
      auto opposite = CopyVector(source);
      for (T& x : opposite) x = static_cast<T>(x * -factor * (engine() % 4 == 0 ? 1.5L : 1.0L));
      ExpectPlainSums(opposite, source, factor);
    });
    if (this->HasFailure()) return;
  }
}

// The products are about half the last place of the sum, less or more by up to 2^-104 of it.
TYPED_TEST(RoundedProducts, AreThoseOfThePlainLoopNearMidpoints) {
  using T = TypeParam;
  constexpr T epsilon = std::numeric_limits<T>::epsilon();
  constexpr int digits = std::numeric_limits<T>::digits;
  Engine engine(7);
  // A distance from one with a random number of bits.
  const auto distance = [&] {
    const auto bits = static_cast<int>(engine() % static_cast<unsigned>(digits - 2));
    return std::ldexp(static_cast<T>(engine() >> 40), bits - 24) * epsilon;
  };
  int rounded_differently = 0;
  for (int repetition = 0; repetition < 4'000; ++repetition) {
    const int exponent = static_cast<int>(engine() % 60) - 30;
    const T x = distance();
    const T factor = engine() % 2 == 0 ? 1 - x : (1 + x) / (1 + distance());
    auto target = TQorVector<T>::WithLength(40);
    auto source = CopyVector(target);
    for (std::size_t i = 0; i < target.size(); ++i) {
      const T power = std::ldexp(T(1), exponent - static_cast<int>(engine() % 3));
      const T sum = engine() % 4 == 0 ? 1 : 1 + std::floor(distance() / epsilon) * epsilon;
      target[i] = (engine() % 2 == 0 ? -sum : sum) * power;
      source[i] = (engine() % 2 == 0 ? -1 : 1) * (1 + x) * power * epsilon / 2;
      if (engine() % 8 == 0) target[i] = static_cast<T>(-source[i] * (1 + distance()));
      rounded_differently +=
          std::fma(source[i], factor, target[i]) != PlainSum(target[i], source[i], factor);
    }
    ExpectPlainSums(target, source, factor);
    if (this->HasFailure()) return;
  }
  EXPECT_GT(rounded_differently, 50) << "the data are too easy";
}

TYPED_TEST(RoundedProducts, SpecialValuesAndTheEndsOfTheRange) {
  using T = TypeParam;
  using Limits = std::numeric_limits<T>;
  const T largest = Limits::max();
  const T tiny = Limits::denorm_min();
  const T values[] = {0,
                      1,
                      1 + Limits::epsilon(),
                      T(1) / 3,
                      largest,
                      largest / 2,
                      std::sqrt(largest),
                      Limits::min(),
                      tiny,
                      3 * tiny,
                      Limits::min() - tiny,
                      std::sqrt(Limits::min()),
                      std::sqrt(tiny),
                      Limits::min() / Limits::epsilon(),
                      Limits::infinity(),
                      Limits::quiet_NaN()};
  TQorVector<T> source;
  TQorVector<T> target;
  for (const T x : values) {
    for (const T y : values) {
      for (const T sign : {T(1), T(-1)}) {
        source.Append(x);
        target.Append(sign * y);
      }
    }
  }
  for (const T factor : values) {
    for (const T sign : {T(1), T(-1)}) {
      ExpectPlainSums(target, source, sign * factor);
      auto same = CopyVector(target);
      QorvexMatrix::detail::AddRoundedProducts(same.data(), same.data(), same.size(), factor);
      EXPECT_TRUE(SameBits(same, PlainSums(target, target, factor)));
    }
  }
}

template <class T>
TQorMatrix<T> PlainProduct(const TQorMatrix<T>& a, const TQorMatrix<T>& b) {
  auto product = testing::MatrixOf<T>(a.size(), b[0].size(), [](auto...) { return T(0); });
  for (std::size_t i = 0; i < a.size(); ++i) {
    for (std::size_t k = 0; k < b.size(); ++k) product[i] = PlainSums(product[i], b[k], a[i][k]);
  }
  return product;
}

// Expects the bits of plain loops from the routines that use the kernel.
template <class T>
void ExpectPlainResults(const TQorMatrix<T>& given) {
  const std::size_t order = given.size();
  EXPECT_TRUE(SameBits(MultiplyMatrices(given, given), PlainProduct(given, given)));
  testing::PlainReduction<T> plain{CopyMatrix(given)};
  plain.Eliminate();
  EXPECT_TRUE(SameBits(RowEchelon(given), plain.matrix));
  for (std::size_t i = 0; i < order; ++i) plain.determinant *= plain.matrix[i][i];
  EXPECT_TRUE(SameBits(Determinant(given), plain.determinant));
  auto matrix = CopyMatrix(given);
  TQorMatrix<T> inverse;
  EXPECT_EQ(MatrixInverse(matrix, inverse), plain.Invert());
  EXPECT_TRUE(SameBits(matrix, plain.matrix));
  EXPECT_TRUE(SameBits(inverse, plain.inverse));
}

TYPED_TEST(RoundedProducts, MakeTheResultsOfPlainLoops) {
  using T = TypeParam;
  const testing::KeptTolerance kept;
  Engine engine(3);
  for (std::size_t order = 1; order <= 130; order += order < 40 ? 1 : 45) {
    testing::ForEachHardKind([&](Hard kind) {
      SCOPED_TRACE(::testing::Message()
                   << "order " << order << ", kind " << static_cast<int>(kind));
      QorTolerance = engine() % 2 == 0 ? 1e-15L : 0;
      auto matrix = TQorMatrix<T>::WithLength(order);
      for (auto& row : matrix) row = HardVector<T>(engine, order, kind);
      ExpectPlainResults(matrix);
      // Rows of different scales, a singular matrix, and zeros that make rows exchange.
      for (auto& row : matrix) {
        const T scale = std::ldexp(T(1), static_cast<int>(engine() % 120) - 60);
        for (T& x : row) x = engine() % 3 == 0 ? std::copysign(T(0), x) : x * scale;
      }
      if (order % 4 == 0) matrix[order - 1] = CopyVector(matrix[0]);
      ExpectPlainResults(matrix);
    });
    if (this->HasFailure()) return;
  }
}

}  // namespace
}  // namespace qorvex
