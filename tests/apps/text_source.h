#pragma once

#include <algorithm>
#include <string>

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

}  // namespace qorvex::cli
