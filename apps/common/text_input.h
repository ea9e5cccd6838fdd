#pragma once

/// @file
/// Sources of text.

#include <cstddef>
#include <functional>
#include <string>

namespace qorvex::apps {

/// A text that is read once, from start to end.
struct TextInput {
  /// The name in messages.
  std::string name;
  /// Reads bytes into the buffer and returns how many; 0 only at the end of the text. Throws
  /// InputError.
  std::function<std::size_t(char* buffer, std::size_t size)> read;
};

/// The name of a file in messages; "-" is standard input.
[[nodiscard]] std::string InputName(const std::string& path);

/// Opens a file, or standard input for "-". Throws InputError if it cannot be opened.
[[nodiscard]] TextInput OpenTextInput(const std::string& path);

}  // namespace qorvex::apps
