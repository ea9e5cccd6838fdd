// The statistics component outside a form: it tells when its results change.

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

  // One line a value, as a designer enters them.
  stats.setItems({"3.2", "2.9", "3.4"});
  stats.AddValue(3.1L);

  // A batch is computed once, at its end.
  stats.BeginUpdate();
  for (const long double value : {2.8L, 3.0L, 3.6L}) stats.AddValue(value);
  stats.EndUpdate();

  // A line that is no number is refused by name, and the values stay.
  try {
    stats.setItems({"3.2", "three"});
  } catch (const qorvex::EConvertError& error) {
    std::cout << error.what() << '\n';
  }

  stats.setDecimalPlaces(3);
  std::cout << stats.DescStats().join('\n').toStdString() << '\n';
}
