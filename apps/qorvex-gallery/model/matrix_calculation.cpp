#include "apps/qorvex-gallery/model/matrix_calculation.h"

#include <QCoreApplication>
#include <QLocale>
#include <algorithm>
#include <atomic>
#include <cmath>
#include <optional>
#include <span>
#include <thread>
#include <unistd.h>

#include "apps/common/threads.h"
#include "apps/qorvex-gallery/model/texts.h"
#include "qorvex/base/errors.h"
#include "qorvex/matrix/building.h"
#include "qorvex/matrix/product.h"
#include "qorvex/matrix/reduction.h"
#include "qorvex/matrix/solve.h"

namespace qorvex::gallery {

namespace {

struct MatrixTexts {
  Q_DECLARE_TR_FUNCTIONS(MatrixTexts)
};

bool AnyElement(const TQorFloatMatrix& matrix, bool (*holds)(Extended)) {
  return std::any_of(matrix.begin(), matrix.end(), [holds](const auto& row) {
    return std::any_of(row.begin(), row.end(), holds);
  });
}

bool AnyNull(const TQorFloatMatrix& matrix) {
  return AnyElement(matrix, [](Extended x) { return std::isnan(x); });
}

bool AnyInfinite(const TQorFloatMatrix& matrix) {
  return AnyElement(matrix, [](Extended x) { return std::isinf(x); });
}

// Why a square matrix A has no inverse, or A X = B no solution.
QString WhyNone(const MatrixTask& task, std::uint32_t rank) {
  if (AnyNull(task.a) || AnyNull(task.b)) return MatrixTexts::tr("none, an element is null");
  if (AnyInfinite(task.a) || AnyInfinite(task.b))
    return MatrixTexts::tr("none, an element is infinite");
  if (rank < task.a.size()) return MatrixTexts::tr("none, A is singular");
  return MatrixTexts::tr("none, its elements would be beyond the range");
}

QString WhyShapesDoNotFit(const MatrixTask& task) {
  const bool is_square = task.a.size() == task.a[0].size();
  switch (task.wanted) {
    case MatrixResult::kInverse:
      return is_square ? QString() : MatrixTexts::tr("of square matrices only");
    case MatrixResult::kEchelon:
      return {};
    case MatrixResult::kProduct:
      if (task.b.size() == task.a[0].size()) return {};
      return MatrixTexts::tr("B needs as many rows as A has columns: %L1").arg(task.a[0].size());
    case MatrixResult::kSolution:
      if (!is_square) return MatrixTexts::tr("A must be square");
      if (task.b.size() == task.a.size()) return {};
      break;
  }
  return MatrixTexts::tr("B needs as many rows as A: %L1").arg(task.a.size());
}

// The rows of a product do not depend on one another.
TQorFloatMatrix Product(const TQorFloatMatrix& a, const TQorFloatMatrix& b,
                        const Proceed& proceed) {
  constexpr std::size_t block = 32;
  const std::size_t blocks = (a.size() + block - 1) / block;
  auto product = TQorFloatMatrix::WithLength(a.size());
  const std::span<const TQorFloatVector> rows = a;
  const std::span<TQorFloatVector> results(product.begin(), product.end());
  std::atomic<std::size_t> done = 0;
  apps::ForEachIndex(blocks, std::thread::hardware_concurrency(), [&](std::size_t i) {
    if (!proceed(done++, blocks)) return;
    const std::size_t first = i * block;
    const TQorFloatMatrix part(rows.subspan(first, std::min(block, a.size() - first)));
    std::ranges::copy(MultiplyMatrices(part, b), results.begin() + static_cast<long>(first));
  });
  return product;
}

// In an elimination, zeros get meaningless signs from pivots and row exchanges.
void RemoveSignsOfZeros(TQorFloatMatrix& matrix) {
  for (TQorFloatVector& row : matrix) std::ranges::replace(row, 0.0L, 0.0L);
}

// The result, or nothing if the matrix has no inverse or the system no solution. The shapes fit.
std::optional<TQorFloatMatrix> ResultOf(const MatrixTask& task, const Proceed& proceed) {
  std::optional<TQorFloatMatrix> result;
  switch (task.wanted) {
    case MatrixResult::kInverse:
      result = Inverse(task.a);
      break;
    case MatrixResult::kEchelon:
      result = RowEchelon(task.a);
      break;
    case MatrixResult::kProduct:
      return Product(task.a, task.b, proceed);
    case MatrixResult::kSolution:
      result = Solve(task.a, task.b);
      break;
  }
  if (result) RemoveSignsOfZeros(*result);
  return result;
}

}  // namespace

MatrixOutcome Calculate(const MatrixTask& task, const Proceed& proceed) {
  if (task.a.empty()) {
    return {.determinant = QStringLiteral("—"),
            .rank = QStringLiteral("—"),
            .why_none = MatrixTexts::tr("none, A is empty")};
  }
  const bool is_square = task.a.size() == task.a[0].size();
  MatrixOutcome outcome{
      .determinant = is_square ? QStringLiteral("—") : MatrixTexts::tr("of square matrices only"),
      .rank = QStringLiteral("—"),
      .why_none = WhyShapesDoNotFit(task)};
  try {
    const std::uint32_t rank = Rank(task.a);
    outcome.rank = QLocale().toString(rank);
    if (!proceed(0, 1)) return outcome;
    if (is_square) outcome.determinant = ExactText(Determinant(task.a) + 0.0L);
    if (!outcome.why_none.isEmpty() || !proceed(0, 1)) return outcome;
    if (std::optional<TQorFloatMatrix> result = ResultOf(task, proceed)) {
      outcome.result = std::move(*result);
    } else {
      outcome.why_none = WhyNone(task, rank);
    }
  } catch (const EMathError& error) {
    // A figure is out of range.
    outcome.why_none = QString::fromUtf8(error.what());
  }
  return outcome;
}

std::uint64_t MostElements() {
  constexpr std::uint64_t matrices = 8;
  const auto pages = static_cast<std::uint64_t>(sysconf(_SC_PHYS_PAGES));
  const auto page_size = static_cast<std::uint64_t>(sysconf(_SC_PAGE_SIZE));
  return pages * page_size / (matrices * sizeof(Extended));
}

}  // namespace qorvex::gallery
