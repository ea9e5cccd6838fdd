#include "qorvex/random/fill.h"

#include <algorithm>

#include "qorvex/base/elementary/functions.h"
#include "qorvex/random/detail/limits.h"
#include "qorvex/random/gamma.h"
#include "qorvex/random/normal.h"

namespace qorvex::inline QorvexRandom {

namespace {

void TurnIntoExponential(std::span<Extended> uniforms) {
  Log(uniforms, uniforms);
  for (Extended& x : uniforms) x = -x;
}

}  // namespace

void FillUniform(std::span<Extended> variates, UniformSource source) {
  for (Extended& x : variates) x = source();
}

void FillNormal(std::span<Extended> variates, UniformSource source) {
  for (Extended& x : variates) x = Random_Normal(source);
}

void FillNormal(std::span<Extended> variates, Extended mean, Extended std_dev,
                UniformSource source) {
  for (Extended& x : variates) x = Random_Normal(mean, std_dev, source);
}

void FillExponential(std::span<Extended> variates, UniformSource source) {
  // Logarithms over a range take three quarters of the time.
  constexpr std::size_t most = 256;
  while (!variates.empty()) {
    const auto block = variates.first(std::min(most, variates.size()));
    std::size_t drawn = 0;
    try {
      for (; drawn < block.size(); ++drawn) block[drawn] = detail::PositiveUniform(source);
    } catch (...) {
      TurnIntoExponential(block.first(drawn));
      throw;
    }
    TurnIntoExponential(block);
    variates = variates.subspan(block.size());
  }
}

void FillGamma(std::span<Extended> variates, Extended shape, UniformSource source) {
  Fill(variates, GammaSampler(shape), source);
}

}  // namespace qorvex::inline QorvexRandom
