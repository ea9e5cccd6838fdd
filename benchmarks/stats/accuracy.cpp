// Prints the errors of the distributions beside those of other libraries, over tables of 30-digit
// values, as Markdown.

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <exception>
#include <gsl/gsl_errno.h>
#include <limits>
#include <string>
#include <vector>

#include "stats/accuracy_contestants.h"
#include "support/distribution_figures.h"

namespace qorvex::benchmarks {

namespace {

using testing::Figure;
using testing::Table;

struct Errors {
  std::vector<Extended> of_rows;
  std::size_t worst_row = 0;
  std::size_t failures = 0;
};

// Relative errors in units of 1e-19, over the rows with a value of at least `least`.
Errors Measure(const Table& table, const Figure& figure, const Routine& routine, Extended least) {
  Errors errors;
  Extended worst = -1;
  for (std::size_t i = 0; i < table.size(); ++i) {
    if (table.Text(i, figure.column).empty()) continue;
    const Extended expected = table.Value(i, figure.column);
    if (!(std::fabs(expected) >= least)) continue;
    Extended error = 0;
    try {
      error = std::fabs(routine({table, i}) / expected - 1) * 1e19L;
    } catch (const std::exception&) {
      error = std::numeric_limits<Extended>::quiet_NaN();
    }
    if (std::isnan(error)) {
      ++errors.failures;
      continue;
    }
    errors.of_rows.push_back(error);
    if (error > worst) {
      worst = error;
      errors.worst_row = i + 1;
    }
  }
  std::ranges::sort(errors.of_rows);
  return errors;
}

std::string Text(Extended units) {
  char text[32];
  std::snprintf(text, sizeof text, units < 1000 ? "%.*Lf" : "%.*Le", units < 10 || units >= 1000,
                units);
  return text;
}

std::string Summary(const Errors& errors) {
  if (errors.of_rows.empty()) return "-";
  std::string text = Text(errors.of_rows[errors.of_rows.size() / 2]) + ", " +
                     Text(errors.of_rows.back()) + " (" + std::to_string(errors.worst_row) + ")";
  if (errors.failures > 0) text += ", fails " + std::to_string(errors.failures);
  return text;
}

void Print() {
  std::puts(
      "| figure | table, column | rows | classes, all rows | classes | classic | Boost.Math | GSL "
      "| R "
      "|");
  std::puts("|---|---|---|---|---|---|---|---|---|");
  constexpr Extended usual = 1e-20L;
  for (const Figure& figure : testing::DistributionFigures()) {
    const Table table = figure.Open();
    const auto found = AllContestants().find(figure.name);
    const Contestants others = found == AllContestants().end() ? Contestants() : found->second;
    const auto cell = [&](const Routine& routine, Extended least) {
      std::printf(" %s |", routine ? Summary(Measure(table, figure, routine, least)).c_str() : "-");
    };
    std::printf("| %s | %s, %s | %zu |", figure.name.c_str(), figure.file.c_str(),
                figure.column.c_str(), table.size());
    cell(figure.compute, std::numeric_limits<Extended>::min());
    for (const Routine& routine :
         {figure.compute, others.classic, others.boost, others.gsl, others.r}) {
      cell(routine, usual);
    }
    std::puts("");
  }
}

}  // namespace

}  // namespace qorvex::benchmarks

int main() {
  gsl_set_error_handler_off();
  qorvex::benchmarks::Print();
}
