#include <qorvex/components/QorvexDescStats.h>

int Fill(qorvex::TQorDescStats& stats, const QStringList& lines) {
  int updates = 0;
  const QMetaObject::Connection connection =
      QObject::connect(&stats, &qorvex::TQorDescStats::StatsUpdated, [&updates] { ++updates; });
  stats.setItems(lines);
  QObject::disconnect(connection);
  return updates;
}
