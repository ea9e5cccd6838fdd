#pragma once

/// @file
/// What is said of distributions and variates, in the language of the user.

#include <QString>

namespace qorvex::gallery {

/// The name of a family of distributions or of a variate: "Student's t" for "student-t".
[[nodiscard]] QString DisplayName(const char* name);

/// The translation of a text of the catalogues, such as a summary, or what is wrong with a number.
[[nodiscard]] QString Translated(const char* text);

}  // namespace qorvex::gallery
