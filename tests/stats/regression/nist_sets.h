#pragma once

#include <algorithm>
#include <cstdint>
#include <fstream>
#include <iterator>
#include <string>
#include <utility>
#include <vector>

#include "qorvex/stats/regression/linear_model.h"
#include "support/table.h"

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

/// Columns as extended and as decimal numbers.
struct DataColumns {
  std::vector<std::vector<Extended>> extended;
  std::vector<DecimalColumn> decimal;

  explicit DataColumns(const std::vector<std::vector<std::string>>& columns) {
    for (const auto& texts : columns) {
      std::ranges::transform(texts, std::back_inserter(extended.emplace_back()), Str2Float);
      decimal.emplace_back(texts);
    }
  }

  [[nodiscard]] std::vector<ColumnView> Views(bool as_decimals) const {
    std::vector<ColumnView> views;
    for (std::size_t c = 0; c < extended.size(); ++c)
      views.push_back(as_decimals ? decimal[c].View() : ColumnView(extended[c]));
    return views;
  }
};

/// The columns of the data file of a set.
inline std::vector<std::vector<std::string>> ReadTexts(const std::string& set,
                                                       std::size_t columns) {
  std::ifstream in(std::string(QORVEX_TEST_DATA) + "/nist/" + set + ".txt");
  std::vector<std::vector<std::string>> texts(columns);
  for (std::string line; std::getline(in, line);) {
    if (line.front() == '#') continue;
    const std::vector<std::string> words = Words(line);
    for (std::size_t c = 0; c < columns; ++c) texts[c].push_back(words.at(c));
  }
  return texts;
}

/// A set of linear regression.
struct LinearSet {
  const char* name;
  std::size_t predictors;
  std::size_t degree;  // 0 for several predictors
  Intercept intercept = Intercept::kIncluded;
};

inline constexpr LinearSet kLinearSets[] = {{"Norris", 1, 0},
                                            {"Pontius", 1, 2},
                                            {"NoInt1", 1, 0, Intercept::kOmitted},
                                            {"NoInt2", 1, 1, Intercept::kOmitted},
                                            {"Filip", 1, 10},
                                            {"Longley", 6, 0},
                                            {"Wampler1", 1, 5},
                                            {"Wampler2", 1, 5},
                                            {"Wampler3", 1, 5},
                                            {"Wampler4", 1, 5},
                                            {"Wampler5", 1, 5}};

/// The fit of a set.
inline LinearFit FitOf(const LinearSet& set, const DataColumns& data, bool as_decimals) {
  std::vector<ColumnView> columns = data.Views(as_decimals);
  const ColumnView response = columns.back();
  columns.pop_back();
  LinearModel model = set.degree > 0 ? LinearModel::Polynomial(set.degree, set.intercept)
                                     : LinearModel(set.predictors, set.intercept);
  model.Add(columns, response);
  return model.Fit();
}

/// The names and groups of the sets of one-way ANOVA. SmLs01 to SmLs09 follow a rule: nine groups
/// of values with one decimal.
inline std::vector<std::pair<std::string, DataColumns>> AnovaSets() {
  std::vector<std::pair<std::string, DataColumns>> sets;
  for (const std::string set : {"SiRstv", "AtmWtAg"}) {
    std::vector<std::vector<std::string>> groups;
    const auto texts = ReadTexts(set, 2);
    for (std::size_t i = 0; i < texts[0].size(); ++i) {
      if (i == 0 || texts[0][i] != texts[0][i - 1]) groups.emplace_back();
      groups.back().push_back(texts[1][i]);
    }
    sets.emplace_back(set, DataColumns(groups));
  }
  const auto step = [](std::size_t k) { return k == 1 ? 2 : k % 2 == 0 ? 1 : 3; };
  constexpr std::size_t replicates[] = {21, 201, 2001};
  const std::string bases[] = {"1", "1000000", "1000000000000"};
  for (std::size_t i = 0; i < 9; ++i) {
    std::vector<std::vector<std::string>> groups(9);
    for (std::size_t g = 1; g <= 9; ++g) {
      for (std::size_t r = 1; r <= replicates[i % 3]; ++r)
        groups[g - 1].push_back(bases[i / 3] + "." + std::to_string(step(g) + step(r)));
    }
    sets.emplace_back("SmLs0" + std::to_string(i + 1), DataColumns(groups));
  }
  return sets;
}

}  // namespace qorvex::testing
