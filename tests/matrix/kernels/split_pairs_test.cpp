#include "qorvex/matrix/detail/split_pairs.h"

#include <array>
#include <limits>

#include "support/hard_vectors.h"
#include "support/test.h"

namespace qorvex {
namespace {

using testing::Engine;
using testing::Hard;
using testing::HardVector;
namespace detail = QorvexMatrix::detail;

TEST(SplitPair, StoresExactlyWhatFitsTwoDoubles) {
  const auto stores = [](Extended x) {
    const Extended values[detail::kPair] = {1, x};
    detail::SplitPair pair;
    const bool exact = pair.Store(values);
    EXPECT_TRUE(!exact || testing::SameBits(pair[1], x)) << x;
    return exact;
  };
  for (const Extended x : {0.0L, 1 / 3.0L, 0x1p-900L, 0x1.fffffffffffffffep999L}) {
    EXPECT_TRUE(stores(x) && stores(-x)) << x;
  }
  for (const Extended x :
       {0x1.fffffffffffffffep-901L, 0x1p1000L, std::numeric_limits<Extended>::infinity(), kNaN,
        std::numeric_limits<Extended>::denorm_min()}) {
    EXPECT_FALSE(stores(x) || stores(-x)) << x;
  }
}

// Checks that the sums with pairs of this kind are those of plain loops.
template <class Pair>
void ExpectPlainSums(const TQorFloatVector& factors0, const TQorFloatVector& factors1,
                     const TQorFloatVector& left, const TQorFloatVector& right) {
  const std::size_t n = left.size();
  std::vector<Pair> pairs(n);
  bool exact = true;
  for (std::size_t k = 0; k < n; ++k) {
    const Extended values[detail::kPair] = {left[k], right[k]};
    exact &= pairs[k].Store(values);
  }
  if (!exact) return;
  std::array<Extended, 4> sums = {0, -0.0L, 1, -1};
  std::array<Extended, 4> plain = sums;
  detail::AddProducts(&sums[0], &sums[2], factors0.data(), factors1.data(), pairs.data(), n);
  for (std::size_t i = 0; i < 4; ++i) {
    const TQorFloatVector& factors = i < 2 ? factors0 : factors1;
    const TQorFloatVector& column = i % 2 == 0 ? left : right;
    for (std::size_t k = 0; k < n; ++k) plain[i] += column[k] * factors[k];
    EXPECT_TRUE(testing::SameBits(sums[i], plain[i])) << i;
  }
}

TEST(SplitPair, GivesTheSumsOfPlainLoopsForEveryLength) {
  Engine engine(9);
  for (std::size_t n = 0; n <= 10'007; n += n < 300 ? 1 : 9'707 / 2) {
    testing::ForEachHardKind([&](Hard kind) {
      SCOPED_TRACE(::testing::Message() << n << " products, kind " << static_cast<int>(kind));
      std::array<TQorFloatVector, 4> data;
      for (auto& vector : data) vector = HardVector<Extended>(engine, n, kind);
      ExpectPlainSums<detail::SplitPair>(data[0], data[1], data[2], data[3]);
      ExpectPlainSums<detail::PlainPair>(data[0], data[1], data[2], data[3]);
    });
  }
}

}  // namespace
}  // namespace qorvex
