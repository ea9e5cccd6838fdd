#include "apps/qorvex/dist_questions.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <tuple>
#include <utility>

#include "apps/common/figure_format.h"
#include "apps/qorvex/long_table.h"
#include "apps/qorvex/parameters.h"
#include "apps/qorvex/result_table.h"
#include "qorvex/base/errors.h"
#include "qorvex/base/text.h"

namespace qorvex::apps {

namespace {

// What compute makes of the figures. The message about an error names the point unless it is null,
// and says if there would be a result without --classic.
template <class Compute>
auto ResultOf(const AskedQuestion& asked, const DistFigures& figures, const Extended* point,
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
    const std::string where = point == nullptr ? "" : " at " + Float2Str(*point);
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

// A point with all its digits and, if it is not tiny, without an exponent.
Cell PointCell(Extended point) {
  const FigureFormat format = {FigureFormat::Kind::kDigits, std::max(1, SignificantDigits(point))};
  return WrittenNumber{format.Text(point), point};
}

ResultTable::Column DensityColumn(const Family& family) {
  if (family.is_discrete) return {"probability", "Probability"};
  return {"density", "Density"};
}

ResultTable::Column FigureColumn(const AskedQuestion& asked) {
  const DistQuestion& question = asked.question;
  if (question.figure == &DistFigures::Density) return DensityColumn(asked.family);
  if (!asked.arguments.options.log) return {question.key, question.title};
  return {std::string("log_") + question.key, std::string("Logarithm of ") + question.title};
}

void RequireAscendingCounts(const DistArguments& arguments) {
  const auto& [first, last] = std::tie(arguments.first, arguments.last);
  if (last < first)
    throw CLI::ValidationError("--to", "counts ascend, so it must not be below --from");
  if (last - first >= kMostPoints)
    throw CLI::ValidationError("--to", "a table has at most 10000000 points");
}

void AddRows(const Family& family, const DistArguments& arguments, const DistFigures& figures,
             LongTable& table) {
  const auto& [first, last, steps] = std::tie(arguments.first, arguments.last, arguments.steps);
  if (figures.IsClassic() && !family.is_discrete) {
    const auto [xs, densities] = figures.ClassicTable(first, last, steps);
    for (std::size_t i = 0; i < xs.size(); ++i) table.Add({PointCell(xs[i]), densities[i]});
    return;
  }
  const Extended points = (family.is_discrete ? last - first : steps) + 1;
  const Extended largest = std::max<Extended>(points - 1, 1);
  for (Extended i = 0; i < points; ++i) {
    // Multiplied first, so that tenths are as near as numbers can be.
    const Extended x = first + (last - first) * i / largest;
    if (!std::isfinite(x)) throw EOverflow();
    std::vector<Cell> row = {PointCell(x), figures.Density(x)};
    if (!figures.IsClassic()) row.insert(row.end(), {figures.AtMost(x), figures.AtLeast(x)});
    table.Add(std::move(row));
  }
}

}  // namespace

std::string AnswerAtPoints(const AskedQuestion& asked) {
  const DistArguments& arguments = asked.arguments;
  const DistFigures figures = FiguresOf(asked);
  const std::string symbol = (arguments.options.upper ? "upper_" : "") + arguments.points.Symbol();
  LongTable table({{symbol, symbol}, FigureColumn(asked)}, arguments.output);
  const bool is_one = arguments.points.IsOne();
  for (const Extended point : arguments.points.Read()) {
    const Extended figure =
        ResultOf(asked, figures, is_one ? nullptr : &point,
                 [&](const DistFigures& of) { return (of.*asked.question.figure)(point); });
    if (is_one && arguments.output.form == OutputForm::kText)
      return arguments.output.ForNumbers().Text(figure) + '\n';
    table.Add({PointCell(point), figure});
  }
  return table.TakeText();
}

std::string AnswerBetween(const AskedQuestion& asked) {
  const DistArguments& arguments = asked.arguments;
  const Extended probability =
      ResultOf(asked, FiguresOf(asked), nullptr, [&arguments](const DistFigures& figures) {
        return figures.Between(arguments.first, arguments.last);
      });
  if (arguments.output.form == OutputForm::kText)
    return arguments.output.ForNumbers().Text(probability) + '\n';
  return Printed({.columns = {{"first", "First"}, {"last", "Last"}, {"between", "Between"}},
                  .rows = {{PointCell(arguments.first), PointCell(arguments.last), probability}}},
                 arguments.output);
}

std::string AnswerTable(const AskedQuestion& asked) {
  const Family& family = asked.family;
  const DistArguments& arguments = asked.arguments;
  if (family.is_discrete) RequireAscendingCounts(arguments);
  const std::string point = arguments.points.Symbol();
  std::vector<ResultTable::Column> columns = {{point, point}, DensityColumn(family)};
  if (!arguments.options.classic) {
    columns.push_back({"at_most", "At Most"});
    columns.push_back({"at_least", "At Least"});
  }
  return ResultOf(asked, FiguresOf(asked), nullptr, [&](const DistFigures& figures) {
    LongTable table(columns, arguments.output);
    AddRows(family, arguments, figures, table);
    return table.TakeText();
  });
}

}  // namespace qorvex::apps
