#include "qorvex/stats/combinatorics.h"

#include "support/table.h"
#include "support/test.h"

namespace qorvex {

constexpr std::uint32_t kMost = 0xFFFFFFFF;

TEST(Combinatorics, AgreesWithTheTable) {
  const testing::Table table("tables/combinatorics.csv");
  testing::ExpectWorstError(table, "value", 20, [&](std::size_t row) {
    const std::string& what = table.Text(row, "what");
    const auto n = static_cast<std::uint32_t>(table.Value(row, "n"));
    if (what == "factorial") return Factorial(n);
    const auto k = static_cast<std::uint32_t>(table.Value(row, "k"));
    const Extended expected = table.Value(row, "value");
    const Extended value = what == "binomial" ? BinomialCoeff(n, k) : Permutation(n, k);
    if (expected * k < 0x1p61L) {
      EXPECT_EQ(value, expected) << what << ' ' << n << ' ' << k;
    }
    return value;
  });
}

// Beyond 2^61 the order of products and quotients decides the last bits: computed by one product
// and at most one quotient a step, from the smallest factor up.
TEST(Combinatorics, CoefficientsKeepTheirOrderOfProductsAndQuotients) {
  struct Case {
    std::uint32_t n, k;
    Extended coefficient;
  };
  for (const auto& [n, k, coefficient] : {
           Case{66, 33, 0xc.8611fd235c9cc16p+59L},
           {67, 33, 0xc.56ec13c4b95e372p+60L},
           {70, 30, 0xc.006ab15a19350aep+62L},
           {200, 33, 0xb.5c5911cd8cd975cp+122L},
           {200, 100, 0xe.6cda9a862b57064p+192L},
           {333, 111, 0xa.45de117cf887b87p+298L},
           {1001, 7, 0xa.dc561f252a74dp+54L},
           {1001, 500, 0xc.e6fe6f79b4b4584p+992L},
           {16391, 8195, 0xc.c349a92cdf1484ep+16380L},
           {123456789, 100, 0x9.0cffed4a94131aap+2160L},
           {kMost, 7, 0xd.00d00b94b94ba51p+208L},
           {kMost, 500, 0xc.85c538b6ec83588p+12229L},
       }) {
    EXPECT_EQ(BinomialCoeff(n, k), coefficient) << n << ' ' << k;
    EXPECT_EQ(BinomialCoeff(n, n - k), coefficient) << n << ' ' << k;
  }
}

}  // namespace qorvex
