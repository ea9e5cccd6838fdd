#include "apps/qorvex/parameters.h"

#include <algorithm>
#include <cstddef>
#include <vector>

#include "qorvex/base/text.h"

namespace qorvex::apps {

std::string LongName(const std::string& names) {
  const std::size_t begin = names.find("--");
  return names.substr(begin, names.find(',', begin) - begin);
}

Extended ParseNumber(const std::string& option, const std::string& text, NumberKind kind) {
  Extended value = 0;
  try {
    value = Str2Float(text);
  } catch (const EConvertError& error) {
    throw CLI::ValidationError(option, OnOneLine(error.what()));
  }
  const char* const wrong = WhatIsWrong(value, kind);
  if (wrong == nullptr) return value;
  throw CLI::ValidationError(option, Excerpt(text) + ' ' + wrong);
}

TQorFloatVector ParseNumbers(const std::string& option, const std::string& text, NumberKind kind) {
  std::vector<Extended> numbers;
  for (std::size_t begin = 0; begin <= text.size();) {
    const std::size_t end = std::min(text.find(',', begin), text.size());
    numbers.push_back(ParseNumber(option, text.substr(begin, end - begin), kind));
    begin = end + 1;
  }
  return TQorFloatVector(numbers);
}

CLI::Option& AddWrittenNumber(CLI::App& command, const std::string& names,
                              const std::string& description, NumberKind kind,
                              WrittenNumber& number) {
  return *command
              .add_option_function<std::string>(
                  names,
                  [&number, name = LongName(names), kind](const std::string& text) {
                    number = {text, ParseNumber(name, text, kind)};
                  },
                  description)
              ->type_name("X");
}

CLI::Option& AddConfidence(CLI::App& command, const std::string& description,
                           WrittenNumber& level) {
  return *AddWrittenNumber(command, "--confidence", description, NumberKind::kProbability, level)
              .type_name("P");
}

void AddParameter(CLI::App& command, const NumberParameter& parameter,
                  const std::function<void(Extended)>& set) {
  const std::string aliases = parameter.aliases;
  const std::string names = parameter.option + (aliases.empty() ? "" : ',' + aliases);
  const std::string reciprocal = parameter.reciprocal;
  if (reciprocal.empty()) {
    AddNumber(command, names, parameter.Description(), parameter.kind, set)
        .required(!parameter.has_default);
    return;
  }
  CLI::Option_group& group = *command.add_option_group(
      parameter.name, parameter.has_default ? "At most one of" : "One of");
  group.require_option(parameter.has_default ? 0 : 1, 1);
  AddNumber(group, names, parameter.Description(), parameter.kind, set);
  AddNumber(group, reciprocal, std::string("1 / the ") + parameter.name + ", instead of it",
            parameter.kind, [=](Extended value) {
              const char* const wrong = WhatIsWrong(1 / value, parameter.kind);
              if (wrong != nullptr)
                throw CLI::ValidationError(reciprocal, "1 / " + Float2Str(value) + ' ' + wrong);
              set(1 / value);
            });
}

InputError Refusal(const std::string& name, const EMathError& error, const std::string& remark) {
  const bool overflow = dynamic_cast<const EOverflow*>(&error) != nullptr;
  const std::string what =
      overflow ? "the result or an intermediate result is beyond the range of extended precision"
               : error.what();
  return {overflow ? InputFault::kOutOfRange : InputFault::kNoResult, name, what + remark};
}

}  // namespace qorvex::apps
