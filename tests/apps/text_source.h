#pragma once

#include "apps/qorvex/text_input.h"

#include <algorithm>
#include <cstring>
#include <string>
#include <utility>

namespace qorvex::cli {

/// An input that gives a text, at most `most` bytes at a time.
inline TextInput SourceOf(std::string text, std::size_t most = std::string::npos) {
  return {"data.csv", [text = std::move(text), most, at = std::size_t{0}](
                          char* buffer, std::size_t size) mutable {
            const std::size_t count = std::min({size, most, text.size() - at});
            std::memcpy(buffer, text.data() + at, count);
            at += count;
            return count;
          }};
}

}  // namespace qorvex::cli
