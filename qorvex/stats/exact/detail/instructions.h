#pragma once

namespace qorvex::exact::detail {

// Which instructions a kernel may use.
enum class Instructions { kBaseline, kAvx2 };

// Marks a function that may be called only where kAvx2 is allowed.
#define QORVEX_AVX2 __attribute__((target("avx2")))

// The best that this processor, and the system, support.
inline Instructions BestInstructions() noexcept {
  static const Instructions best =
      __builtin_cpu_supports("avx2") != 0 ? Instructions::kAvx2 : Instructions::kBaseline;
  return best;
}

}  // namespace qorvex::exact::detail
