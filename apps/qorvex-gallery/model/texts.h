#pragma once

/// @file
/// Numbers and names as texts of the pages.

#include <QString>
#include <optional>
#include <string>

#include "qorvex/base/element_types.h"

namespace qorvex::gallery {

/// A number with all its digits in the format of the locale, without group separators.
[[nodiscard]] QString ExactText(Extended value);

/// A number that the library has written, in the format of the locale.
[[nodiscard]] QString LocalText(const std::string& number);

/// What stands for a figure that does not exist.
[[nodiscard]] QString Dash();

/// ExactText, or a dash without a value.
[[nodiscard]] QString ExactTextOrDash(const std::optional<Extended>& value);

/// The text with a capital first letter.
[[nodiscard]] QString Title(const QString& text);

}  // namespace qorvex::gallery
