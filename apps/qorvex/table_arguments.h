#pragma once

/// @file
/// The arguments by which a command is told which table, and what of it, to read.

#include <CLI/CLI.hpp>
#include <string>
#include <vector>

#include "apps/common/table_reader.h"

namespace qorvex::apps {

/// What every --help of a command that reads a table says about tables.
[[nodiscard]] std::string TableHelp();

/// FILE, --column or --x and --y, --header and --no-header, --delimiter and --skip-empty.
struct TableArguments {
  std::string file;
  TableSelection selection;

  /// Adds the arguments to a command; this object must then outlive the parsing.
  void AddTo(CLI::App& command);

  /// As AddTo, with --x and --y for two columns of which the values of one index belong to one row.
  void AddPairTo(CLI::App& command);

  /// Reads the table. Remarks on standard error how many empty cells, or rows, were skipped, and on
  /// a guessed header that may be a row of data. InputErrors name the argument that helps, where
  /// one does.
  [[nodiscard]] std::vector<TableColumn> Read() const;
};

}  // namespace qorvex::apps
