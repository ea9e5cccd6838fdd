#include <cfenv>
#include <functional>
#include <xmmintrin.h>

#include "qorvex/matrix/QorvexMatrix.h"
#include "qorvex/stats/exact/exact_sum.h"
#include "qorvex/vector/QorvexFinVector.h"
#include "support/hard_vectors.h"
#include "support/test.h"

namespace qorvex {

using testing::Engine;
using testing::Hard;
using testing::HardVector;
using testing::SameBits;

// Computes with a mode of arithmetic, and restores the usual one.
template <class Work>
auto With(const std::function<void()>& set_mode, Work work) {
  const unsigned usual = _mm_getcsr();
  set_mode();
  auto result = work();
  static_cast<void>(std::fesetround(FE_TONEAREST));
  _mm_setcsr(usual);
  return result;
}

// Modes of double arithmetic that programs may set, for example by -ffast-math, do not change what
// is computed in extended precision.
TEST(ArithmeticMode, DoesNotChangeKernels) {
  Engine engine(1904);
  const auto flush = [] { _mm_setcsr(_mm_getcsr() | 0x8040U); };
  const auto upward = [] { static_cast<void>(std::fesetround(FE_UPWARD)); };
  auto tiny = HardVector<float>(engine, 2'000, Hard::kSubnormal);
  tiny[0] = 1e-30F;
  const auto numbers = HardVector<double>(engine, 4'000, Hard::kPositive);
  for (const std::function<void()>& mode : {std::function<void()>(flush), {upward}}) {
    const auto same_sum = [&](const auto& vector) {
      Extended loop = With(mode, [&] {
        volatile Extended sum = static_cast<Extended>(vector[0]);
        for (std::size_t i = 1; i < vector.size(); ++i) {
          sum = sum + static_cast<Extended>(vector[i]);
        }
        return sum;
      });
      return SameBits(With(mode, [&] { return SumVector(vector); }), loop);
    };
    EXPECT_TRUE(same_sum(tiny));
    EXPECT_TRUE(same_sum(numbers));
  }

  // 2^-1030 * 2^1000 is not zero.
  auto matrix =
      TQorMatrix<double>{TQorVector<double>::WithLength(20), TQorVector<double>::WithLength(20)};
  FillVector(matrix[0], 0x1p-1030);
  With(flush, [&] {
    AddMatrixRows(matrix, 1, 0, 0x1p1000);
    return 0;
  });
  for (const double x : matrix[1]) EXPECT_EQ(x, 0x1p-30);

  auto subnormal = TQorVector<double>::WithLength(1'024);
  FillVector(subnormal, 0x1p-1070);
  EXPECT_EQ(With(flush,
                 [&] {
                   ExactSum sum;
                   sum.Add(subnormal);
                   return sum.Round();
                 }),
            0x1p-1060L);

  auto amounts = TQorVector<Currency>::WithLength(200);
  for (std::int64_t i = 0; Currency & x : amounts) x = Currency(2 * ++i + 1);
  const auto expected = With(upward, [&] {
    auto one_by_one = CopyVector(amounts);
    for (Currency& x : one_by_one) {
      TQorVector<Currency> amount{x};
      LinearTransformVector(amount, 0.5L, 0);
      x = amount[0];
    }
    return one_by_one;
  });
  With(upward, [&] {
    LinearTransformVector(amounts, 0.5L, 0);
    return 0;
  });
  EXPECT_EQ(amounts, expected);
}

}  // namespace qorvex
