#include <QVariant>
#include <qorvex/components/QorvexDescStats.h>

// Defined in the second translation unit: sets the lines and returns the number of updates.
int Fill(qorvex::TQorDescStats& stats, const QStringList& lines);

int main() {
  qorvex::TQorDescStats stats;
  const bool updated_once = Fill(stats, {"1", "2", "6"}) == 1;
  return updated_once && stats.Mean() == 3 && stats.property("Mean").toString() == "3" ? 0 : 1;
}
