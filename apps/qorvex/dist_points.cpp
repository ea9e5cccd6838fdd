#include "apps/qorvex/dist_points.h"

#include "apps/common/cells.h"
#include "apps/common/input_error.h"
#include "apps/common/similar_words.h"
#include "apps/common/text_input.h"
#include "apps/qorvex/parameters.h"
#include "apps/qorvex/text_output.h"
#include "qorvex/base/text.h"

namespace qorvex::apps {

CLI::Option& DistPoints::AddListTo(CLI::App& command, const std::string& names,
                                   const std::string& description) {
  CLI::Option& option =
      *command
           .add_option_function<std::vector<std::string>>(
               names,
               [this, name = LongName(names)](const std::vector<std::string>& texts) {
                 for (const std::string& text : texts)
                   for (const Extended point : ParseNumbers(name, text, kind_))
                     list_.push_back(point);
               },
               description)
           ->type_name(kind_ == NumberKind::kCount ? "N" : "X")
           ->allow_extra_args(false);
  options_.push_back(&option);
  return option;
}

void DistPoints::AddFileTo(CLI::App& command) {
  table_.AddTo(command, "Default: the only one");
  CLI::Option* const file = command.get_option("FILE")->required(false);
  for (CLI::Option* const option : options_) file->excludes(option);
}

std::string DistPoints::Symbol() const {
  if (kind_ == NumberKind::kProbability) return "p";
  return kind_ == NumberKind::kCount ? "k" : "x";
}

std::vector<Extended> DistPoints::Read() const {
  if (!list_.empty()) return list_;
  if (!table_.file.empty()) return ReadTable();
  std::vector<std::string> sources;
  for (const CLI::Option* const option : options_) sources.push_back(option->get_name());
  sources.emplace_back("FILE");
  throw CLI::ValidationError(Alternatives(sources) + " is required");
}

std::vector<Extended> DistPoints::ReadTable() const {
  const std::vector<TableColumn> columns = table_.Read();
  const std::string name = InputName(table_.file);
  if (columns.size() > 1) {
    throw InputError(
        InputFault::kNoSuchColumn, name,
        "the points are in one of " + Cardinal(columns.size(), "column") + "; --column chooses it");
  }
  const TableColumn& column = columns.front();
  // The lines of the output no longer match the rows.
  if (column.missing > 0) {
    WriteRemark(OnOneLine(name) + ": " + column.Title() + ": left out " +
                Cardinal(column.missing, "missing value"));
  }
  const TQorFloatVector values = column.numbers.Values();
  std::vector<Extended> points(values.begin(), values.end());
  for (const Extended point : points) {
    if (const char* const wrong = WhatIsWrong(point, kind_)) {
      throw InputError(InputFault::kOutOfRange, name,
                       column.Title() + ": " + Float2Str(point) + ' ' + wrong);
    }
  }
  return points;
}

}  // namespace qorvex::apps
