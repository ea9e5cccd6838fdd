#pragma once

#include <array>
#include <cmath>
#include <cstddef>
#include <limits>

#include "support/random_vectors.h"

namespace qorvex::testing {

/// Data that strain a kernel which promises the bits of a plain loop.
enum class Hard {
  kPositive,      // of one magnitude
  kSigned,        // of one magnitude, both signs: sums cancel
  kTies,          // few bits, so that roundings often end in ties
  kHundredths,    // multiples of 0.01
  kIntegers,      // small whole numbers
  kLevel,         // a large number plus noise
  kGrowing,       // magnitudes that grow
  kMixed,         // random signs, exponents over 60 powers of two
  kCancelling,    // pairs of huge opposite numbers between small ones
  kWide,          // any exponent of the type
  kSubnormal,     // subnormal and barely normal
  kHuge,          // near the largest number, so that sums overflow
  kZeros,         // zeros of both signs, now and then a number
  kWithInfinity,  // positive with one infinity
  kWithNaN,       // positive with one NaN
  kLast = kWithNaN
};

/// n elements of a kind of hard data.
template <FloatElement T>
TQorVector<T> HardVector(Engine& engine, std::size_t n, Hard kind) {
  using Limits = std::numeric_limits<T>;
  const auto fraction = [&engine] { return static_cast<Extended>(engine()) * 0x1p-64L; };
  const auto integer = [&engine](int bound) {
    return static_cast<int>(engine() % static_cast<unsigned>(bound));
  };
  const auto sign = [&engine] { return engine() % 2 != 0 ? -1.0L : 1.0L; };
  auto vector = TQorVector<T>::WithLength(n);
  for (std::size_t i = 0; i < n; ++i) {
    const auto value = [&]() -> Extended {
      switch (kind) {
        case Hard::kPositive:
        case Hard::kWithInfinity:
        case Hard::kWithNaN:
          return 1 + fraction();
        case Hard::kSigned:
          return sign() * (1 + fraction());
        case Hard::kTies:
          return sign() * std::ldexp(1.0L + 2 * integer(4), -integer(70));
        case Hard::kHundredths:
          return sign() * integer(100'000) / 100.0L;
        case Hard::kIntegers:
          return integer(2'000) - 500;
        case Hard::kLevel:
          return 1e9L + sign() * fraction();
        case Hard::kGrowing:
          return std::ldexp(1 + fraction(), static_cast<int>(i) % 120);
        case Hard::kMixed:
          return sign() * std::ldexp(1 + fraction(), integer(60) - 30);
        case Hard::kCancelling:
          return i % 8 < 2 ? std::ldexp(i % 8 == 0 ? 1.0L : -1.0L, 80) : sign() * fraction();
        case Hard::kWide:
          return sign() * std::ldexp(1 + fraction(),
                                     Limits::min_exponent +
                                         integer(Limits::max_exponent - Limits::min_exponent));
        case Hard::kSubnormal:
          return sign() * std::ldexp(fraction(), Limits::min_exponent + integer(3));
        case Hard::kHuge:
          return sign() * std::ldexp(1 + fraction(), Limits::max_exponent - 1 - integer(3));
        case Hard::kZeros:
          return integer(20) == 0 ? fraction() : 0 * sign();
      }
      return 0;
    }();
    vector[i] = static_cast<T>(value);
  }
  if (n > 0 && kind == Hard::kWithInfinity) vector[engine() % n] = -Limits::infinity();
  if (n > 0 && kind == Hard::kWithNaN) vector[engine() % n] = Limits::quiet_NaN();
  return vector;
}

/// Calls check(kind) for every kind.
template <class Check>
void ForEachHardKind(Check check) {
  for (int kind = 0; kind <= static_cast<int>(Hard::kLast); ++kind) check(static_cast<Hard>(kind));
}

}  // namespace qorvex::testing
