#pragma once

#include <cmath>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "apps/common/distributions.h"
#include "support/table.h"

namespace qorvex::testing {

/// The distribution of a family of the catalogue. Parameters that are not given are those that a
/// form starts with.
inline std::unique_ptr<const apps::AnyDistribution> MakeDistribution(
    const apps::Family& family, std::vector<Extended> parameters) {
  for (std::size_t i = parameters.size(); i < family.parameters.size(); ++i)
    parameters.push_back(family.parameters[i].start);
  return family.make(parameters);
}

/// A row of a table; its cells by the names of their columns.
struct Row {
  const Table& table;
  std::size_t index;
  Extended operator()(const std::string& column) const { return table.Value(index, column); }
  [[nodiscard]] std::uint32_t Count(const char* column) const {
    return static_cast<std::uint32_t>((*this)(column));
  }
};

/// The mean and the point of an exponential row, both exact: the rates are powers of two, or their
/// products with x have few bits.
inline Extended MeanOf(const Row& row) {
  const Extended rate = row("rate_dec");
  return std::exp2(std::round(std::log2(rate))) == rate ? 1 / rate : 1;
}
inline Extended PointOf(const Row& row) {
  return MeanOf(row) == 1 ? row("x_dec") * row("rate_dec") : row("x_dec");
}

/// A column of a table of 30-digit values, and how it is computed.
struct Figure {
  std::string name;  ///< "gamma lower"
  std::string file;
  std::string column;
  Extended units;
  std::function<Extended(const Row&)> compute;

  [[nodiscard]] Table Open() const { return Table("tables/" + file + ".csv"); }
};

/// The columns of all tables.
inline std::vector<Figure> DistributionFigures() {
  using Compute = Extended (*)(const apps::AnyDistribution& distribution, Extended point);
  const std::pair<const char*, Compute> kinds[] = {
      {"lower", Lower<apps::AnyDistribution>},
      {"upper", Upper<apps::AnyDistribution>},
      {"density", [](const apps::AnyDistribution& d, Extended x) { return d.Pdf(x); }},
      {"quantile", Quantile<apps::AnyDistribution>},
      {"log lower", LogLower<apps::AnyDistribution>},
      {"log upper", LogUpper<apps::AnyDistribution>},
      {"upper quantile", UpperQuantile<apps::AnyDistribution>}};
  std::vector<Figure> figures;
  const Table tables("tables/distribution_tables.csv");
  for (std::size_t i = 0; i < tables.size(); ++i) {
    const std::string family = tables.Text(i, "family");
    const std::string point_column = tables.Text(i, "point");
    const std::vector<std::string> columns = Words(tables.Text(i, "parameters"));
    for (const auto& [kind, compute] : kinds) {
      const std::string column = tables.Text(i, kind);
      if (column.empty()) continue;
      const auto figure = [=, compute = compute](const Row& row) {
        std::vector<Extended> parameters;
        for (const std::string& name : columns) parameters.push_back(row(name));
        Extended point = row(point_column);
        if (!columns.empty() && columns[0] == "rate_dec") {
          parameters[0] = MeanOf(row);
          point = PointOf(row);
        }
        return compute(*MakeDistribution(*apps::FindFamily(family), parameters), point);
      };
      figures.push_back(
          {family + ' ' + kind, tables.Text(i, "file"), column, tables.Value(i, "units"), figure});
    }
  }
  return figures;
}

}  // namespace qorvex::testing
