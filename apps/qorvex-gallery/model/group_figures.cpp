#include "apps/qorvex-gallery/model/group_figures.h"

#include <QCoreApplication>
#include <cmath>
#include <limits>
#include <vector>

#include "apps/common/column_numbers.h"
#include "apps/common/sample_figures.h"

namespace qorvex::gallery {

namespace {

TQorFloatVector FiguresOf(apps::ColumnNumbers& numbers, bool population) {
  constexpr Extended none = std::numeric_limits<Extended>::quiet_NaN();
  const auto count = static_cast<Extended>(numbers.size());
  if (numbers.empty()) return {count, none, none, none, none, none, none, none};
  numbers.Sort();
  const apps::OrderFigures order = apps::OrderFiguresOf(numbers);
  const DescriptiveResults results =
      apps::ExactFigures(apps::ExactSumsOf<4>(numbers), order, numbers, population).results;
  const bool has_spread = population || numbers.size() > 1;
  return {count,
          results.mean,
          has_spread ? results.std_dev : none,
          order.minimum,
          order.first_quartile,
          order.median,
          order.third_quartile,
          order.maximum};
}

}  // namespace

QStringList GroupFigureTitles() {
  return {QCoreApplication::translate("qorvex::gallery::GroupReport", "Values"),
          QCoreApplication::translate("qorvex::gallery::GroupReport", "Mean"),
          QCoreApplication::translate("qorvex::gallery::GroupReport", "Standard Deviation"),
          QCoreApplication::translate("qorvex::gallery::GroupReport", "Minimum"),
          QCoreApplication::translate("qorvex::gallery::GroupReport", "First Quartile"),
          QCoreApplication::translate("qorvex::gallery::GroupReport", "Median"),
          QCoreApplication::translate("qorvex::gallery::GroupReport", "Third Quartile"),
          QCoreApplication::translate("qorvex::gallery::GroupReport", "Maximum")};
}

TQorFloatMatrix FiguresOfGroups(const TQorFloatVector& numbers, const SheetGroups& groups,
                                bool population) {
  std::vector<apps::ColumnNumbers> split(static_cast<std::size_t>(groups.names.size()));
  for (std::size_t row = 0; row < groups.group_of_row.size(); ++row) {
    const int group = groups.group_of_row[row];
    if (group >= 0 && !std::isnan(numbers[row]))
      split[static_cast<std::size_t>(group)].Append(numbers[row]);
  }
  TQorFloatMatrix figures;
  for (apps::ColumnNumbers& group : split) figures.Append(FiguresOf(group, population));
  return figures;
}

}  // namespace qorvex::gallery
