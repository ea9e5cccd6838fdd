#include <algorithm>
#include <cmath>
#include <cstddef>
#include <future>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "apps/common/input_error.h"
#include "apps/common/matrix_reader.h"
#include "apps/common/text_input.h"
#include "apps/common/threads.h"
#include "apps/qorvex/command_tree.h"
#include "apps/qorvex/commands.h"
#include "apps/qorvex/common_arguments.h"
#include "apps/qorvex/format_arguments.h"
#include "apps/qorvex/json_writer.h"
#include "apps/qorvex/matrix_operations.h"
#include "apps/qorvex/output_format.h"
#include "apps/qorvex/progress.h"
#include "apps/qorvex/result_table.h"
#include "apps/qorvex/text_output.h"
#include "qorvex/base/comparisons.h"
#include "qorvex/base/errors.h"
#include "qorvex/base/text.h"
#include "qorvex/matrix/shape.h"

namespace qorvex::apps {

namespace {

constexpr const char* kRowsHelp = R"(

Matrices:
  Each line is a row; every row has as many cells as the first.
  Every cell is a number. A header is never guessed, because a row with a damaged
  number would be lost; --header skips one.)";

constexpr const char* kResultHelp = R"(
  Blank lines before the first row and after the last are ignored.
  The cells of the result are separated by commas, so it can be read again.)";

struct MatrixArguments {
  std::vector<std::string> files;
  TableFormat format;
  OutputFormat output;
  unsigned threads = 1;
};

bool AllFinite(const TQorFloatMatrix& matrix) {
  return std::ranges::all_of(matrix, [](const TQorFloatVector& row) {
    return std::ranges::all_of(row, [](Extended element) { return std::isfinite(element); });
  });
}

std::string ShapeOf(const TQorFloatMatrix& matrix) {
  return Int2EStr(MatrixRows(matrix)) + " x " + Int2EStr(MatrixCols(matrix));
}

std::string WhatIsWrong(const EMathError& error, const Matrices& operands) {
  std::string text = error.what();
  if (error.message_id() == rsNoInvert) {
    return text + "; elements up to " + Float2Str(QorTolerance) +
           " count as zero, which --tolerance changes";
  }
  const char* const between = error.message_id() == rsMatrixMult ? " times " : " and ";
  for (const TQorFloatMatrix& operand : operands)
    text += (&operand == &operands[0] ? ": " : between) + ShapeOf(operand);
  return text;
}

// The names of the files, for errors that do not belong to a line of one of them.
std::string Names(const std::vector<std::string>& files) {
  std::string names;
  for (const std::string& file : files) names += (names.empty() ? "" : ", ") + InputName(file);
  return names;
}

TQorFloatMatrix Compute(const MatrixOperation& operation, Matrices& operands,
                        const std::string& names, unsigned threads) {
  TQorFloatMatrix result;
  try {
    result = operation.compute(operands, threads);
  } catch (const EMathError& error) {
    throw InputError(InputFault::kNoResult, names, WhatIsWrong(error, operands));
  }
  // An elimination works in the operand, so this also detects an overflow that does not show in the
  // result, for example in a rank.
  if (!AllFinite(result) || !std::ranges::all_of(operands, AllFinite)) {
    throw InputError(InputFault::kOutOfRange, names,
                     std::string(operation.result) + " is beyond the range of extended precision");
  }
  return result;
}

TQorFloatMatrix Read(TextInput input, const TableFormat& format) {
  try {
    return ReadMatrix(std::move(input), format);
  } catch (const InputError& error) {
    const char* hint = "";
    if (error.Fault() == InputFault::kTextInFirstRow) hint = "; --header skips the first row";
    if (error.Fault() == InputFault::kOtherDecimalSign) hint = "; --decimal tells the decimal sign";
    if (error.Fault() == InputFault::kWrongEncoding) hint = "; --encoding latin1 reads any bytes";
    throw InputError(error.Fault(), std::string(error.what()) + hint);
  }
}

// As many files at once as there are threads. Of two errors, that of the first file is thrown. If
// the first file cannot be opened, nothing is read, because another may be a pipe that stays open.
Matrices ReadAll(const MatrixArguments& arguments) {
  const std::vector<std::string>& files = arguments.files;
  TextInput first = OpenWithProgress(files[0]);
  std::vector<std::future<TQorFloatMatrix>> others;
  for (std::size_t i = 1; i < files.size(); ++i) {
    others.push_back(
        std::async(i < arguments.threads ? std::launch::async : std::launch::deferred,
                   [&, i] { return Read(OpenTextInput(files[i]), arguments.format); }));
  }
  Matrices operands{Read(std::move(first), arguments.format)};
  for (auto& other : others) operands.push_back(other.get());
  return operands;
}

// Aligned, or as a JSON array of the rows.
std::string Presented(const TQorFloatMatrix& matrix, const OutputFormat& output) {
  if (output.IsJson()) {
    JsonWriter json;
    json.BeginArray();
    for (const TQorFloatVector& row : matrix) json.Numbers(row);
    json.EndArray();
    return json.TakeText();
  }
  ResultTable table{.columns = std::vector<ResultTable::Column>(matrix[0].size())};
  for (const TQorFloatVector& row : matrix) table.rows.emplace_back(row.begin(), row.end());
  return AlignedTextOf(table, output.ForReport());
}

void Write(const TQorFloatMatrix& matrix, const MatrixArguments& arguments) {
  const OutputFormat& output = arguments.output;
  if (output.IsJson() || output.form == OutputForm::kTable)
    return WriteResult(Presented(matrix, output));
  const FigureFormat format = output.ForNumbers();
  std::vector<std::string> texts(arguments.threads);
  ForEachBlock(matrix.size(), arguments.threads,
               [&](std::size_t block, std::size_t begin, std::size_t end) {
                 for (std::size_t i = begin; i < end; ++i)
                   AppendLine(texts[block], matrix[i], format);
               });
  WriteResult(std::vector<std::string_view>(texts.begin(), texts.end()));
}

void Run(const MatrixOperation& operation, const MatrixArguments& arguments) {
  if (std::ranges::count(arguments.files, "-") > 1) {
    throw CLI::ValidationError("only one matrix can be standard input");
  }
  Matrices operands = ReadAll(arguments);
  Write(Compute(operation, operands, Names(arguments.files), arguments.threads), arguments);
}

Extended ParseTolerance(const std::string& text) {
  Extended tolerance = -1;
  try {
    tolerance = Str2Float(text);
  } catch (const EConvertError&) {
  }
  if (std::isfinite(tolerance) && tolerance >= 0) return tolerance;
  throw CLI::ValidationError("--tolerance", Excerpt(text) + " is not a number of at least 0");
}

void AddOperation(CLI::App& matrix, const MatrixOperation& operation) {
  CLI::App& command = *matrix.add_subcommand(operation.name, operation.summary);
  const auto arguments = std::make_shared<MatrixArguments>();
  arguments->files.resize(operation.least_matrices);
  if (operation.most_matrices == 1) {
    AddFile(command, arguments->files[0], "FILE", "The matrix to read");
  } else if (operation.most_matrices == 2) {
    AddFile(command, arguments->files[0], "LEFT", "The matrix on the left");
    AddFile(command, arguments->files[1], "RIGHT", "The matrix on the right");
  } else {
    command.add_option("FILE", arguments->files, "The matrices; - is standard input")
        ->type_name("")
        ->expected(1, CLI::detail::expected_max_vector_size)
        ->required();
  }
  AddTextFormat(command, arguments->format);
  command.add_flag_callback(
      "--header", [arguments] { arguments->format.header = true; },
      "Skip the first row, which contains names, and the first column if its name\n"
      "is empty or missing");
  arguments->output.AddTo(command, "the shortest\ntext that keeps all 80 bits; 7 with --table");
  AddThreads(command, arguments->threads,
             "Threads that read matrices, multiply and format the result, which is the\n"
             "same; an elimination takes one. Default: 1");
  if (operation.takes_tolerance) {
    command
        .add_option_function<std::string>(
            "--tolerance", [](const std::string& text) { QorTolerance = ParseTolerance(text); },
            "Elements within X of zero count as zero, and pivots within X of one as one;\n"
            "large or badly scaled numbers need a larger tolerance. Default: " +
                Float2Str(QorTolerance))
        ->type_name("X");
  }
  command.footer(std::string(operation.help) + kRowsHelp + kTextHelp + kResultHelp +
                 kExitStatusHelp + kNothingPrintedHelp);
  command.callback([&operation, arguments] {
    if (arguments->files.size() < operation.least_matrices)
      throw CLI::ValidationError("FILE", "two or more matrices are needed");
    Run(operation, *arguments);
  });
}

}  // namespace

void AddMatrix(CLI::App& program) {
  CLI::App& matrix = *program.add_subcommand("matrix", "Inverses, products and ranks of matrices");
  for (const MatrixOperation& operation : MatrixOperations()) AddOperation(matrix, operation);
  RequireOneCommand(matrix, "command");
}

}  // namespace qorvex::apps
