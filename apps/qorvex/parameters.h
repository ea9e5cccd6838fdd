#pragma once

/// @file
/// Options that take numbers, and what is said when a routine refuses them.

#include <CLI/CLI.hpp>
#include <string>

#include "apps/common/input_error.h"
#include "apps/common/number_parameter.h"
#include "qorvex/base/element_types.h"
#include "qorvex/base/errors.h"

namespace qorvex::apps {

/// The number of the given kind that was passed to an option.
[[nodiscard]] Extended ParseNumber(const std::string& option, const std::string& text,
                                   NumberKind kind);

/// Adds an option that takes one number. Set is called with it when the option is given.
template <class Set>
CLI::Option& AddNumber(CLI::App& command, const std::string& option, const std::string& description,
                       NumberKind kind, Set set) {
  return *command
              .add_option_function<std::string>(
                  option,
                  [option, kind, set](const std::string& text) {
                    set(ParseNumber(option, text, kind));
                  },
                  description)
              ->type_name(kind >= NumberKind::kSteps ? "N" : "X");
}

/// The error of a routine as the program's own, "name: what", with a remark behind it.
[[nodiscard]] InputError Refusal(const std::string& name, const EMathError& error,
                                 const std::string& remark);

}  // namespace qorvex::apps
