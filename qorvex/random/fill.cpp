#include "qorvex/random/fill.h"

#include "qorvex/random/exponential.h"
#include "qorvex/random/gamma.h"
#include "qorvex/random/normal.h"

namespace qorvex::inline QorvexRandom {

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
  for (Extended& x : variates) x = Random_Exponential(source);
}

void FillGamma(std::span<Extended> variates, Extended shape, UniformSource source) {
  Fill(variates, GammaSampler(shape), source);
}

}  // namespace qorvex::inline QorvexRandom
