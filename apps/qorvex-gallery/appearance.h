#pragma once

/// @file
/// The light and the dark palette.

#include <QPalette>

namespace qorvex::gallery {

enum class Appearance { kSystem, kLight, kDark };

/// The light palette of the program and of all pictures.
[[nodiscard]] QPalette LightPalette();

/// The dark palette of the program and of all pictures.
[[nodiscard]] QPalette DarkPalette();

/// Sets the palette of the application. kSystem is the palette that it had at the first call.
void SetAppearance(Appearance appearance);

}  // namespace qorvex::gallery
