#include "qorvex/stats/QorvexPairStats.h"
#include "support/table.h"
#include "support/test.h"

namespace qorvex {

TEST(PairStats, AgreesWithTheTableToTheLastBit) {
  const testing::Table table("tables/pairs.csv");
  for (std::size_t row = 0; row < table.size(); ++row) {
    const TQorFloatVector x(table.Values(row, "x"));
    const TQorFloatVector y(table.Values(row, "y"));
    Extended a, b, a0, a1, a2;
    GetRegressionLine(x, y, a, b);
    GetQuadraticCurve(x, y, a0, a1, a2);
    for (const auto& [column, figure] : {
             std::pair("a", a),
             {"b", b},
             {"sse", GetSSE(x, y, a, b)},
             {"r", CoeffCorrelation(x, y)},
             {"r2", CoeffDetermination(x, y)},
             {"a0", a0},
             {"a1", a1},
             {"a2", a2},
         })
      EXPECT_EQ(figure, table.Value(row, column)) << column << ", row " << row + 1;
  }
}

}  // namespace qorvex
