#include <boost/math/special_functions/beta.hpp>
#include <boost/math/special_functions/gamma.hpp>
#include <boost/multiprecision/cpp_bin_float.hpp>
#include <cmath>

#include "qorvex/base/text.h"
#include "qorvex/stats/full_precision.h"
#include "support/random_vectors.h"
#include "support/test.h"

namespace qorvex {

namespace fp = full_precision;

using Real = boost::multiprecision::number<boost::multiprecision::cpp_bin_float<60>>;

// The distance from an exact value in units of 1e-19 of it.
Extended Units(Extended value, const Real& exact) {
  return static_cast<Extended>(abs(Real(value) / exact - 1)) * 1e19L;
}

TEST(FullPrecision, AgreesWithAComputationInHigherPrecision) {
  testing::Engine engine(5);
  // Log-uniform.
  const auto between = [&](Extended low, Extended high) {
    return low *
           std::exp(std::log(high / low) * (static_cast<Extended>(engine() >> 1U) * 0x1p-63L));
  };
  for (int i = 0; i < 200; ++i) {
    const auto shape = [&] {
      const Extended any = between(0.03L, 2e4L);
      return engine() % 2 == 0 ? any : std::ceil(2 * any) / 2;  // halves have a table
    };
    const Extended a = shape();
    const Extended b = shape();
    const Extended p = between(1e-200L, 1);
    SCOPED_TRACE(Float2Str(a) + ' ' + Float2Str(b) + ' ' + Float2Str(p));
    const bool lower = i % 2 == 0;
    const Extended x = lower ? fp::GammaQuantile(a, 1, p) : fp::GammaUpperQuantile(a, 1, p);
    const Real below = boost::math::gamma_p(Real(a), Real(x));
    const Real above = boost::math::gamma_q(Real(a), Real(x));
    ASSERT_LT(Units(fp::GammaLower(a, 1, x), below), 40);
    ASSERT_LT(Units(fp::GammaUpper(a, 1, x), above), 40);
    ASSERT_LT(Units(fp::GammaLogLower(a, 1, x), below < 0.5 ? log(below) : log1p(-above)), 40);
    ASSERT_LT(Units(fp::GammaLogUpper(a, 1, x), above < 0.5 ? log(above) : log1p(-below)), 40);
    const Extended y = lower ? fp::BetaQuantile(a, b, p) : fp::BetaUpperQuantile(a, b, p);
    if (y == 1) continue;
    ASSERT_LT(Units(fp::BetaLower(a, b, y), boost::math::ibeta(Real(a), Real(b), Real(y))), 60);
    ASSERT_LT(Units(fp::BetaUpper(a, b, y), boost::math::ibetac(Real(a), Real(b), Real(y))), 60);
  }
}

}  // namespace qorvex
