// Parameters that the variates refuse, and calls that must return.

#include <array>
#include <cstdint>
#include <limits>
#include <stdexcept>
#include <string>
#include <vector>

#include "random/scripted_source.h"
#include "random/variates.h"
#include "support/test.h"

namespace qorvex {
namespace {

using testing::Samplers;
using testing::ScriptedSource;
using testing::Variates;

// Parameters are checked before anything is drawn.
Extended NoDraw() {
  ADD_FAILURE() << "drawn";
  return 0.5L;
}

struct Refused {
  const char* variate;
  std::vector<std::array<Extended, 2>> parameters;
  MessageId id = rsInvalidValue;
};

const Refused kRefused[] = {
    {"gamma", {{0}, {-1}, {-kInfinity}, {kNaN}}, rsInvalidShape},
    {"gamma", {{4.9e-324L}}, rsShapeTooSmall},
    {"chi-square", {{0}}, rsInvalidShape},
    {"student-t", {{0}}},
    {"weibull", {{0}, {-5.0e-324L}}},
    {"log-normal", {{0, 0}, {-1, -1}, {-kInfinity, 0}, {kNaN, kNaN}}, rsInvalidMean},
    {"log-normal", {{1, 0}, {1, -1}, {1, -kInfinity}, {1, kNaN}}, rsInvalidStdDev},
    {"beta", {{0, 1}, {-1, 1}, {-kInfinity, 1}, {kNaN, 1}, {1, 0}, {1, -1}, {1, kNaN}}},
    {"beta", {{1, -kInfinity}, {1e18L, 1e18L}, {1, 1e-4940L}}},
    {"von-mises", {{-1}, {-kInfinity}, {kNaN}, {10}, {kInfinity}}},
    {"poisson", {{-1}, {-kInfinity}, {kNaN}, {kInfinity}}},
    {"binomial-1", {{5, -1}, {5, -kInfinity}, {5, kNaN}, {5, 1.5L}, {-1, 0.5L}}},
    {"binomial-2", {{5, -1}, {5, -kInfinity}, {5, kNaN}, {5, 1.5L}, {-1, 0.5L}}},
    {"negative-binomial", {{0, 0.5L}, {-1, 0.5L}, {-kInfinity, 0.5L}, {kNaN, 0.5L}, {2, 0}}},
    {"negative-binomial", {{2, -1}, {2, -kInfinity}, {2, kNaN}, {2, 1}}},
    // (1 - p)^sk would be 2^-1100; then too many draws, and 2.5e7 steps.
    {"negative-binomial", {{1100, 0.5L}, {2.1e7L, 0.75L}, {0.5L, 1 - 2e-8L}}},
    {"inverse-gaussian", {{0, 1}, {-1, 1}, {-kInfinity, 1}, {kNaN, 1}, {1, -1}, {1, kNaN}}},
    {"inverse-gaussian", {{1, -kInfinity}, {1, 3.3e153L}, {2e15L, 1}}},
    // Modes that rounding has moved or cancelled, and too many attempts: 3e9 for (1e-10, 0).
    {"inverse-gaussian", {{4e-7L, 1000}, {0.36385554075241088867L, 34480642}, {1e-12L, 1}}},
    {"inverse-gaussian", {{1e-10L, 0}, {1512287331.5694793626L, 71147053822427.973824L}}},
};

TEST(Limits, ParametersAreCheckedBeforeAnyDraw) {
  for (const auto& [variate, parameters, id] : kRefused) {
    for (const auto& [a, b] : parameters) {
      SCOPED_TRACE(::testing::Message() << variate << ' ' << a << ' ' << b);
      EXPECT_MATH_ERROR(Variates().at(variate)(a, b, NoDraw), id);
      EXPECT_MATH_ERROR(Samplers().at(variate)(a, b), id);
    }
  }
  EXPECT_GT(Random_Inv_Gauss(6e-9L, 0, ScriptedSource({1e-8L, 0.5L})), 0);
}

TEST(Limits, ErrorsOfTheArithmetic) {
  EXPECT_ERROR(Random_LogNormal(1, 0.5L, NoDraw), EInvalidOp, rsInvalidOp);
  EXPECT_ERROR(LogNormalSampler(1, 0.5L), EInvalidOp, rsInvalidOp);
  EXPECT_ERROR(Random_LogNormal(1, 1e-3000L, NoDraw), EInvalidOp, rsInvalidOp);
  EXPECT_ERROR(Random_LogNormal(1, 1e3000L, NoDraw), EOverflow, rsOverflow);
  EXPECT_ERROR(Random_LogNormal(1e4932L, 5, ScriptedSource({0.5L, 0.75L})), EOverflow, rsOverflow);
  EXPECT_ERROR(Random_Weibull(1e-300L, ScriptedSource({0.25L})), EOverflow, rsOverflow);
  // A divisor of 0 is never accepted, because its logarithm is needed first.
  EXPECT_ERROR(Random_Normal(ScriptedSource({0, 0.5L})), EZeroDivide, rsZeroDivide);
  EXPECT_MATH_ERROR(Random_Normal(ScriptedSource({1e-330L, 0.5L})), rsDivideByZero);
}

TEST(Limits, MultivariateNormalChangesNothingOnErrors) {
  TQorFloatVector factor = {7};
  TQorFloatVector variate = {8};
  std::int32_t status = 9;
  const auto draw = [&](VectorView<Extended> mean, VectorView<Extended> covariance,
                        UniformSource source = NoDraw) {
    Random_MVNorm(mean, covariance, factor, variate, status, source);
  };
  EXPECT_MATH_ERROR(draw({}, {1}), rsVectorEmpty);
  EXPECT_MATH_ERROR(draw({1, 2}, {1, 0}), rsVectorTooSmall);
  EXPECT_THROW(draw({1}, {1}, ScriptedSource({0.5L})), std::out_of_range);
  EXPECT_EQ(factor, TQorFloatVector{7});
  EXPECT_EQ(variate, TQorFloatVector{8});
  EXPECT_EQ(status, 9);

  // A matrix that is not positive definite is reported by the status, without an error.
  for (const TQorFloatVector& covariance :
       {TQorFloatVector{0, 0, 1}, {-1, 0, 1}, {1, 1, 1}, {1, 2, 1}, {kNaN, 0, 1}}) {
    status = 9;
    draw({1, 2}, covariance);
    EXPECT_EQ(status, 1);
    EXPECT_EQ(factor.size(), 3U);
    EXPECT_EQ(variate, TQorFloatVector{8});
  }
}

// Outputs may be the same vectors as the arguments, whose buffers other handles share.
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

// Every call returns or raises an error, whatever its parameters. The time limit of the test
// program stops a call that does neither.
TEST(Limits, EveryCallEnds) {
  RandomStream stream(20261121);
  constexpr Extended denormal = std::numeric_limits<Extended>::denorm_min();
  constexpr Extended least = std::numeric_limits<Extended>::min();
  constexpr Extended largest = std::numeric_limits<Extended>::max();
  constexpr Extended below_1 = 1 - 0x1p-64L;
  constexpr Extended above_1 = 1 + 0x1p-63L;
  const Extended extremes[] = {-kInfinity, -1,      0,       denormal,  least,   5.1e-324L,
                               1e-30L,     1e-10L,  0.4L,    0.75L,     below_1, 1,
                               above_1,    9.99L,   1000,    1e4L,      1e7L,    1e16L,
                               1e30L,      1e1000L, largest, kInfinity, kNaN};
  for (const auto& [name, draw] : Variates())
    for (const Extended a : extremes)
      for (const Extended b : extremes) {
        try {
          static_cast<void>(draw(a, b, stream));
        } catch (const EMathError&) {
        }
      }
}

// The constant sources, among 0, 1/2, 1 - 2^-64 and NaN, on which a call never returns: those that
// the routines' comments name.
TEST(Limits, ConstantSourcesOnWhichCallsNeverReturn) {
  const std::string most = "0 1- NaN ";
  const struct {
    const char* variate;
    Extended a, b;
    std::string sources;
  } cases[] = {
      {"normal", 0, 0, most},
      {"exponential", 0, 0, "0 NaN "},
      {"gamma", 3, 0, most},
      {"gamma", 0.5L, 0, "1- "},
      {"weibull", 3, 0, "0 NaN "},
      {"cauchy", 0, 0, "0 1/2 1- NaN "},
      {"student-t", 5, 0, most},
      {"log-normal", 2, 3, most},
      {"beta", 0.5L, 0.5L, most},
      {"beta", 2, 3, most},
      {"inverse-gaussian", 2, 0.5L, most},
      {"von-mises", 1, 0, "0 "},
      {"binomial-1", 10, 0.3L, ""},
      {"binomial-2", 10, 0.3L, "NaN "},
      {"binomial-2", 200, 0.3L, "1- NaN "},
      {"negative-binomial", 3.5L, 0.4L, ""},
      {"negative-binomial", 3.5L, 0.9L, "0 NaN "},
      {"poisson", 3, 0, "NaN "},
      {"poisson", 50, 0, most},
  };
  const std::pair<const char*, Extended> constants[] = {
      {"0 ", 0}, {"1/2 ", 0.5L}, {"1- ", 1 - 0x1p-64L}, {"NaN ", kNaN}};
  for (const auto& [variate, a, b, sources] : cases) {
    std::string found;
    for (const auto& [name, value] : constants) {
      try {
        static_cast<void>(Variates().at(variate)(a, b, ScriptedSource(std::vector(1000, value))));
      } catch (const std::out_of_range&) {
        found += name;
      }
    }
    EXPECT_EQ(found, sources) << variate << ' ' << a << ' ' << b;
  }
}

}  // namespace
}  // namespace qorvex
