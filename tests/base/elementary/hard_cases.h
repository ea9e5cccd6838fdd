#pragma once

#include <cstdlib>

#include "base/elementary/elementary_functions.h"
#include "support/table.h"

namespace qorvex::testing {

/// A row of elementary/hard_cases.csv.
struct HardCase {
  const ElementaryFunction& function;
  Arguments arguments;

  HardCase(const Table& table, std::size_t row)
      : function(FunctionNamed(table.Text(row, "function"))),
        arguments{std::strtold(table.Text(row, "x").c_str(), nullptr),
                  std::strtold(table.Text(row, "y").c_str(), nullptr)} {}
};

}  // namespace qorvex::testing
