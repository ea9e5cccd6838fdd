// The routines that use kernels give the bits of plain loops.

#include <cmath>
#include <limits>

#include "matrix/plain_reduction.h"
#include "qorvex/matrix/product.h"
#include "qorvex/vector/building.h"
#include "support/hard_vectors.h"
#include "support/kept_tolerance.h"
#include "support/test.h"

namespace qorvex {
namespace {

using testing::Engine;
using testing::Hard;
using testing::HardVector;

template <class T>
TQorMatrix<T> HardMatrix(Engine& engine, std::size_t rows, std::size_t cols, Hard kind) {
  auto matrix = TQorMatrix<T>::WithLength(rows);
  for (auto& row : matrix) row = HardVector<T>(engine, cols, kind);
  return matrix;
}

// Gives the rows different scales, and so_many percent of the elements the value zero with either
// sign.
template <class T>
void MakeSparse(Engine& engine, TQorMatrix<T>& matrix, unsigned so_many) {
  for (auto& row : matrix) {
    const T scale = std::ldexp(T(1), static_cast<int>(engine() % 120) - 60);
    for (T& x : row) x = engine() % 100 < so_many ? std::copysign(T(0), x) : x * scale;
  }
}

template <class T>
void ExpectPlainProduct(const TQorMatrix<T>& a, const TQorMatrix<T>& b) {
  const auto product = MultiplyMatrices(a, b);
  for (std::size_t i = 0; i < a.size(); ++i) {
    for (std::size_t j = 0; j < b[0].size(); ++j) {
      T sum = 0;
      for (std::size_t k = 0; k < b.size(); ++k) {
        const Extended term = static_cast<Extended>(a[i][k]) * static_cast<Extended>(b[k][j]);
        sum = static_cast<T>(static_cast<Extended>(sum) + term);
      }
      ASSERT_TRUE(testing::SameBits(product[i][j], sum)) << i << ", " << j;
    }
  }
}

// Calls check(order, kind) for every order up to 40 and 71.
template <class Check>
void ForEachOrderAndKind(Check check) {
  for (const std::size_t extra : {0U, 31U}) {
    for (std::size_t order = extra == 0 ? 1 : 40 + extra; order <= 40 + extra; ++order) {
      testing::ForEachHardKind([&](Hard kind) {
        SCOPED_TRACE(::testing::Message() << order << ", kind " << static_cast<int>(kind));
        check(order, kind);
      });
      if (::testing::Test::HasFailure()) return;
    }
  }
}

template <class T>
class PlainResults : public ::testing::Test {};
TYPED_TEST_SUITE(PlainResults, FloatTypes, );

TYPED_TEST(PlainResults, OfProducts) {
  using T = TypeParam;
  Engine engine(4);
  ForEachOrderAndKind([&](std::size_t order, Hard kind) {
    const std::size_t rows = 1 + engine() % order;
    const std::size_t cols = 1 + engine() % order;
    auto a = HardMatrix<T>(engine, rows, order, kind);
    const auto b = HardMatrix<T>(engine, order, cols, kind);
    ExpectPlainProduct(a, b);
    MakeSparse(engine, a, 60);
    ExpectPlainProduct(a, b);
  });
}

TYPED_TEST(PlainResults, OfReductions) {
  using T = TypeParam;
  const testing::KeptTolerance kept;
  Engine engine(3);
  ForEachOrderAndKind([&](std::size_t order, Hard kind) {
    // With a negative tolerance multiples by zero are added, too.
    constexpr Extended tolerances[] = {1e-15L, 1e-15L, 0, -1};
    QorTolerance = tolerances[engine() % 4];
    auto matrix = HardMatrix<T>(engine, order, order, kind);
    testing::ExpectWhatPlainLoopsGive(matrix);
    // Rows that are exchanged, factors that are skipped, and singular matrices.
    MakeSparse(engine, matrix, 35);
    if (order % 4 == 0) matrix[order - 1] = CopyVector(matrix[0]);
    testing::ExpectWhatPlainLoopsGive(matrix);
    MakeSparse(engine, matrix, 90);
    for (std::size_t i = 0; i < order; ++i) matrix[i][(i * 7 + order) % order] = T(1) / 3;
    testing::ExpectWhatPlainLoopsGive(matrix);
    testing::ExpectWhatPlainLoopsGive(HardMatrix<T>(engine, order, 1 + engine() % 40, kind));
  });
}

}  // namespace
}  // namespace qorvex
