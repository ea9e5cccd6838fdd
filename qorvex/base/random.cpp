#include "qorvex/base/random.h"

#include <random>

namespace qorvex::inline QorvexGlobals {

namespace {

std::mt19937_64& Generator() noexcept {
  static std::mt19937_64 generator;
  return generator;
}

}  // namespace

Extended Random() noexcept {
  // Converting a signed integer and adding 0.5 avoids a branch that half of all values would take.
  const auto centred = static_cast<std::int64_t>(Generator()() ^ std::uint64_t{1} << 63);
  return static_cast<Extended>(centred) * 0x1p-64L + 0.5L;
}

void SetRandSeed(std::uint64_t seed) noexcept {
  Generator().seed(seed);
}

void Randomize() {
  std::random_device device;
  const std::uint64_t high = device();
  SetRandSeed(high << 32 | device());
}

}  // namespace qorvex::inline QorvexGlobals
