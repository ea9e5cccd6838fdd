#pragma once

namespace qorvex::exact::detail {

// Marks a function that uses AVX2. Programs call it only where UsesAvx2() is true.
#define QORVEX_AVX2 __attribute__((target("avx2")))

// Whether this processor, and the system, support AVX2.
inline bool UsesAvx2() noexcept {
  static const bool supported = __builtin_cpu_supports("avx2") != 0;
  return supported;
}

}  // namespace qorvex::exact::detail
