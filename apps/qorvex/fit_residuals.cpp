#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <system_error>

#include "apps/common/column_view.h"
#include "apps/common/input_error.h"
#include "apps/common/text_input.h"
#include "apps/qorvex/fit_model.h"
#include "apps/qorvex/interrupt_hold.h"
#include "apps/qorvex/text_output.h"
#include "qorvex/base/text.h"

namespace qorvex::apps {

namespace {

std::string ResidualTable(const FitColumns& columns, const LinearFit& fit,
                          const FigureFormat& format) {
  const Columns predictors = columns.Predictors();
  const TQorFloatVector fitted = fit.FittedValues(predictors);
  const TQorFloatVector residuals = fit.Residuals(predictors, ViewOf(columns.y.numbers));
  const TQorFloatVector leverages =
      columns.weights ? fit.Leverages(predictors, ViewOf(columns.weights->numbers))
                      : fit.Leverages(predictors);
  std::string table = "row,fitted,residual,leverage\n";
  auto skipped = columns.skipped_rows.begin();
  std::size_t row = 0;
  for (std::size_t i = 0; i < fitted.size(); ++i, ++row) {
    for (; skipped != columns.skipped_rows.end() && *skipped == row; ++row) ++skipped;
    table += Int2EStr(row + 1) + ',';
    AppendLine(table, std::initializer_list<Extended>{fitted[i], residuals[i], leverages[i]},
               format);
  }
  return table;
}

}  // namespace

void WriteResiduals(const FitColumns& columns, const LinearFit& fit,
                    const FitArguments& arguments) {
  const std::string& name = arguments.residual_file;
  std::error_code error;
  const std::string& table_file = arguments.table.file;
  if (std::filesystem::equivalent(table_file == "-" ? "/dev/stdin" : table_file, name, error)) {
    throw InputError(InputFault::kUnreadable, InputName(name),
                     "--residuals would replace the table");
  }
  const std::string table = ResidualTable(columns, fit, arguments.output.ForNumbers());
  const auto require = [&name](bool done) {
    if (!done) throw std::system_error(errno, std::generic_category(), name);
  };
  const InterruptHold hold;
  const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(name.c_str(), "wb"),
                                                             std::fclose);
  require(file != nullptr);
  require(std::fwrite(table.data(), 1, table.size(), file.get()) == table.size());
  require(std::fflush(file.get()) == 0);
}

}  // namespace qorvex::apps
