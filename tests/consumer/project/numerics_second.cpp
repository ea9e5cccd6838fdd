#include <every_numerics_header.h>

std::vector<std::string> ReportOf(const qorvex::TQorFloatVector& values) {
  qorvex::DescriptiveStats stats;
  stats.SetValues(values);
  return stats.Report(2);
}
