#pragma once

#include <cmath>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "qorvex/stats/regression/linear_model.h"
#include "support/table.h"
#include "support/test.h"

namespace qorvex::testing {

/// A column of decimal numbers as their integers.
struct DecimalColumn {
  std::vector<std::int64_t> integers;
  int decimals = 0;

  explicit DecimalColumn(const std::vector<std::string>& texts) {
    const auto digits_after_point = [](const std::string& text) {
      const std::size_t point = text.find('.');
      return point == std::string::npos ? 0 : static_cast<int>(text.size() - point - 1);
    };
    for (const std::string& text : texts) decimals = std::max(decimals, digits_after_point(text));
    for (std::string text : texts) {
      text.append(static_cast<std::size_t>(decimals - digits_after_point(text)), '0');
      std::erase(text, '.');
      integers.push_back(std::stoll(text));
    }
  }

  [[nodiscard]] ColumnView View() const { return {integers, decimals}; }
};

/// The columns of a data file, as extended and as decimal numbers.
struct DataFile {
  std::vector<std::vector<Extended>> extended;
  std::vector<DecimalColumn> decimal;

  DataFile(const std::string& name, std::size_t columns) : extended(columns) {
    std::ifstream in(std::string(QORVEX_TEST_DATA) + "/nist/" + name);
    std::vector<std::vector<std::string>> texts(columns);
    for (std::string line; std::getline(in, line);) {
      if (line.front() == '#') continue;
      const std::vector<std::string> words = Words(line);
      for (std::size_t c = 0; c < columns; ++c) {
        extended[c].push_back(Str2Float(words.at(c)));
        texts[c].push_back(words[c]);
      }
    }
    for (const auto& column : texts) decimal.emplace_back(column);
  }

  [[nodiscard]] std::vector<ColumnView> Views(bool as_decimals) const {
    std::vector<ColumnView> views;
    for (std::size_t c = 0; c < extended.size(); ++c)
      views.push_back(as_decimals ? decimal[c].View() : ColumnView(extended[c]));
    return views;
  }
};

/// Expects each figure of a set to be the nearest extended number to the exact one; probabilities,
/// whose names begin with p, to be no further off than the rounding of the statistic explains.
inline void ExpectFigures(const Table& table, const std::string& set, const std::string& column,
                          const std::map<std::string, Extended>& figures) {
  std::size_t judged = 0;
  for (std::size_t row = 0; row < table.size(); ++row) {
    if (table.Text(row, "set") != set) continue;
    ++judged;
    const std::string& name = table.Text(row, "figure");
    const Extended exact = table.Value(row, column);
    if (name.starts_with("p") && exact > 0) {
      EXPECT_LE(std::fabs(figures.at(name) - exact), 1e-18L * (1 - std::log(exact)) * exact)
          << set << ' ' << name;
    } else {
      EXPECT_EQ(figures.at(name), exact) << set << ' ' << name << ' ' << column;
    }
  }
  EXPECT_GE(judged, 9U) << set;
}

}  // namespace qorvex::testing
