#pragma once

/// @file
/// Options that take numbers, and the errors of routines that refuse them.

#include <CLI/CLI.hpp>
#include <functional>
#include <string>

#include "apps/common/input_error.h"
#include "apps/common/number_parameter.h"
#include "qorvex/base/element_types.h"
#include "qorvex/base/errors.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::apps {

/// The first long one of an option's names, which messages call it by: "--count" of "-n,--count".
[[nodiscard]] std::string LongName(const std::string& names);

/// The number of the given kind in the argument of an option. Throws CLI::ValidationError.
[[nodiscard]] Extended ParseNumber(const std::string& option, const std::string& text,
                                   NumberKind kind);

/// The numbers between commas. Throws CLI::ValidationError.
[[nodiscard]] TQorFloatVector ParseNumbers(const std::string& option, const std::string& text,
                                           NumberKind kind);

/// Adds an option that sets such a number, which must outlive the parsing.
CLI::Option& AddWrittenNumber(CLI::App& command, const std::string& names,
                              const std::string& description, NumberKind kind,
                              WrittenNumber& number);

/// Adds --confidence, which sets such a number.
CLI::Option& AddConfidence(CLI::App& command, const std::string& description, WrittenNumber& level);

/// Adds an option that takes one number; it may have several names, with commas between them. If
/// the option is given, set is called with the number.
template <class Set>
CLI::Option& AddNumber(CLI::App& command, const std::string& names, const std::string& description,
                       NumberKind kind, Set set) {
  return *command
              .add_option_function<std::string>(
                  names,
                  [name = LongName(names), kind, set](const std::string& text) {
                    set(ParseNumber(name, text, kind));
                  },
                  description)
              ->type_name(kind >= NumberKind::kSteps ? "N" : "X");
}

/// Adds the option of a parameter under all its names, and the one that takes its reciprocal. If
/// either is given, set is called with the parameter. It is required if it has no default.
void AddParameter(CLI::App& command, const NumberParameter& parameter,
                  const std::function<void(Extended)>& set);

/// Converts the error of a routine into one of the program: "name: what", followed by the remark.
[[nodiscard]] InputError Refusal(const std::string& name, const EMathError& error,
                                 const std::string& remark);

}  // namespace qorvex::apps
