#pragma once

/// @file
/// What the page of data shows of the values of a column.

#include <QList>
#include <QLocale>
#include <QString>
#include <QStringList>
#include <cstddef>
#include <vector>

#include "apps/qorvex-gallery/plot/plot_view.h"
#include "qorvex/components/QorvexDescStats.h"

namespace qorvex::gallery {

/// The lines of a report, label and figure, in two columns of pairs.
[[nodiscard]] QList<QStringList> ReportTable(const QStringList& lines, const QLocale& locale);

/// What the report leaves out: so many empty cells, and figures whose digits come after its
/// decimals, of which there can be at most most_decimals.
[[nodiscard]] QString RemarkOn(const TQorDescStats& stats, std::size_t empty_cells,
                               int most_decimals, const QLocale& locale);

/// The histogram of the values that the statistics describe, and the normal density of the same
/// mean and standard deviation where these are in the range and not 0.
[[nodiscard]] std::vector<PlotLayer> HistogramLayers(const TQorDescStats& stats,
                                                     const TQorFloatVector& values);

}  // namespace qorvex::gallery
