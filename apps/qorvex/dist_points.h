#pragma once

/// @file
/// The points at which a command of `dist` is asked for figures.

#include <CLI/CLI.hpp>
#include <string>
#include <vector>

#include "apps/common/number_parameter.h"
#include "apps/qorvex/table_arguments.h"
#include "qorvex/base/element_types.h"

namespace qorvex::apps {

/// Points from an option or from a column of a table.
class DistPoints {
 public:
  explicit DistPoints(NumberKind kind) : kind_(kind) {}

  /// Adds an option that takes points with commas between them. This object must outlive the
  /// parsing.
  CLI::Option& AddListTo(CLI::App& command, const std::string& names,
                         const std::string& description);
  /// Adds FILE, which takes the place of these options, and the options of tables.
  void AddFileTo(CLI::App& command);

  /// The symbol of a point: x, k or p.
  [[nodiscard]] std::string Symbol() const;
  /// Whether one point was given by an option.
  [[nodiscard]] bool IsOne() const { return list_.size() == 1; }

  /// The points in their order. Throws CLI::ValidationError without any, InputError if the
  /// table has a fault, more than one column or a number of another kind.
  [[nodiscard]] std::vector<Extended> Read() const;

 private:
  [[nodiscard]] std::vector<Extended> ReadTable() const;

  NumberKind kind_;
  std::vector<Extended> list_;
  std::vector<CLI::Option*> options_;
  TableArguments table_;
};

}  // namespace qorvex::apps
