#include "apps/qorvex/parameters.h"

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

InputError Refusal(const std::string& name, const EMathError& error, const std::string& remark) {
  const bool overflow = dynamic_cast<const EOverflow*>(&error) != nullptr;
  const std::string what =
      overflow ? "the result or an intermediate result is beyond the range of extended precision"
               : error.what();
  return {overflow ? InputFault::kOutOfRange : InputFault::kNoResult, name, what + remark};
}

}  // namespace qorvex::apps
