#pragma once

/// @file
/// Messages of errors in the language of the user.

#include <QString>
#include <exception>

namespace qorvex::gallery {

/// The message of an error in a file, such as "data.csv:3: column 2 (size): "x" is not a number",
/// in the language of the user; the name of the file and the texts from it stay as they are. A
/// message without a translation is returned as it is.
[[nodiscard]] QString ErrorText(const std::exception& error);

}  // namespace qorvex::gallery
