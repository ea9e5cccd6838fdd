#pragma once

/// @file
/// The arguments that select a table and its columns.

#include <CLI/CLI.hpp>
#include <string>
#include <vector>

#include "apps/common/table_reader.h"

namespace qorvex::apps {

/// The section on tables of the --help of a command that reads one.
[[nodiscard]] std::string TableHelp();

/// FILE, --column or --x and --y, --header and --no-header, --delimiter, --decimal, --encoding,
/// --na.
struct TableArguments {
  std::string file;
  TableSelection selection;

  /// Adds the arguments to a command. This object must outlive the parsing. The description is that
  /// of how often --column may be given.
  void AddTo(CLI::App& command,
             const char* repetition = "Repeat it for more columns. Default: every column");

  /// Adds those that choose no columns.
  void AddFileTo(CLI::App& command);

  /// The same with --x and --y for two columns whose values with the same index are from one row.
  void AddPairTo(CLI::App& command);

  /// Adds --weights, a column whose values with the same index are from the same row as those of
  /// the others.
  CLI::Option* AddWeightsTo(CLI::App& command);

  /// Adds --by, columns of labels.
  void AddLabelsTo(CLI::App& command, const std::string& description);

  /// Reads the table. Writes to standard error which columns were left out and whether the text was
  /// taken for Latin-1, and warns if the row that was read as a header may be data. The text of an
  /// InputError suggests an argument where one helps.
  [[nodiscard]] Table ReadAll(unsigned threads = 1) const;

  /// The columns of the same.
  [[nodiscard]] std::vector<TableColumn> Read(unsigned threads = 1) const;

 private:
  void RemarkOn(const Table& table) const;
};

/// Adds an option that takes lists of columns by name or number, and may be repeated.
CLI::Option& AddColumns(CLI::App& command, const std::string& option,
                        std::vector<std::string>& columns, const std::string& description);

/// The column that was chosen by this name or number.
[[nodiscard]] const TableColumn& ColumnOf(const std::vector<TableColumn>& columns,
                                          const std::string& chosen);

}  // namespace qorvex::apps
