#pragma once

/// @file
/// What a command of `fit` computes.

#include <optional>
#include <string>
#include <vector>

#include "apps/common/table_reader.h"
#include "apps/qorvex/fit_arguments.h"
#include "qorvex/stats/regression/linear_fit.h"
#include "qorvex/stats/regression/pair_fit.h"

namespace qorvex::apps {

/// The columns of a fit.
struct FitColumns {
  std::vector<TableColumn> x;
  TableColumn y;
  std::optional<TableColumn> weights;
  /// As in Table.
  std::vector<std::size_t> skipped_rows;

  [[nodiscard]] Columns Predictors() const;
};

/// Reads the columns. Throws InputError, also if y is one of the x.
[[nodiscard]] FitColumns ReadColumns(const FitArguments& arguments);

/// The figures of pairs of x and y; the rest of PairFit.
struct PairFigures {
  Extended mean_x, mean_y;
  Extended std_dev_x, std_dev_y;
  Extended covariance;
  /// NaN if all y are equal.
  Extended correlation;
};

/// A fit and its names.
struct FittedModel {
  LinearFit fit;
  /// Of a polynomial with a constant and without weights.
  std::optional<PairFigures> pairs;
  /// The names of the coefficients: "Constant", "x^2", or the title of a column.
  std::vector<std::string> terms;
  std::vector<Prediction> predictions;
};

/// The fit. Throws InputError for columns that do not determine it and for figures beyond the range
/// of extended precision.
[[nodiscard]] FittedModel FitOf(const FitColumns& columns, const FitArguments& arguments);

/// Throws InputError for columns that do not determine the coefficients.
void RequireDetermined(const FitColumns& columns, const FitArguments& arguments);

/// Writes a line for each row to the file of --residuals. Throws InputError if that is the table,
/// and std::system_error if it cannot be written.
void WriteResiduals(const FitColumns& columns, const LinearFit& fit, const FitArguments& arguments);

}  // namespace qorvex::apps
