#include "base/hard_case_list.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace qorvex::benchmarks {

void HardCaseList::Add(const testing::Arguments& arguments) {
  for (const bool to_midpoint : {false, true}) {
    const Extended distance = reference_.DistanceExponent(function_, arguments, to_midpoint);
    // Exact results, and the smallest arguments, whose results hardly differ from them.
    if (!(distance > -120 && distance < -10)) continue;
    const auto is_alike = [&](const Case& other) {
      return std::floor(other.distance) == std::floor(distance);
    };
    if (std::ranges::count_if(cases_, is_alike) >= for_distance_) continue;
    const auto place = std::ranges::lower_bound(cases_, distance, {}, &Case::distance);
    const bool is_known = std::any_of(place, cases_.end(), [&](const Case& other) {
      return other.arguments.x == arguments.x && other.arguments.y == arguments.y;
    });
    if (is_known) continue;
    cases_.insert(place, {arguments, to_midpoint, distance});
    if (cases_.size() > size_) cases_.pop_back();
  }
}

std::string HardCaseList::Rows() const {
  std::string rows;
  for (const Case& hard : cases_) {
    char row[160];
    std::snprintf(row, sizeof row, "%s,%La,%La,%s,%.2Lf\n", function_.name, hard.arguments.x,
                  hard.arguments.y, hard.to_midpoint ? "midpoint" : "number", hard.distance);
    rows += row;
  }
  return rows;
}

}  // namespace qorvex::benchmarks
