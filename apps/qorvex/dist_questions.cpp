#include "apps/qorvex/dist_questions.h"

#include <cstdint>
#include <tuple>

#include "apps/qorvex/parameters.h"
#include "apps/qorvex/result_table.h"
#include "qorvex/base/errors.h"
#include "qorvex/base/text.h"

namespace qorvex::apps {

namespace {

// What compute makes of the figures; without --classic there may be a result where there is none
// with it.
template <class Compute>
auto ResultOf(const AskedQuestion& asked, const DistFigures& figures, const std::string& where,
              Compute compute) {
  const auto& [family, question, arguments] = asked;
  try {
    return compute(figures);
  } catch (const EMathError& error) {
    std::string remark;
    if (arguments.options.classic) {
      try {
        compute(DistFigures(family, arguments.parameters, {.upper = arguments.options.upper}));
        remark = "; without --classic there is no such limit";
      } catch (const EMathError&) {
        // The error is the same without it.
      }
    }
    throw Refusal(std::string(family.name) + ' ' + question.name + where, error, remark);
  }
}

DistFigures FiguresOf(const AskedQuestion& asked) {
  const auto& [family, question, arguments] = asked;
  try {
    return {family, arguments.parameters, arguments.options};
  } catch (const EMathError& error) {
    throw Refusal(std::string(family.name) + ' ' + question.name, error, "");
  }
}

// A point as it was given, or as the shortest text that is read as the same.
Cell PointCell(Extended point) {
  return WrittenNumber{Float2Str(point), point};
}

ResultTable::Column FigureColumn(const AskedQuestion& asked) {
  if (!asked.arguments.options.log) return {asked.question.key, asked.question.title};
  return {std::string("log_") + asked.question.key,
          std::string("Logarithm of ") + asked.question.title};
}

void RequireAscendingCounts(const DistArguments& arguments) {
  const auto& [first, last] = std::tie(arguments.first, arguments.last);
  if (last < first)
    throw CLI::ValidationError("--to", "counts ascend, so it must not be below --from");
  if (last - first >= kMostPoints)
    throw CLI::ValidationError("--to", "a table has at most 10000000 points");
}

// The classic routines have tables of densities only.
std::vector<std::vector<Cell>> ClassicRows(const Family& family, const DistArguments& arguments) {
  std::vector<Extended> numbers = arguments.parameters;
  numbers.insert(numbers.end(), {arguments.first, arguments.last});
  TQorFloatVector points, densities;
  Existing(family.classic.table)(numbers, static_cast<std::int32_t>(arguments.steps), points,
                                 densities);
  std::vector<std::vector<Cell>> rows;
  for (std::size_t i = 0; i < points.size(); ++i)
    rows.push_back({PointCell(points[i]), densities[i]});
  return rows;
}

std::vector<std::vector<Cell>> TableRows(const Family& family, const DistArguments& arguments,
                                         const DistFigures& figures) {
  const auto& [first, last, steps] = std::tie(arguments.first, arguments.last, arguments.steps);
  if (figures.IsClassic() && !family.is_discrete) return ClassicRows(family, arguments);
  const Extended points = (family.is_discrete ? last - first : steps) + 1;
  const Extended step = points > 1 ? (last - first) / (points - 1) : 0;
  std::vector<std::vector<Cell>> rows;
  for (Extended i = 0; i < points; ++i) {
    const Extended x = i * step + first;
    std::vector<Cell>& row = rows.emplace_back();
    row = {PointCell(x), figures.Density(x)};
    if (figures.IsClassic()) continue;
    row.emplace_back(figures.AtMost(x));
    row.emplace_back(figures.AtLeast(x));
  }
  return rows;
}

}  // namespace

std::string AnswerAtPoints(const AskedQuestion& asked) {
  const DistArguments& arguments = asked.arguments;
  const DistFigures figures = FiguresOf(asked);
  ResultTable table;
  const bool is_one = arguments.points.IsOne();
  for (const Extended point : arguments.points.Read()) {
    const Extended value =
        ResultOf(asked, figures, is_one ? "" : " at " + Float2Str(point),
                 [&](const DistFigures& of) { return (of.*asked.question.figure)(point); });
    table.rows.push_back({PointCell(point), value});
  }
  if (is_one && arguments.output.form == OutputForm::kText)
    return CellText(table.rows[0][1], arguments.output.ForNumbers()) + '\n';
  const std::string point = (arguments.options.upper ? "upper_" : "") + arguments.points.Symbol();
  table.columns = {{point, point}, FigureColumn(asked)};
  return Printed(table, arguments.output);
}

std::string AnswerBetween(const AskedQuestion& asked) {
  const DistArguments& arguments = asked.arguments;
  const Extended probability =
      ResultOf(asked, FiguresOf(asked), "", [&arguments](const DistFigures& figures) {
        return figures.Between(arguments.first, arguments.last);
      });
  if (arguments.output.form == OutputForm::kText)
    return arguments.output.ForNumbers().Text(probability) + '\n';
  return Printed({.columns = {{"first", "First"}, {"last", "Last"}, {"between", "Between"}},
                  .rows = {{PointCell(arguments.first), PointCell(arguments.last), probability}}},
                 arguments.output);
}

std::string AnswerTable(const AskedQuestion& asked) {
  const auto& [family, question, arguments] = asked;
  if (family.is_discrete) RequireAscendingCounts(arguments);
  ResultTable table = {
      .columns = {{arguments.points.Symbol(), arguments.points.Symbol()}, {"density", "Density"}}};
  if (family.is_discrete) table.columns[1] = {"probability", "Probability"};
  if (!arguments.options.classic) {
    table.columns.push_back({"at_most", "At Most"});
    table.columns.push_back({"at_least", "At Least"});
  }
  table.rows = ResultOf(asked, FiguresOf(asked), "", [&](const DistFigures& figures) {
    return TableRows(family, arguments, figures);
  });
  return Printed(table, arguments.output);
}

}  // namespace qorvex::apps
