#pragma once

#include <algorithm>
#include <string>

#include "apps/qorvex/input_error.h"
#include "apps/qorvex/text_input.h"

namespace qorvex::cli {

/// An input that gives a text, three bytes at a time.
inline TextInput SourceOf(std::string text) {
  return {"data.csv",
          [text = std::move(text), at = std::size_t{0}](char* buffer, std::size_t size) mutable {
            const std::size_t count = text.copy(buffer, std::min<std::size_t>(size, 3), at);
            at += count;
            return count;
          }};
}

/// A text, how it is read, and what describe tells of it, or the error.
template <class Options>
struct ReadingCase {
  std::string text;
  std::string result;
  Options options = {};
};

/// What describe() gives, or what the error says that it raises.
template <class Describe>
std::string ResultOrError(Describe describe) {
  try {
    return describe();
  } catch (const InputError& error) {
    return error.what();
  }
}

}  // namespace qorvex::cli
