#include "qorvex/matrix/sorting.h"

#include "qorvex/matrix/building.h"
#include "qorvex/matrix/transpose.h"
#include "support/failing_allocation.h"
#include "support/random_matrices.h"
#include "support/test.h"

namespace qorvex {

using testing::Engine;
using testing::RandomMatrix;

// Expects that the rows are those of the source, sorted by their keys.
template <class T>
void ExpectSorted(const TQorMatrix<T>& matrix, const TQorMatrix<T>& source, std::uint32_t key,
                  bool ascending) {
  ASSERT_TRUE(std::ranges::is_sorted(matrix, [=](const auto& a, const auto& b) {
    return ascending ? a[key] < b[key] : a[key] > b[key];
  }));
  ASSERT_TRUE(std::ranges::is_permutation(matrix, source));
}

template <class T>
class MatrixSorting : public ::testing::Test {};
TYPED_TEST_SUITE(MatrixSorting, AllTypes);

TYPED_TEST(MatrixSorting, SortsWholeRowsAndColumns) {
  using T = TypeParam;
  Engine engine(77);
  for (const auto& [rows, cols] : {std::pair{2U, 2U}, {40U, 7U}, {3U, 450U}, {450U, 3U}}) {
    for (int trial = 0; trial < 8; ++trial) {
      const bool ascending = trial % 2 == 0;
      const auto row = static_cast<std::uint32_t>(engine() % rows);
      const auto col = static_cast<std::uint32_t>(engine() % cols);
      auto m = RandomMatrix<T>(engine, rows, cols);
      if (trial % 4 < 2) {  // ties
        for (auto& r : m) r[col] = static_cast<T>(engine() % 4);
        for (T& x : m[row]) x = static_cast<T>(engine() % 4);
      }
      auto by_col = CopyMatrix(m);
      QSortMatrixRowsOnCol(by_col, col, ascending);
      ExpectSorted(by_col, m, col, ascending);
      auto by_row = CopyMatrix(m);
      QSortMatrixColsOnRow(by_row, row, ascending);
      ExpectSorted(TransposeMatrix(by_row), TransposeMatrix(m), row, ascending);
    }
  }
}

TEST(MatrixSortingLines, ContentsMoveAndBuffersStay) {
  TQorLIntMatrix m{{3, 30}, {1, 10}, {2, 20}};
  const TQorLIntVector first = m[0];
  QSortMatrixRowsOnCol(m, 0, true);
  QSortMatrixColsOnRow(m, 1, false);
  EXPECT_EQ(m, (TQorLIntMatrix{{10, 1}, {20, 2}, {30, 3}}));
  EXPECT_TRUE(first.SharesBufferWith(m[0]));
}

TEST(MatrixSortingLines, SharedRowsLoseNothing) {
  Engine engine(5);
  for (int trial = 0; trial < 200; ++trial) {
    const TQorByteMatrix contents{{0, 0}, {1, 1}, {2, 2}, {3, 3}};
    TQorByteMatrix m = CopyMatrix(contents);
    for (int extra = 0; extra < 4; ++extra) m.Append(m[engine() % m.size()]);
    std::shuffle(m.begin(), m.end(), engine);
    QSortMatrixRowsOnCol(m, 0, true);
    for (const auto& content : contents) ASSERT_TRUE(std::ranges::find(m, content) != m.end());
  }
  TQorByteMatrix twice{{3, 1, 2}};
  twice.Append(twice[0]);
  QSortMatrixColsOnRow(twice, 0, true);
  EXPECT_EQ(twice[0], (TQorByteVector{2, 3, 1})) << "(1, 2, 3) permuted a second time";
}

TEST(MatrixSortingLines, RunningOutOfMemoryLeavesTheMatrixUnchanged) {
  Engine engine(9);
  const auto before = RandomMatrix<double>(engine, 500, 500);
  for (void (*sort)(TQorDoubleMatrix&, std::uint32_t, bool) :
       {QSortMatrixRowsOnCol<double>, QSortMatrixColsOnRow<double>}) {
    TQorDoubleMatrix m = CopyMatrix(before);
    testing::ExpectFailuresChangeNothing([&] { sort(m, 0, true); }, [&] { return m == before; });
  }
}

}  // namespace qorvex
