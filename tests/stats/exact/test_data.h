#pragma once

#include <cmath>
#include <cstddef>
#include <limits>
#include <string>

#include "support/random_vectors.h"

namespace qorvex::testing {

/// Data that reach every way of adding: close together, money, with both signs over twenty orders
/// of magnitude, in two distant groups, over all exponents, subnormal, mostly zero, close
/// together but for a few.
enum class Kind { kClose, kMoney, kMixed, kGroups, kScattered, kTiny, kZeros, kOutliers };
inline constexpr Kind kKinds[] = {Kind::kClose,     Kind::kMoney, Kind::kMixed, Kind::kGroups,
                                  Kind::kScattered, Kind::kTiny,  Kind::kZeros, Kind::kOutliers};

/// A finite value of a kind.
template <FloatElement T>
T RandomValue(Engine& engine, Kind kind) {
  using Limits = std::numeric_limits<T>;
  const auto unit = static_cast<T>(static_cast<Extended>(engine()) * 0x1p-64L);
  const T sign = engine() % 2 == 0 ? T(1) : T(-1);
  const auto power = [&](int exponent) { return std::ldexp(unit * sign, exponent); };
  const auto up_to = [&](int n) { return static_cast<int>(engine() % static_cast<unsigned>(n)); };
  switch (kind) {
    case Kind::kClose:
      return 1 + unit;
    case Kind::kMoney:
      return static_cast<T>(std::floor(unit * 1'000'000) / 100);
    case Kind::kMixed:
      return power(up_to(66));
    case Kind::kGroups:
      return power(sign > 0 ? Limits::max_exponent / 2 : -60);
    case Kind::kScattered:
      return power(up_to(Limits::max_exponent - Limits::min_exponent) + Limits::min_exponent);
    case Kind::kTiny:
      return power(Limits::min_exponent - up_to(Limits::digits));
    case Kind::kOutliers:
      return engine() % 25 == 0 ? power(Limits::min_exponent * 3 / 4) : 1 + unit;
    case Kind::kZeros:
      break;
  }
  return engine() % 8 == 0 ? power(3) : sign * 0;
}

template <FloatElement T>
TQorVector<T> RandomValues(Engine& engine, Kind kind, std::size_t n) {
  auto values = TQorVector<T>::WithLength(n);
  for (T& x : values) x = RandomValue<T>(engine, kind);
  return values;
}

}  // namespace qorvex::testing
