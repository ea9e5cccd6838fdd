#pragma once

/// @file
/// A column of a table together with the texts that name its rows.

#include <QString>
#include <QStringList>
#include <cstddef>
#include <functional>
#include <stop_token>
#include <vector>

#include "apps/qorvex/text_input.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::gallery {

/// What the first rows of a table tell of it.
struct TableHead {
  struct Column {
    QString title;       ///< Its name in the header, or else its number.
    bool holds_numbers;  ///< As far as the first row of values tells.
  };
  std::vector<Column> columns;

  /// The first column of numbers, or the first of all.
  [[nodiscard]] std::size_t FirstOfNumbers() const;
};

/// The values of one column.
struct TableColumn {
  TQorFloatVector values;  ///< A NaN for each empty cell.
  QStringList row_names;   ///< From the first column where that holds text; else empty.
};

/// Reading was stopped.
struct ReadingStopped {};

/// The file at the path, or in the resources of the program, for reading. Its name in messages is
/// the name without folders. Raises InputError when it cannot be opened.
[[nodiscard]] cli::TextInput OpenFile(const QString& path);

/// The same text with an observer that learns how many bytes have been read. Raises ReadingStopped
/// once that is asked for.
[[nodiscard]] cli::TextInput Observed(cli::TextInput input, std::stop_token stop,
                                      std::function<void(qint64 bytes)> progress);

/// Reads the first rows. Raises InputError as RowReader does, and for a text without rows.
[[nodiscard]] TableHead ReadHead(cli::TextInput input);

/// Reads the column at the index, from 0. Raises InputError, which names line and text, as
/// RowReader does, for rows of different lengths, for a cell that is no number and for a column
/// without values. Other columns may hold anything.
[[nodiscard]] TableColumn ReadColumn(cli::TextInput input, std::size_t index);

}  // namespace qorvex::gallery
