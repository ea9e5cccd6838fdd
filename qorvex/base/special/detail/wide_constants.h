#pragma once

// Constants and whole numbers in 128 bits.

#include <cstdint>

#include "qorvex/base/elementary/detail/wide.h"

namespace qorvex::special {

using elementary::kOne;
using elementary::Wide;

inline constexpr Wide kHalf{elementary::Join(elementary::kTopBit, 0), -1};
inline constexpr Wide kThree{elementary::Join(elementary::kTopBit | elementary::kTopBit >> 1, 0),
                             1};
inline constexpr Wide kWidePi{elementary::Join(0xc90fdaa22168c234, 0xc4c6628b80dc1cd1), 1};
/// ln(2 pi) / 2
inline constexpr Wide kLnOfRootOf2Pi{elementary::Join(0xeb3f8e4325f5a534, 0x94bc900144192024), -1};
/// sqrt(pi) / 2
inline constexpr Wide kHalfRootOfPi{elementary::Join(0xe2dfc48da77b553c, 0xe1d82906aedc9c20), -1};

constexpr Wide WholeNumber(std::uint64_t n) {
  return elementary::NormalisedWide(n, 127);
}

}  // namespace qorvex::special
