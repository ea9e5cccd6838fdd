#pragma once

/// @file
/// Light and dark.

namespace qorvex::gallery {

enum class Appearance { kSystem, kLight, kDark };

/// Gives the application the colours. The system's are those that it had at the first call.
void SetAppearance(Appearance appearance);

}  // namespace qorvex::gallery
