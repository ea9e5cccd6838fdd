#pragma once

/// @file
/// Diagrams of columns of numbers.

#include <QList>
#include <QString>
#include <cstddef>

#include "apps/qorvex-gallery/plot/plot_layer.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::gallery {

/// A column, or a group of its rows. NaN stands for a missing value.
struct NamedValues {
  QString name;
  TQorFloatVector values;
};

/// @{
/// Diagrams of one column; without layers if there is nothing to show. Infinite values are left
/// out, and missing ones, too, unless their place matters.

/// The histogram with this number of classes, or as many as fit the values for 0, and the normal
/// density with their mean and standard deviation, unless all values are equal or the density is
/// beyond the range.
[[nodiscard]] PlotContent HistogramPlot(const NamedValues& column, std::size_t classes = 0);
/// The ordered values against the normal quantiles of (i - 1/2)/n, and the line through the
/// quartiles: M. B. Wilk and R. Gnanadesikan, Probability plotting methods for the analysis of
/// data, 1968. Of more than some thousand values, it shows both ends and a part of the middle.
[[nodiscard]] PlotContent NormalQuantilePlot(const NamedValues& column);
/// The values in their order.
[[nodiscard]] PlotContent OrderPlot(const NamedValues& column);
/// The autocorrelations up to the lag 10 log10(n), and the lines that 95 % of them are between if
/// the values are independent.
[[nodiscard]] PlotContent AutocorrelationPlot(const NamedValues& column);
/// @}

/// A box of the quartiles for each group that has a value, the first at the top. The whiskers
/// extend to the outermost values within one and a half box lengths; values further out are points:
/// J. W. Tukey, Exploratory Data Analysis, 1977. The axis has the title.
[[nodiscard]] PlotContent BoxPlot(const QList<NamedValues>& groups, const QString& title);

/// @{
/// Diagrams of the rows in which both columns have a finite value.

/// y against x.
[[nodiscard]] PlotContent ScatterPlot(const NamedValues& x, const NamedValues& y);
/// What y exceeds its least-squares line by, against x. Without layers if there is no line.
[[nodiscard]] PlotContent ResidualPlot(const NamedValues& x, const NamedValues& y);
/// @}

}  // namespace qorvex::gallery
