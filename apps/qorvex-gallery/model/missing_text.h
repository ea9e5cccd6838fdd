#pragma once

/// @file
/// Words for missing values as the user types them.

#include <QString>

#include "apps/common/table_format.h"

namespace qorvex::gallery {

/// @{
/// The words as a list with commas.
[[nodiscard]] QString TextOfWords(const apps::MissingWords& words);
[[nodiscard]] apps::MissingWords WordsIn(const QString& text);
/// @}

}  // namespace qorvex::gallery
