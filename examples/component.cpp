// The statistics component without a form. A signal reports every change of its results.

#include <QCoreApplication>
#include <iostream>

#include "qorvex/base/errors.h"
#include "qorvex/components/QorvexDescStats.h"

int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  qorvex::TQorDescStats stats;
  QObject::connect(&stats, &qorvex::TQorDescStats::StatsUpdated, [&stats] {
    std::cout << stats.NoOfValues() << " values, mean " << stats.MeanText().toStdString() << '\n';
  });

  // One line per value, as entered in Qt Designer.
  stats.setItems({"3.2", "2.9", "3.4"});
  stats.AddValue(3.1L);

  // Results are computed once, at the end of an update.
  stats.BeginUpdate();
  for (const long double value : {2.8L, 3.0L, 3.6L}) stats.AddValue(value);
  stats.EndUpdate();

  // The error names a line that is not a number. The values do not change.
  try {
    stats.setItems({"3.2", "three"});
  } catch (const qorvex::EConvertError& error) {
    std::cout << error.what() << '\n';
  }

  stats.setDecimalPlaces(3);
  std::cout << stats.DescStats().join('\n').toStdString() << '\n';
}
