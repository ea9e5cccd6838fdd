#pragma once

#include <algorithm>
#include <string>
#include <utility>

#include "apps/common/input_error.h"
#include "apps/common/text_input.h"

namespace qorvex::apps {

/// An input that provides a text in pieces of three bytes.
inline TextInput SourceOf(std::string text) {
  return {"data.csv",
          [text = std::move(text), at = std::size_t{0}](char* buffer, std::size_t size) mutable {
            const std::size_t count = text.copy(buffer, std::min<std::size_t>(size, 3), at);
            at += count;
            return count;
          }};
}

/// A text, the expected result of reading it, as text, and the options of the reader.
template <class Options>
struct ReadingCase {
  std::string text;
  std::string result;
  Options options = {};
};

/// The text that read() returns, or the text of its error.
template <class Read>
std::string ResultOrError(Read read) {
  try {
    return read();
  } catch (const InputError& error) {
    return error.what();
  }
}

}  // namespace qorvex::apps
