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
    std::istringstream numbers(Text(row, column));
    std::vector<Extended> values;
    for (std::string number; numbers >> number;) values.push_back(Str2Float(number));
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
  Extended worst = 0;
  std::size_t worst_row = 0;
  std::size_t judged = 0;
  for (std::size_t row = 0; row < table.size(); ++row) {
    if (table.Text(row, column).empty()) continue;
    const Extended expected = table.Value(row, column);
    if (!(std::fabs(expected) >= least)) continue;
    ++judged;
    const Extended error = std::fabs(compute(row) - expected) / std::fabs(expected) * 1e19L;
    ASSERT_FALSE(std::isnan(error)) << column << ", row " << row + 1;
    if (error > worst) {
      worst = error;
      worst_row = row;
    }
  }
  EXPECT_GT(judged, table.size() / 2);
  EXPECT_LE(worst, limit) << column << ", row " << worst_row + 1 << ", of " << judged;
  ::testing::Test::RecordProperty("worst_" + column, Float2EStr(worst, 2));
}

/// The numbers in a file, separated by blanks. Lines that start with # are comments.
inline std::vector<Extended> ReadNumbers(const std::string& file) {
  std::ifstream in(std::string(QORVEX_TEST_DATA) + "/" + file);
  if (!in) throw std::runtime_error("no reference data " + file);
  std::vector<Extended> values;
  for (std::string line; std::getline(in, line);) {
    if (!line.empty() && line.front() == '#') continue;
    std::istringstream numbers(line);
    for (std::string number; numbers >> number;) values.push_back(Str2Float(number));
  }
  return values;
}

}  // namespace qorvex::testing
