#pragma once

#include <cmath>
#include <fstream>
#include <gtest/gtest.h>
#include <map>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "qorvex/base/text.h"

namespace qorvex::testing {

/// The words of a text.
inline std::vector<std::string> Words(const std::string& text) {
  std::istringstream in(text);
  std::vector<std::string> words;
  for (std::string word; in >> word;) words.push_back(word);
  return words;
}

/// A comma-separated reference table with a header line. Lines that start with # are comments.
class Table {
 public:
  explicit Table(const std::string& file) {
    std::ifstream in(std::string(QORVEX_TEST_DATA) + "/" + file);
    if (!in) throw std::runtime_error("no reference table " + file);
    for (std::string line; std::getline(in, line);) {
      if (line.empty() || line.front() == '#') continue;
      std::vector<std::string> cells;
      std::istringstream fields(line);
      for (std::string cell; std::getline(fields, cell, ',');) cells.push_back(cell);
      if (columns_.empty()) {
        for (std::size_t i = 0; i < cells.size(); ++i) columns_[cells[i]] = i;
      } else {
        cells.resize(columns_.size());
        rows_.push_back(cells);
      }
    }
    if (rows_.empty()) throw std::runtime_error("empty reference table " + file);
  }

  [[nodiscard]] std::size_t size() const { return rows_.size(); }
  [[nodiscard]] const std::string& Text(std::size_t row, const std::string& column) const {
    return rows_[row].at(columns_.at(column));
  }
  [[nodiscard]] Extended Value(std::size_t row, const std::string& column) const {
    return Str2Float(Text(row, column));
  }
  /// The numbers of a cell that has several, between blanks.
  [[nodiscard]] std::vector<Extended> Values(std::size_t row, const std::string& column) const {
    std::vector<Extended> values;
    for (const std::string& word : Words(Text(row, column))) values.push_back(Str2Float(word));
    return values;
  }

 private:
  std::map<std::string, std::size_t> columns_;
  std::vector<std::vector<std::string>> rows_;
};

/// Expects that the relative errors of compute(row) against a column are at most the limit, in
/// units of 1e-19. Rounding to 80 bits alone causes an error of 0.54. Skips rows whose expected
/// value is less than `least` in magnitude.
template <class Compute>
void ExpectWorstError(const Table& table, const std::string& column, Extended limit,
                      Compute compute, Extended least = 1e-20L) {
  std::size_t judged = 0;
  for (std::size_t row = 0; row < table.size(); ++row) {
    if (table.Text(row, column).empty()) continue;
    const Extended expected = table.Value(row, column);
    if (!(std::fabs(expected) >= least)) continue;
    ++judged;
    const Extended error = std::fabs(compute(row) - expected) / std::fabs(expected) * 1e19L;
    EXPECT_LE(error, limit) << column << ", row " << row + 1;
  }
  EXPECT_GT(judged, table.size() / 2);
}

/// The numbers in a file, separated by blanks. Lines that start with # are comments.
inline std::vector<Extended> ReadNumbers(const std::string& file) {
  std::ifstream in(std::string(QORVEX_TEST_DATA) + "/" + file);
  if (!in) throw std::runtime_error("no reference data " + file);
  std::vector<Extended> values;
  for (std::string line; std::getline(in, line);) {
    if (!line.empty() && line.front() == '#') continue;
    for (const std::string& word : Words(line)) values.push_back(Str2Float(word));
  }
  return values;
}

}  // namespace qorvex::testing
