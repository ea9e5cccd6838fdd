#include <QVariant>
#include <qorvex/components/QorvexDescStats.h>

// In the second translation unit: gives the component its lines and counts how often it was
// updated.
int Fill(qorvex::TQorDescStats& stats, const QStringList& lines);

int main() {
  qorvex::TQorDescStats stats;
  const bool updated_once = Fill(stats, {"1", "2", "6"}) == 1;
  return updated_once && stats.Mean() == 3 && stats.property("Mean").toString() == "3" ? 0 : 1;
}
