#include "base/elementary/argument_regions.h"

#include <cmath>

namespace qorvex::testing {

namespace {

int Integer(Engine& engine, int least, int greatest) {
  return std::uniform_int_distribution<int>(least, greatest)(engine);
}

Extended Signed(Engine& engine, Extended x, Sign sign) {
  const bool minus = sign == Sign::kMinus || (sign == Sign::kEither && engine() % 2 == 0);
  return minus ? -x : x;
}

// In [1, 2).
Extended Significand(Engine& engine) {
  return static_cast<Extended>(engine() | std::uint64_t{1} << 63) * 0x1p-63L;
}

// In [0, 1).
Extended Uniform(Engine& engine) {
  return static_cast<Extended>(engine()) * 0x1p-64L;
}

Extended WithFewBits(Engine& engine, int least, int greatest) {
  const int zeros = 64 - Integer(engine, 1, 20);
  const std::uint64_t significand = (engine() | std::uint64_t{1} << 63) >> zeros;
  return std::ldexp(static_cast<Extended>(significand),
                    Integer(engine, least, greatest) + zeros - 63);
}

Extended Nudged(Engine& engine, Extended x) {
  const int steps = Integer(engine, -2, 2);
  for (int i = 0; i < std::abs(steps); ++i)
    x = std::nextafter(x, static_cast<Extended>(steps) * HUGE_VALL);
  return x;
}

// The exponent y with x^y near 2^e.
Extended PowerTowards(Extended x, Extended e) {
  return e / std::log2(std::fabs(x));
}

}  // namespace

Draw Exponents(int least, int greatest, Sign sign) {
  return [=](Engine& engine) -> Arguments {
    const Extended x = std::ldexp(Significand(engine), Integer(engine, least, greatest));
    return {Signed(engine, x, sign)};
  };
}

Draw Between(Extended lower, Extended upper) {
  return [=](Engine& engine) -> Arguments { return {lower + (upper - lower) * Uniform(engine)}; };
}

Draw FewBits(int least, int greatest, Sign sign) {
  return [=](Engine& engine) -> Arguments {
    return {Signed(engine, Nudged(engine, WithFewBits(engine, least, greatest)), sign)};
  };
}

Draw ReciprocalsOfFewBits(int least, int greatest, Sign sign) {
  return [=](Engine& engine) -> Arguments {
    return {Signed(engine, Nudged(engine, 1 / WithFewBits(engine, least, greatest)), sign)};
  };
}

Draw Near(Extended number) {
  return [=](Engine& engine) -> Arguments {
    const Extended offset = std::ldexp(Significand(engine), -Integer(engine, 1, 64));
    return {number + number * Signed(engine, offset, Sign::kEither)};
  };
}

Draw Multiples(Extended step, int bits, Sign sign) {
  return [=](Engine& engine) -> Arguments {
    const std::uint64_t k = engine() >> Integer(engine, 64 - bits, 63);
    return {Signed(engine, Nudged(engine, step * static_cast<Extended>(k)), sign)};
  };
}

Draw PowersOf(Extended base, int least, int greatest) {
  return [=](Engine& engine) -> Arguments {
    return {
        Nudged(engine, std::pow(base, static_cast<Extended>(Integer(engine, least, greatest))))};
  };
}

std::vector<ArgumentRegion> RegionsOfPow() {
  const auto towards = [](Draw base, Extended lower, Extended upper) -> Draw {
    return [=](Engine& engine) -> Arguments {
      const Extended x = base(engine).x;
      return {x, PowerTowards(x, Between(lower, upper)(engine).x)};
    };
  };
  const Draw any = Exponents(kLeastExponent, kGreatestExponent, Sign::kPlus);
  return {
      {"x 2^+-30, y 2^-6 to 2^8",
       [](Engine& engine) -> Arguments {
         return {Exponents(-30, 30, Sign::kPlus)(engine).x, Exponents(-6, 8)(engine).x};
       }},
      {"any x, any result", towards(any, -16446, 16384)},
      {"x near 1, any result", towards(Near(1), -16446, 16384)},
      {"subnormal results", towards(any, -16447, -16381)},
      {"results about the overflow", towards(any, 16383, 16385)},
      {"results near 1",
       [any](Engine& engine) -> Arguments {
         return {any(engine).x, Exponents(-90, -14)(engine).x};
       }},
      {"x of few bits, either sign; whole y",
       [](Engine& engine) -> Arguments {
         return {FewBits(-8, 8)(engine).x, static_cast<Extended>(Integer(engine, -45, 45))};
       }},
      {"squares and fourth powers; y of few bits",
       [](Engine& engine) -> Arguments {
         const Extended root = WithFewBits(engine, -20, 20);
         const Extended x = engine() % 2 == 0 ? root * root : root * root * root * root;
         return {Nudged(engine, x),
                 Signed(engine,
                        std::ldexp(static_cast<Extended>(engine() >> 61), -Integer(engine, 0, 3)),
                        Sign::kEither)};
       }},
      {"negative x, large whole y",
       [](Engine& engine) -> Arguments {
         return {-1 - std::ldexp(Significand(engine), -Integer(engine, 20, 60)),
                 std::trunc(Exponents(10, 40)(engine).x)};
       }},
      {"any x, any y",
       [any](Engine& engine) -> Arguments {
         return {any(engine).x, Exponents(kLeastExponent, kGreatestExponent)(engine).x};
       }},
  };
}

}  // namespace qorvex::testing
