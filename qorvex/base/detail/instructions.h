#pragma once

// The instruction sets that kernels may use, decided in one place.

#include <xmmintrin.h>

#include "qorvex/base/export.h"

namespace qorvex {

// Each level contains the ones before it.
enum class Instructions {
  kBaseline,  // every x86-64 processor
  kAvx2,      // AVX2, FMA, BMI1 and 2, LZCNT, POPCNT, PCLMUL: Intel Haswell, AMD Zen, and later
  kAvx512,    // AVX-512 F, BW, CD, DQ, VL and VBMI2: Intel Ice Lake, AMD Zen 4, and later
};

// Marks a function that may be called only where the level is allowed. An inline function with the
// same mark is inlined into it; x87 loops belong into functions without a mark, where the compiler
// keeps their sums in registers.
#define QORVEX_AVX2 __attribute__((target("avx2,fma,bmi,bmi2,lzcnt,popcnt,pclmul")))
#define QORVEX_AVX512                                 \
  __attribute__((                                     \
      target("avx2,fma,bmi,bmi2,lzcnt,popcnt,pclmul," \
             "avx512f,avx512bw,avx512cd,avx512dq,avx512vl,avx512vbmi2")))

// The highest level that the processor and the system support, and the environment variable
// QORVEX_CPU allows: baseline, avx2, or anything else for no restriction. Decided at the first
// call.
[[nodiscard]] QORVEX_EXPORT Instructions BestInstructions() noexcept;

// Whether this thread computes doubles as usual: rounds to nearest and keeps subnormal numbers.
// Programs linked with -ffast-math do not. Kernels that replace x87 arithmetic by doubles have to
// ask, because x87 arithmetic does not depend on it.
[[nodiscard]] inline bool DoublesAreUsual() noexcept {
  constexpr unsigned kFlushToZero = 0x8000;
  constexpr unsigned kRounding = 0x6000;
  constexpr unsigned kSubnormalsAreZero = 0x0040;
  return (_mm_getcsr() & (kFlushToZero | kRounding | kSubnormalsAreZero)) == 0;
}

}  // namespace qorvex
