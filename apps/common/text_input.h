#pragma once

/// @file
/// Where text comes from.

#include <cstddef>
#include <functional>
#include <string>

namespace qorvex::apps {

/// A text to read once, from front to back.
struct TextInput {
  /// The name in messages.
  std::string name;
  /// Fills the front of the buffer and gives the number of bytes; 0 only at the end of the text.
  /// Raises InputError.
  std::function<std::size_t(char* buffer, std::size_t size)> read;
};

/// The name in messages of the file at the path; "-" is standard input.
[[nodiscard]] std::string InputName(const std::string& path);

/// The file at the path, or standard input for "-". Raises InputError when it cannot be opened.
[[nodiscard]] TextInput OpenTextInput(const std::string& path);

}  // namespace qorvex::apps
