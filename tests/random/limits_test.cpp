// What variates refuse, and where they end.

#include <cstdint>
#include <initializer_list>
#include <limits>
#include <string>
#include <vector>

#include "qorvex/random/QorvexRandom.h"
#include "random/scripted_source.h"
#include "support/random_vectors.h"
#include "support/test.h"

namespace qorvex {
namespace {

using testing::ConstantSource;
using testing::ScriptedSource;

// Nothing may be drawn before the parameters are known to be good.
Extended NoDraw() {
  ADD_FAILURE() << "drawn";
  return 0.5L;
}

TEST(Limits, ParametersAreCheckedBeforeAnyDraw) {
  EXPECT_MATH_ERROR(Random_ChiSq(0, NoDraw), rsInvalidShape);
  EXPECT_MATH_ERROR(Random_T(0, NoDraw), rsInvalidValue);
  for (const Extended bad : {0.0L, -1.0L, -kInfinity, kNaN}) {
    EXPECT_MATH_ERROR(Random_Gamma(bad, NoDraw), rsInvalidShape);
    EXPECT_MATH_ERROR(Random_Beta(bad, 1, NoDraw), rsInvalidValue);
    EXPECT_MATH_ERROR(Random_Beta(1, bad, NoDraw), rsInvalidValue);
    EXPECT_MATH_ERROR(Random_LogNormal(bad, bad, NoDraw), rsInvalidMean);
    EXPECT_MATH_ERROR(Random_LogNormal(1, bad, NoDraw), rsInvalidStdDev);
    EXPECT_MATH_ERROR(Random_Inv_Gauss(bad, 1, NoDraw), rsInvalidValue);
    EXPECT_MATH_ERROR(Random_Neg_Binomial(bad, 0.5L, NoDraw), rsInvalidValue);
    EXPECT_MATH_ERROR(Random_Neg_Binomial(2, bad, NoDraw), rsInvalidValue);
  }
  for (const Extended bad : {-1.0L, -kInfinity, kNaN}) {
    EXPECT_MATH_ERROR(Random_Inv_Gauss(1, bad, NoDraw), rsInvalidValue);
    EXPECT_MATH_ERROR(Random_von_Mises(bad, NoDraw), rsInvalidValue);
    EXPECT_MATH_ERROR(Random_Poisson(bad, NoDraw), rsInvalidValue);
    EXPECT_MATH_ERROR(Random_Binomial1(5, bad, NoDraw), rsInvalidValue);
    EXPECT_MATH_ERROR(Random_Binomial2(5, bad, NoDraw), rsInvalidValue);
  }
  EXPECT_MATH_ERROR(Random_Gamma(4.9e-324L, NoDraw), rsShapeTooSmall);
  EXPECT_MATH_ERROR(Random_Weibull(0, NoDraw), rsInvalidValue);
  EXPECT_MATH_ERROR(Random_Weibull(-5.0e-324L, NoDraw), rsInvalidValue);
  EXPECT_MATH_ERROR(Random_von_Mises(10, NoDraw), rsInvalidValue);
  EXPECT_MATH_ERROR(Random_von_Mises(kInfinity, NoDraw), rsInvalidValue);
  EXPECT_MATH_ERROR(Random_Poisson(kInfinity, NoDraw), rsInvalidValue);
  EXPECT_MATH_ERROR(Random_Binomial1(5, 1.5L, NoDraw), rsInvalidValue);
  EXPECT_MATH_ERROR(Random_Binomial1(-1, 0.5L, NoDraw), rsInvalidValue);
  EXPECT_MATH_ERROR(Random_Binomial2(5, 1.5L, NoDraw), rsInvalidValue);
  EXPECT_MATH_ERROR(Random_Binomial2(-1, 0.5L, NoDraw), rsInvalidValue);
  EXPECT_MATH_ERROR(Random_Neg_Binomial(2, 1, NoDraw), rsInvalidValue);
  // (1 - p)^sk would be 2^-1100; too many draws, and 2.5e7 steps.
  EXPECT_MATH_ERROR(Random_Neg_Binomial(1100, 0.5L, NoDraw), rsInvalidValue);
  EXPECT_MATH_ERROR(Random_Neg_Binomial(2.1e7L, 0.75L, NoDraw), rsInvalidValue);
  EXPECT_MATH_ERROR(Random_Neg_Binomial(0.5L, 1 - 2e-8L, NoDraw), rsInvalidValue);
  // Modes that rounding has moved, or left nothing of, and too many attempts: 3e9 for (1e-10, 0).
  EXPECT_MATH_ERROR(Random_Inv_Gauss(4e-7L, 1000, NoDraw), rsInvalidValue);
  EXPECT_MATH_ERROR(Random_Inv_Gauss(0.36385554075241088867L, 34480642, NoDraw), rsInvalidValue);
  EXPECT_MATH_ERROR(Random_Inv_Gauss(1e-12L, 1, NoDraw), rsInvalidValue);
  EXPECT_MATH_ERROR(Random_Inv_Gauss(1e-10L, 0, NoDraw), rsInvalidValue);
  EXPECT_MATH_ERROR(Random_Inv_Gauss(1512287331.5694793626L, 71147053822427.973824L, NoDraw),
                    rsInvalidValue);
  EXPECT_GT(Random_Inv_Gauss(6e-9L, 0, ScriptedSource({1e-8L, 0.5L})), 0);
  EXPECT_MATH_ERROR(Random_Inv_Gauss(1, 3.3e153L, NoDraw), rsInvalidValue);
  EXPECT_MATH_ERROR(Random_Inv_Gauss(2e15L, 1, NoDraw), rsInvalidValue);
  EXPECT_MATH_ERROR(Random_Beta(1e18L, 1e18L, NoDraw), rsInvalidValue);
  EXPECT_MATH_ERROR(Random_Beta(1, 1e-4940L, NoDraw), rsInvalidValue);
}

TEST(Limits, ErrorsOfTheArithmetic) {
  EXPECT_ERROR(Random_LogNormal(1, 0.5L, NoDraw), EInvalidOp, rsInvalidOp);
  EXPECT_ERROR(Random_LogNormal(1, 1e-3000L, NoDraw), EInvalidOp, rsInvalidOp);
  EXPECT_ERROR(Random_LogNormal(1, 1e3000L, NoDraw), EOverflow, rsOverflow);
  EXPECT_ERROR(Random_LogNormal(1e4932L, 5, ScriptedSource({0.5L, 0.75L})), EOverflow, rsOverflow);
  EXPECT_ERROR(Random_Weibull(1e-300L, ScriptedSource({0.25L})), EOverflow, rsOverflow);
  EXPECT_EQ(Random_Weibull(1e-300L, ScriptedSource({0.5L})), 0);
  // A divisor of 0 is never accepted; its logarithm is needed first.
  EXPECT_ERROR(Random_Normal(ScriptedSource({0, 0.5L})), EZeroDivide, rsZeroDivide);
  EXPECT_MATH_ERROR(Random_Normal(ScriptedSource({1e-330L, 0.5L})), rsDivideByZero);
}

TEST(Limits, MultivariateNormalChangesNothingOnErrors) {
  TQorFloatVector factor = {7};
  TQorFloatVector variate = {8};
  std::int32_t status = 9;
  const auto draw = [&](const TQorFloatVector& mean, const TQorFloatVector& covariance,
                        UniformSource source = NoDraw) {
    Random_MVNorm(mean, covariance, factor, variate, status, source);
  };
  EXPECT_MATH_ERROR(draw({}, {1}), rsVectorEmpty);
  EXPECT_MATH_ERROR(draw({1, 2}, {1, 0}), rsVectorTooSmall);
  EXPECT_THROW(draw({1}, {1}, ScriptedSource({0.5L})), std::out_of_range);
  EXPECT_EQ(factor, TQorFloatVector{7});
  EXPECT_EQ(variate, TQorFloatVector{8});
  EXPECT_EQ(status, 9);

  // A matrix that is not positive definite is a result.
  for (const TQorFloatVector& covariance :
       {TQorFloatVector{0, 0, 1}, {-1, 0, 1}, {1, 1, 1}, {1, 2, 1}, {kNaN, 0, 1}}) {
    status = 9;
    draw({1, 2}, covariance);
    EXPECT_EQ(status, 1);
    EXPECT_EQ(factor.size(), 3U);
    EXPECT_EQ(variate, TQorFloatVector{8});
  }
}

// The results may be the arguments, whose buffers other handles share.
TEST(Limits, MultivariateNormalMayOverwriteItsArguments) {
  TQorFloatVector mean = {1, 2};
  TQorFloatVector covariance = {4, 0, 9};
  const TQorFloatVector shared = mean;
  std::int32_t status = 9;
  Random_MVNorm(mean, covariance, covariance, mean, status, [] { return 0.5L; });
  EXPECT_EQ(covariance, (TQorFloatVector{2, 0, 3}));
  EXPECT_EQ(mean, (TQorFloatVector{1, 2}));
  EXPECT_FALSE(shared.SharesBufferWith(mean));
}

// Returns or raises for every parameter, with a source that moves: a call that does not end is cut
// off by the limit of time of the test.
TEST(Limits, EveryCallEnds) {
  testing::Engine engine(20261121);
  const auto moving = [&engine] { return static_cast<Extended>(engine()) * 0x1p-64L; };
  const auto ends = [](auto call) {
    try {
      call();
    } catch (const EMathError&) {
    }
  };
  using Numbers = std::numeric_limits<Extended>;
  const Extended extremes[] = {-kInfinity,
                               -1,
                               0,
                               Numbers::denorm_min(),
                               Numbers::min(),
                               5.1e-324L,
                               1e-30L,
                               1e-10L,
                               0.4L,
                               0.75L,
                               1 - 0x1p-64L,
                               1,
                               1 + 0x1p-63L,
                               9.99L,
                               1e4L,
                               1e7L,
                               1e16L,
                               1e30L,
                               1e1000L,
                               Numbers::max(),
                               kInfinity,
                               kNaN};
  for (const Extended a : extremes) {
    ends([&] { return Random_Gamma(a, moving); });
    ends([&] { return Random_Weibull(a, moving); });
    ends([&] { return Random_von_Mises(a, moving); });
    ends([&] { return Random_Poisson(a, moving); });
    for (const Extended b : extremes) {
      ends([&] { return Random_Normal(a, b, moving); });
      ends([&] { return Random_LogNormal(a, b, moving); });
      ends([&] { return Random_Beta(a, b, moving); });
      ends([&] { return Random_Inv_Gauss(a, b, moving); });
      ends([&] { return Random_Neg_Binomial(a, b, moving); });
    }
    for (const std::int32_t n : {0, 1, 1000, std::numeric_limits<std::int32_t>::max()})
      ends([&] { return Random_Binomial1(n, a, moving); });
    for (const std::int64_t n : {std::int64_t{100}, std::numeric_limits<std::int64_t>::max()})
      ends([&] { return Random_Binomial2(n, a, moving); });
  }
  ends([&] { return Random_T(std::numeric_limits<std::int32_t>::max(), moving); });
  ends([&] { return Random_ChiSq(std::numeric_limits<std::int32_t>::max(), moving); });
}

// On which of 0, 1/2, 1 - 2^-64 and NaN a call does not return, as the routines' comments say.
TEST(Limits, SourcesThatAreStuck) {
  const auto stuck_on = [](auto variate) {
    std::string values;
    const auto try_value = [&](const char* name, Extended value) {
      ConstantSource source(value);
      try {
        static_cast<void>(variate(UniformSource(source)));
      } catch (const ConstantSource::AskedTooOften&) {
        values += name;
      }
    };
    try_value("0 ", 0);
    try_value("1/2 ", 0.5L);
    try_value("1- ", 1 - 0x1p-64L);
    try_value("NaN ", kNaN);
    return values;
  };
  using S = UniformSource;
  const std::string most = "0 1- NaN ";
  EXPECT_EQ(stuck_on([](S s) { return Random_Normal(s); }), most);
  EXPECT_EQ(stuck_on([](S s) { return Random_Exponential(s); }), "0 NaN ");
  EXPECT_EQ(stuck_on([](S s) { return Random_Gamma(3, s); }), most);
  EXPECT_EQ(stuck_on([](S s) { return Random_Gamma(0.5L, s); }), "1- ");
  EXPECT_EQ(stuck_on([](S s) { return Random_Weibull(3, s); }), "0 NaN ");
  EXPECT_EQ(stuck_on([](S s) { return Random_Cauchy(s); }), "0 1/2 1- NaN ");
  EXPECT_EQ(stuck_on([](S s) { return Random_T(5, s); }), most);
  EXPECT_EQ(stuck_on([](S s) { return Random_LogNormal(2, 3, s); }), most);
  EXPECT_EQ(stuck_on([](S s) { return Random_Beta(0.5L, 0.5L, s); }), most);
  EXPECT_EQ(stuck_on([](S s) { return Random_Beta(2, 3, s); }), most);
  EXPECT_EQ(stuck_on([](S s) { return Random_Inv_Gauss(2, 0.5L, s); }), most);
  EXPECT_EQ(stuck_on([](S s) { return Random_von_Mises(1, s); }), "0 ");
  EXPECT_EQ(stuck_on([](S s) { return Random_Binomial1(10, 0.3L, s); }), "");
  EXPECT_EQ(stuck_on([](S s) { return Random_Binomial2(10, 0.3L, s); }), "NaN ");
  EXPECT_EQ(stuck_on([](S s) { return Random_Binomial2(200, 0.3L, s); }), "1- NaN ");
  EXPECT_EQ(stuck_on([](S s) { return Random_Neg_Binomial(3.5L, 0.4L, s); }), "");
  EXPECT_EQ(stuck_on([](S s) { return Random_Neg_Binomial(3.5L, 0.9L, s); }), "0 NaN ");
  EXPECT_EQ(stuck_on([](S s) { return Random_Poisson(3, s); }), "NaN ");
  EXPECT_EQ(stuck_on([](S s) { return Random_Poisson(50, s); }), most);
}

}  // namespace
}  // namespace qorvex
