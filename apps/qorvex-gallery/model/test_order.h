#pragma once

/// @file
/// What the page of tests computes.

#include <QList>
#include <QString>
#include <QStringList>
#include <cstddef>
#include <optional>
#include <vector>

#include "apps/common/hypothesis_tests.h"
#include "apps/qorvex-gallery/model/sheet.h"
#include "apps/qorvex-gallery/plot/plot_layer.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::gallery {

/// A test with its data: columns of the sheet, of which the first may be divided by labels.
struct TestOrder {
  struct Column {
    QString title = {};
    /// NaN is missing.
    TQorFloatVector numbers = {};
  };

  const apps::HypothesisTest* test = nullptr;
  apps::TestSettings settings = {};
  std::vector<Column> columns = {};
  std::optional<SheetGroups> groups = {};
};

/// What it gives.
struct TestOutcome {
  /// One for each sample of a test of one sample, otherwise one.
  std::vector<apps::TestReport> reports = {};
  /// Why the test has no report; empty if it has one.
  QString why_not = {};
  /// The number of missing values, or of rows, that were left out.
  std::size_t left_out = 0;
  /// The significant digits of the data.
  int digits = 0;
  /// The first samples as boxes; empty for counts.
  PlotContent boxes = {};
};

/// Runs the test. Values that are written as decimals count as such: differences and ties are
/// exact. Missing values are left out, with their rows for pairs, proportions and tables of counts.
/// The samples of a report have the titles of their columns, or the names of their groups, as
/// names.
[[nodiscard]] TestOutcome RunTest(const TestOrder& order);

/// What the page shows of an outcome.
struct TestView {
  /// What the null hypothesis is, whether it is rejected and what that means.
  QStringList paragraphs = {};
  /// A row of names, then one for each sample.
  QList<QStringList> samples = {};
  /// Rows of a label and a text.
  QList<QStringList> results = {};
};

/// The texts for an outcome with reports.
[[nodiscard]] TestView ViewOf(const TestOrder& order, const TestOutcome& outcome);

}  // namespace qorvex::gallery
