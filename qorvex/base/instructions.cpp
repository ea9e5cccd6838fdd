#include "qorvex/base/detail/instructions.h"

#include <cstdlib>
#include <string_view>

namespace qorvex {

namespace {

Instructions OfProcessor() noexcept {
  __builtin_cpu_init();
  const bool avx2 = __builtin_cpu_supports("avx2") && __builtin_cpu_supports("fma") &&
                    __builtin_cpu_supports("bmi") && __builtin_cpu_supports("bmi2") &&
                    __builtin_cpu_supports("popcnt") && __builtin_cpu_supports("pclmul");
  if (!avx2) return Instructions::kBaseline;
  const bool avx512 = __builtin_cpu_supports("avx512f") && __builtin_cpu_supports("avx512bw") &&
                      __builtin_cpu_supports("avx512cd") && __builtin_cpu_supports("avx512dq") &&
                      __builtin_cpu_supports("avx512vl") && __builtin_cpu_supports("avx512vbmi2");
  return avx512 ? Instructions::kAvx512 : Instructions::kAvx2;
}

Instructions Decide() noexcept {
  const Instructions best = OfProcessor();
  const char* const variable = std::getenv("QORVEX_CPU");
  const std::string_view most = variable != nullptr ? variable : "";
  if (most == "baseline") return Instructions::kBaseline;
  if (most == "avx2" && best > Instructions::kAvx2) return Instructions::kAvx2;
  return best;
}

}  // namespace

Instructions BestInstructions() noexcept {
  static const Instructions best = Decide();
  return best;
}

}  // namespace qorvex
