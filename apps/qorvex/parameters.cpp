#include "apps/qorvex/parameters.h"

#include <algorithm>
#include <cstddef>
#include <vector>

#include "qorvex/base/text.h"

namespace qorvex::apps {

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

CLI::Option& AddWrittenNumber(CLI::App& command, const std::string& option,
                              const std::string& description, NumberKind kind,
                              WrittenNumber& number) {
  return *command
              .add_option_function<std::string>(
                  option,
                  [&number, option, kind](const std::string& text) {
                    number = {text, ParseNumber(option, text, kind)};
                  },
                  description)
              ->type_name("X");
}

CLI::Option& AddConfidence(CLI::App& command, const std::string& description,
                           WrittenNumber& level) {
  return *AddWrittenNumber(command, "--confidence", description, NumberKind::kProbability, level)
              .type_name("P");
}

InputError Refusal(const std::string& name, const EMathError& error, const std::string& remark) {
  const bool overflow = dynamic_cast<const EOverflow*>(&error) != nullptr;
  const std::string what =
      overflow ? "the result or an intermediate result is beyond the range of extended precision"
               : error.what();
  return {overflow ? InputFault::kOutOfRange : InputFault::kNoResult, name, what + remark};
}

}  // namespace qorvex::apps
