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
  return UniformValue(Generator()());
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
