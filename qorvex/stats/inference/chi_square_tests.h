#pragma once

/// @file
/// Chi-square tests of counts.
///
/// - The statistic sums (observed - expected)^2 / expected over the cells. The differences are
///   exact, the quotients have 192 bits, and the sum is rounded once.
/// - The approximation is usual where no expected count is below 5.
/// - Cost: 1 to 2 microseconds a cell.
/// - Source: Pearson (1900), "On the criterion that a given system of deviations from the probable
///   in the case of a correlated system of variables is such that it can be reasonably supposed to
///   have arisen from random sampling"; Yates (1934), "Contingency tables involving small numbers
///   and the chi-square test".

#include <cstdint>

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"
#include "qorvex/stats/exact/extended_view.h"
#include "qorvex/stats/inference/test_result.h"

namespace qorvex {

/// @{
/// Whether counts follow the given proportions, which need not add up to 1, or are all as likely as
/// each other. k - 1 - fitted_parameters degrees of freedom for k cells.
///
/// - `fitted_parameters` is the number of parameters that were estimated from the same counts.
/// - A proportion of NaN gives NaN.
/// - Errors: rsSameDimensions for different lengths; rsVectorG1 for fewer than two cells;
///   rsVectorNeg for a negative count; rsVectorNotPos unless all proportions are positive and
///   finite; rsVectorZero where all counts are 0; rsDF where no degree of freedom is left.
[[nodiscard]] QORVEX_EXPORT TestResult GoodnessOfFitTest(VectorView<std::int64_t> counts,
                                                         VectorView<Extended> proportions,
                                                         std::uint32_t fitted_parameters = 0);
[[nodiscard]] QORVEX_EXPORT TestResult GoodnessOfFitTest(VectorView<std::int64_t> counts);
template <ContiguousRange Counts, ContiguousRange Proportions>
requires IntegerElement<ElementOf<Counts>> && NumericElement<ElementOf<Proportions>>
[[nodiscard]] TestResult GoodnessOfFitTest(const Counts& counts, const Proportions& proportions,
                                           std::uint32_t fitted_parameters = 0) {
  return GoodnessOfFitTest(VectorView<std::int64_t>(ConvertVector<std::int64_t>(counts)),
                           VectorView<Extended>(AsExtended(proportions)), fitted_parameters);
}
template <ContiguousRange Counts>
requires IntegerElement<ElementOf<Counts>>
[[nodiscard]] TestResult GoodnessOfFitTest(const Counts& counts) {
  return GoodnessOfFitTest(VectorView<std::int64_t>(ConvertVector<std::int64_t>(counts)));
}
/// @}

/// Whether the differences of a table are corrected, since counts change in steps.
enum class ContinuityCorrection : std::uint8_t {
  kNone,   ///< no
  kYates,  ///< for tables of 2 by 2: differences shrink by 1/2, but not beyond 0
};

/// Whether rows and columns of a table of counts are independent, or the rows are samples of one
/// distribution. (rows - 1)(columns - 1) degrees of freedom.
///
/// - Errors: rsMatrixIsEmpty for a table without cells; rsMatrixRect for rows of different lengths;
///   rsInvalidRow and rsInvalidCol for fewer than two rows or columns; rsMatrixNeg for a negative
///   count; rsMatrixZero for a row or a column of zeros; rsInvalidValue for Yates' correction of a
///   larger table.
[[nodiscard]] QORVEX_EXPORT TestResult IndependenceTest(
    const TQorInt64Matrix& counts, ContinuityCorrection correction = ContinuityCorrection::kNone);

}  // namespace qorvex
