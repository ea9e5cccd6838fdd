#pragma once

/// @file
/// LongTable, a result of any number of rows.

#include <string>
#include <vector>

#include "apps/qorvex/output_format.h"
#include "apps/qorvex/result_table.h"

namespace qorvex::apps {

/// A table that is printed as Printed does. In CSV and text, rows become text as they are added,
/// which takes a fifth of their memory.
class LongTable {
 public:
  LongTable(std::vector<ResultTable::Column> columns, const OutputFormat& output);

  void Add(std::vector<Cell> row);

  /// The whole text. Leaves no rows.
  [[nodiscard]] std::string TakeText();

 private:
  void Print();

  ResultTable rows_;
  OutputFormat output_;
  std::string text_;
};

}  // namespace qorvex::apps
