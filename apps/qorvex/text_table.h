#pragma once

/// @file
/// Tables in text, aligned by blanks.

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace qorvex::apps {

/// The number of characters in a text in UTF-8.
[[nodiscard]] std::size_t CharacterCount(std::string_view text);

/// A name on one line of at most 20 characters, cut at an ellipsis.
[[nodiscard]] std::string ShortName(const std::string& name);

/// Rows in columns as wide as their texts, two blanks apart. The flags say which columns start on
/// the left; the others end on the right. A row of one cell does not count for the width.
[[nodiscard]] std::string AlignedRows(const std::vector<std::vector<std::string>>& rows,
                                      const std::vector<bool>& on_the_left);

}  // namespace qorvex::apps
