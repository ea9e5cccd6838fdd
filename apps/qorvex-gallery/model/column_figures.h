#pragma once

/// @file
/// What the page of data shows about a column.

#include <QList>
#include <QLocale>
#include <QString>
#include <QStringList>
#include <cstddef>
#include <vector>

#include "apps/qorvex-gallery/plot/plot_layer.h"
#include "qorvex/components/QorvexDescStats.h"

namespace qorvex::gallery {

/// The values that are not NaN, which stands for an empty cell.
[[nodiscard]] TQorFloatVector WithoutNulls(const TQorFloatVector& values);

/// The lines of a report, and the interval that contains the mean of a normal population with a
/// probability of 95 %, as rows of two labels, each with its figure. The values are those of the
/// statistics.
[[nodiscard]] QList<QStringList> ReportTable(TQorDescStats& stats, const TQorFloatVector& values,
                                             const QLocale& locale);

/// A remark on what the report does not show: the empty cells, and figures that need more decimals,
/// of which there can be at most most_decimals.
[[nodiscard]] QString RemarkOn(const TQorDescStats& stats, std::size_t empty_cells,
                               int most_decimals, const QLocale& locale);

/// The histogram of the values, and the normal density with the mean and standard deviation of the
/// statistics, if these are finite and the latter is not 0.
[[nodiscard]] std::vector<PlotLayer> HistogramLayers(const TQorDescStats& stats,
                                                     const TQorFloatVector& values);

}  // namespace qorvex::gallery
