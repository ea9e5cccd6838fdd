#pragma once

#include <cstdint>
#include <type_traits>

namespace qorvex {

// The bits of an AVX-512 mask. GCC 12 may keep a mask in memory, where it writes only the bytes of
// the mask but reads four. The barrier makes it extend the mask in a register.
template <class Mask>
[[gnu::always_inline]] inline std::uint32_t MaskBits(Mask mask) noexcept {
  static_assert(std::is_unsigned_v<Mask> && sizeof(Mask) < sizeof(std::uint32_t));
  asm("" : "+r"(mask));
  return mask;
}

}  // namespace qorvex
