#pragma once

/// @file
/// The words that someone may have meant who typed another one.

#include <string>
#include <string_view>
#include <vector>

namespace qorvex::apps {

/// Those of the words that are nearest to the one that was typed, in their order, each once; empty
/// if none is near. Case, hyphens and underscores do not count.
///
/// - A word that begins with the typed one, or is its beginning, is nearest.
/// - Otherwise the number of letters inserted, deleted, replaced or exchanged with their neighbours
///   counts, up to a third of those typed (Damerau 1964, A technique for computer detection and
///   correction of spelling errors). A word that contains the typed one is as near as one change.
[[nodiscard]] std::vector<std::string> SimilarWords(std::string_view typed,
                                                    const std::vector<std::string>& words);

/// "a", "a or b", "a, b or c".
[[nodiscard]] std::string Alternatives(const std::vector<std::string>& words);

}  // namespace qorvex::apps
