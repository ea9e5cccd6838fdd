#include <algorithm>
#include <cmath>
#include <optional>

#include "matrix/plain_reduction.h"
#include "qorvex/base/special/extended_pair.h"
#include "qorvex/matrix/QorvexMatrix.h"
#include "support/hard_vectors.h"
#include "support/kept_tolerance.h"
#include "support/test.h"

namespace qorvex {
namespace {

using testing::Engine;
using testing::Hard;
using testing::HardVector;
using testing::SameBits;

using Floats = std::vector<Extended>;

// The solution of one right-hand side as plain loops. Neglects nothing, as Solve does at a
// tolerance of zero.
template <class T>
class PlainSystem {
 public:
  explicit PlainSystem(const TQorMatrix<T>& given)
      : given_(ConvertMatrix<Extended>(given)), n_(given.size()) {}

  std::optional<Floats> Solve(const Floats& b) const {
    auto x = Solved(b);
    if (!x) return std::nullopt;
    const Floats correction = *Solved(Residual(b, *x));
    bool finite = true;
    for (std::size_t i = 0; i < n_; ++i) {
      const Extended refined = (*x)[i] + correction[i];
      (*x)[i] = static_cast<T>(std::isfinite(refined) ? refined : (*x)[i]);
      finite &= std::isfinite((*x)[i]);
    }
    return finite ? x : std::nullopt;
  }

 private:
  // The steps of an elimination, performed on b at once.
  std::optional<Floats> Solved(Floats x) const {
    auto m = CopyMatrix(given_);
    for (std::size_t c = 0; c < n_; ++c) {
      std::size_t best = c;
      for (std::size_t r = c; r < n_; ++r) {
        if (std::isnan(m[r][c])) return std::nullopt;
        if (std::fabs(m[r][c]) > std::fabs(m[best][c])) best = r;
      }
      std::swap(m[c], m[best]);
      std::swap(x[c], x[best]);
      const Extended pivot = m[c][c];
      if (pivot == 0 || !std::isfinite(pivot)) return std::nullopt;
      const Extended factor = pivot == 1 ? 1 : 1 / pivot;
      testing::PlainReduction<Extended>::Scale(m[c], c, factor);
      x[c] *= factor;
      for (std::size_t r = c + 1; r < n_; ++r) {
        const Extended multiple = m[r][c] == 0 ? 0 : -std::exchange(m[r][c], 0);
        if (multiple != 0) {
          testing::PlainReduction<Extended>::Add(m[r], m[c], c + 1, multiple);
        }
        x[r] += multiple * x[c];
      }
    }
    for (std::size_t i = n_; i-- > 0;) {
      for (std::size_t j = i + 1; j < n_; ++j) x[i] -= m[i][j] * x[j];
      x[i] /= m[i][i];
    }
    return x;
  }

  static Extended ScaleOf(const auto& values) {
    return std::ranges::any_of(values, [](Extended v) { return std::fabs(v) > 0x1p16300L; })
               ? 0x1p-100L
               : 1;
  }

  Floats Residual(const Floats& b, const Floats& x) const {
    Extended scale = 1;
    for (const auto& row : given_) scale = std::min(scale, ScaleOf(row));
    const Extended x_scale = ScaleOf(x);
    Floats residual;
    for (std::size_t i = 0; i < n_; ++i) {
      Extended sum = b[i] * (scale * x_scale);
      Extended errors = 0;
      for (std::size_t j = 0; j < n_; ++j) {
        const auto product = special::ExactProduct(given_[i][j] * scale, x[j] * -x_scale);
        const auto partial = special::ExactSum(sum, product.hi);
        sum = partial.hi;
        errors += partial.lo + product.lo;
      }
      residual.push_back((sum + errors) * (1 / (scale * x_scale)));
    }
    return residual;
  }

  TQorFloatMatrix given_;
  std::size_t n_;
};

template <class T>
void ExpectPlainSolutions(const TQorMatrix<T>& a, const TQorMatrix<T>& b) {
  const PlainSystem<T> plain(a);
  const std::size_t sides = b[0].size();
  auto expected = CopyMatrix(b);
  bool solvable = true;
  for (std::size_t side = 0; side < sides; ++side) {
    TQorVector<T> column = TQorVector<T>::WithLength(a.size());
    for (std::size_t i = 0; i < a.size(); ++i) column[i] = b[i][side];
    const auto x = plain.Solve(Floats(column.begin(), column.end()));
    const auto single = Solve(a, column);
    ASSERT_EQ(single.has_value(), x.has_value());
    solvable &= x.has_value();
    for (std::size_t i = 0; x && i < a.size(); ++i) {
      expected[i][side] = static_cast<T>((*x)[i]);
      EXPECT_TRUE(SameBits((*single)[i], expected[i][side]));
    }
  }
  const auto all = Solve(a, b);
  ASSERT_EQ(all.has_value(), solvable);
  EXPECT_TRUE(!solvable || SameBits(*all, expected));
}

template <class T>
class RightSides : public ::testing::Test {};
TYPED_TEST_SUITE(RightSides, FloatTypes, );

TYPED_TEST(RightSides, AreSolvedAsOneByOne) {
  using T = TypeParam;
  const testing::KeptTolerance kept;
  QorTolerance = 0;
  Engine engine(20261122);
  for (std::size_t order = 1; order <= 90; order += order < 24 ? 1 : 22) {
    testing::ForEachHardKind([&](Hard kind) {
      SCOPED_TRACE(::testing::Message()
                   << "order " << order << ", kind " << static_cast<int>(kind));
      const auto sides = order < 12 ? 1 + engine() % 9 : 1 + engine() % 5;
      auto a = TQorMatrix<T>::WithLength(order);
      auto b = CopyMatrix(a);
      const bool zeros = engine() % 2 == 0;
      for (std::size_t i = 0; i < order; ++i) {
        a[i] = HardVector<T>(engine, order, kind);
        b[i] = HardVector<T>(engine, sides, engine() % 2 == 0 ? kind : Hard::kMixed);
        for (T& x : a[i]) x = zeros && engine() % 2 == 0 ? std::copysign(T(0), x) : x;
      }
      ExpectPlainSolutions(a, b);
    });
    if (this->HasFailure()) return;
  }
}

}  // namespace
}  // namespace qorvex
