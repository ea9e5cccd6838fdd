#pragma once

/// @file
/// Random arguments for tests of the elementary functions, region by region.

#include <functional>
#include <random>
#include <vector>

#include "qorvex/base/element_types.h"

namespace qorvex::testing {

using Engine = std::mt19937_64;

/// The arguments of a function; y belongs to the power alone.
struct Arguments {
  Extended x = 0;
  Extended y = 0;
};

/// Where arguments come from, and what a result may be off by, in units of its last place.
struct ArgumentRegion {
  const char* name;
  std::function<Arguments(Engine&)> draw;
  Extended allowed = 0.5L;
};

/// The sign of what is drawn.
enum class Sign { kPlus, kMinus, kEither };

/// The ends of the format, as exponents of the leading bit.
inline constexpr int kLeastExponent = -16445;
inline constexpr int kGreatestExponent = 16383;

using Draw = std::function<Arguments(Engine&)>;

/// A random significand, times 2 to a power from `least` to `greatest`.
[[nodiscard]] Draw Exponents(int least, int greatest, Sign sign = Sign::kEither);
/// Uniform between two numbers.
[[nodiscard]] Draw Between(Extended lower, Extended upper);
/// Up to 20 leading bits, then only zeros, give or take two units of the last place: both sides of
/// the ends of table intervals.
[[nodiscard]] Draw FewBits(int least, int greatest, Sign sign = Sign::kEither);
/// 1 over the like.
[[nodiscard]] Draw ReciprocalsOfFewBits(int least, int greatest, Sign sign = Sign::kEither);
/// The number times 1 +- 2^-u for u from 1 to 64.
[[nodiscard]] Draw Near(Extended number);
/// The nearest numbers to multiples of a step, up to 2^bits of them, give or take two units.
[[nodiscard]] Draw Multiples(Extended step, int bits, Sign sign = Sign::kEither);
/// The nearest numbers to powers of a base, give or take two units.
[[nodiscard]] Draw PowersOf(Extended base, int least, int greatest);

/// The regions of x^y.
[[nodiscard]] std::vector<ArgumentRegion> RegionsOfPow();

}  // namespace qorvex::testing
