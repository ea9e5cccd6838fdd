#include "base/elementary/elementary_functions.h"

#include <stdexcept>

#include "qorvex/base/elementary/functions.h"
#include "qorvex/base/errors.h"
#include "qorvex/base/special_functions.h"

namespace qorvex::testing {

namespace {

constexpr Extended kPi = 3.14159265358979323846264338327950288L;
constexpr Extended kLn2 = 0.693147180559945309417232121458176568L;

// A function of one argument, of ours and of MPFR.
template <Extended (*kFunction)(Extended)>
Extended Ours(const Arguments& arguments) {
  try {
    return kFunction(arguments.x);
  } catch (const EOverflow&) {
    return HUGE_VALL;
  }
}
template <int (*kFunction)(mpfr_ptr, mpfr_srcptr, mpfr_rnd_t)>
int Exact(mpfr_ptr result, mpfr_srcptr x, mpfr_srcptr, mpfr_rnd_t rounding) {
  return kFunction(result, x, rounding);
}

template <void (*kFunction)(VectorView<Extended>, std::span<Extended>)>
void Over(VectorView<Extended> x, Extended, std::span<Extended> results) {
  kFunction(x, results);
}

int LnGammaExactly(mpfr_ptr result, mpfr_srcptr x, mpfr_srcptr, mpfr_rnd_t rounding) {
  int sign = 0;
  return mpfr_lgamma(result, &sign, x, rounding);
}

// start - (erfc(start) - y) / erfc'(start): the error of the start is squared.
int InverseErfcExactly(mpfr_ptr result, mpfr_srcptr y, mpfr_srcptr start, mpfr_rnd_t rounding) {
  if (mpfr_regular_p(start) == 0) return mpfr_set(result, start, rounding);
  mpfr_t step, slope;
  mpfr_inits2(mpfr_get_prec(result), step, slope, nullptr);
  mpfr_erfc(step, start, MPFR_RNDN);
  mpfr_sub(step, step, y, MPFR_RNDN);
  mpfr_sqr(slope, start, MPFR_RNDN);
  mpfr_exp(slope, slope, MPFR_RNDN);
  mpfr_mul(step, step, slope, MPFR_RNDN);
  mpfr_const_pi(slope, MPFR_RNDN);
  mpfr_sqrt(slope, slope, MPFR_RNDN);
  mpfr_mul(step, step, slope, MPFR_RNDN);
  mpfr_div_2ui(step, step, 1, MPFR_RNDN);
  const int ternary = mpfr_add(result, start, step, rounding);
  mpfr_clears(step, slope, nullptr);
  return ternary;
}

using Regions = std::vector<ArgumentRegion>;

// Regions that every function with arguments of either sign has.
Regions With(Regions regions, int greatest) {
  regions.push_back({"tiny", Exponents(kLeastExponent, -65)});
  regions.push_back({"subnormal", Exponents(kLeastExponent, -16383)});
  regions.push_back({"huge", Exponents(std::min(64, greatest), greatest)});
  return regions;
}

Regions OfExponentials() {
  return With({{"2^-64 to 2^13", Exponents(-64, 13)},
               {"-50 to 50", Between(-50, 50)},
               {"few bits", FewBits(-20, 13)},
               {"multiples of ln 2 / 2^16", Multiples(kLn2 / 65536, 30)},
               {"multiples of ln 2", Multiples(kLn2, 14)},
               {"about the overflow", Between(11355, 11357)},
               {"subnormal results", Between(-11400.5L, -11354.5L)}},
              kGreatestExponent);
}

Regions OfExp2() {
  return With({{"2^-64 to 2^14", Exponents(-64, 14)},
               {"few bits", FewBits(-20, 14)},
               {"integers", Multiples(1, 15)},
               {"about the overflow", Between(16383, 16385)},
               {"subnormal results", Between(-16447, -16381)}},
              kGreatestExponent);
}

Regions OfLogarithms(Extended base) {
  return {{"all exponents", Exponents(kLeastExponent, kGreatestExponent, Sign::kPlus)},
          {"2^-30 to 2^30", Exponents(-30, 30, Sign::kPlus)},
          {"1/2 to 2", Exponents(-1, 0, Sign::kPlus)},
          {"near 1", Near(1)},
          {"few bits", FewBits(-64, 64, Sign::kPlus)},
          {"few bits about 1", FewBits(-1, 0, Sign::kPlus)},
          {"powers of the base", PowersOf(base, -30, 30)},
          {"subnormal", Exponents(kLeastExponent, -16383, Sign::kPlus)}};
}

Regions OfLog1p() {
  return {{"2^-66 to 2^66", Exponents(-66, 66, Sign::kPlus)},
          {"-1 to 0", Exponents(-66, -1, Sign::kMinus)},
          {"near -1", Near(-1)},
          {"-0.5 to 5", Between(-0.5L, 5)},
          {"few bits", FewBits(-64, 64, Sign::kPlus)},
          {"few bits below 0", FewBits(-64, -1, Sign::kMinus)},
          {"few bits beside 1", FewBits(-66, -50)},
          {"tiny", Exponents(kLeastExponent, -65)},
          {"subnormal", Exponents(kLeastExponent, -16383)},
          {"huge", Exponents(64, kGreatestExponent, Sign::kPlus)}};
}

Regions OfAngles() {
  return With({{"2^-64 to pi/4", Exponents(-64, -1)},
               {"-4 to 4", Between(-4, 4)},
               {"2^2 to 2^63", Exponents(2, 63)},
               {"few bits", FewBits(-12, 3)},
               {"multiples of pi/2", Multiples(kPi / 2, 20)},
               {"large multiples of pi/2", Multiples(kPi / 2, 63)},
               {"multiples of pi/1024", Multiples(kPi / 1024, 12)}},
              kGreatestExponent);
}

Regions OfInverseAngles() {
  return With({{"2^-64 to 1", Exponents(-64, -1)},
               {"-1 to 1", Between(-1, 1)},
               {"near 1", Near(1)},
               {"near -1", Near(-1)},
               {"near 1/2", Near(0.5L)},
               {"few bits", FewBits(-12, -1)}},
              65);
}

Regions OfArcTan() {
  return With({{"2^-66 to 2^66", Exponents(-66, 66)},
               {"-4 to 4", Between(-4, 4)},
               {"near 1", Near(1)},
               {"few bits", FewBits(-12, 12)},
               {"reciprocals of few bits", ReciprocalsOfFewBits(-12, 12)}},
              kGreatestExponent);
}

Regions OfCbrt() {
  const auto cube = [](Engine& engine) -> Arguments {
    const Extended root = FewBits(-64, 64)(engine).x;
    return {root * root * root};
  };
  return With({{"all exponents", Exponents(kLeastExponent, kGreatestExponent)},
               {"1 to 8", Exponents(0, 2)},
               {"few bits", FewBits(-2, 2)},
               {"cubes and their neighbours", cube}},
              kGreatestExponent);
}

Regions OfErf() {
  return With({{"2^-64 to 8", Exponents(-64, 2)},
               {"-7 to 7", Between(-7, 7)},
               {"few bits", FewBits(-8, 2)},
               {"where it becomes 1", Between(6, 7)}},
              kGreatestExponent);
}

Regions OfErfc() {
  return With({{"2^-64 to 64", Exponents(-64, 5)},
               {"-7 to 2", Between(-7, 2)},
               {"0 to 10", Between(0, 10)},
               {"8 to 107", Between(8, 107)},
               {"subnormal results", Between(106.5L, 106.9L)},
               {"few bits", FewBits(-8, 6)}},
              kGreatestExponent);
}

constexpr Extended kPairAllowance = 0.51L;
constexpr Extended kReflected = 1;
// 1e-26 in units of a result as small as those next to a zero.
constexpr Extended kNextToZero = 1e-26L * 0x1p127L;

Regions OfGamma() {
  return {{"2^-60 to 16", Exponents(-60, 3, Sign::kPlus), kPairAllowance},
          {"0 to 30", Between(0x1p-20L, 30), kPairAllowance},
          {"30 to 1755", Between(30, 1755), kPairAllowance},
          {"few bits", FewBits(-6, 9, Sign::kPlus), kPairAllowance},
          {"-30 to 0", Between(-30, -0x1p-20L), kReflected},
          {"tiny", Exponents(-16382, -61), kPairAllowance}};
}

Regions OfLnGamma() {
  return {{"2^-60 to 16", Exponents(-60, 3, Sign::kPlus), kPairAllowance},
          {"0 to 30", Between(0x1p-20L, 30), kPairAllowance},
          {"near 1", Near(1), kPairAllowance},
          {"near 2", Near(2), kPairAllowance},
          {"30 to 2^60", Exponents(5, 60, Sign::kPlus), kPairAllowance},
          {"-30 to 0", Between(-30, -0x1p-20L), kReflected},
          {"about a zero", Between(-2.457025L, -2.457024L), kReflected},
          {"next to a zero", Near(-2.457024738220800623L), kNextToZero},
          {"next to another", Near(-3.955294284858597929L), kNextToZero},
          {"huge", Exponents(61, 16368, Sign::kPlus), kPairAllowance}};
}

Regions OfInverseErfc() {
  return {
      {"0 to 2", Between(0x1p-20L, 1.9999L), kPairAllowance},
      {"all exponents", Exponents(kLeastExponent, -1, Sign::kPlus), kPairAllowance},
      {"near 1", Near(1), kPairAllowance},
      {"near 2",
       [](Engine& engine) -> Arguments { return {2 - Exponents(-62, -1, Sign::kPlus)(engine).x}; },
       kPairAllowance}};
}

}  // namespace

std::span<const ElementaryFunction> ElementaryFunctions() {
  static const std::vector<ElementaryFunction> functions{
      {"Exp", Ours<Exp>, Exact<mpfr_exp>, OfExponentials(), Over<Exp>},
      {"Expm1", Ours<Expm1>, Exact<mpfr_expm1>, OfExponentials(), Over<Expm1>},
      {"Exp2", Ours<Exp2>, Exact<mpfr_exp2>, OfExp2(), Over<Exp2>},
      {"Log", Ours<Log>, Exact<mpfr_log>, OfLogarithms(2.718281828459045235L), Over<Log>},
      {"Log1p", Ours<Log1p>, Exact<mpfr_log1p>, OfLog1p(), Over<Log1p>},
      {"Log2", Ours<Log2>, Exact<mpfr_log2>, OfLogarithms(2), Over<Log2>},
      {"Log10", Ours<Log10>, Exact<mpfr_log10>, OfLogarithms(10), Over<Log10>},
      {"Pow", [](const Arguments& a) { return Pow(a.x, a.y); }, mpfr_pow, RegionsOfPow(), Pow},
      {"Sin", Ours<Sin>, Exact<mpfr_sin>, OfAngles(), Over<Sin>},
      {"Cos", Ours<Cos>, Exact<mpfr_cos>, OfAngles(), Over<Cos>},
      {"Tan", Ours<Tan>, Exact<mpfr_tan>, OfAngles(), Over<Tan>},
      {"ArcCos", Ours<ArcCos>, Exact<mpfr_acos>, OfInverseAngles(), Over<ArcCos>},
      {"ArcSin", Ours<ArcSin>, Exact<mpfr_asin>, OfInverseAngles(), Over<ArcSin>},
      {"ArcTan", Ours<ArcTan>, Exact<mpfr_atan>, OfArcTan(), Over<ArcTan>},
      {"Cbrt", Ours<Cbrt>, Exact<mpfr_cbrt>, OfCbrt(), Over<Cbrt>},
      {"Erf", Ours<Erf>, Exact<mpfr_erf>, OfErf(), Over<Erf>},
      {"Erfc", Ours<Erfc>, Exact<mpfr_erfc>, OfErfc(), Over<Erfc>},
      {"Gamma", Ours<Gamma>, Exact<mpfr_gamma>, OfGamma(), nullptr, false},
      {"LnGamma", Ours<LnGamma>, LnGammaExactly, OfLnGamma(), nullptr, false},
      {"InverseErfc", Ours<InverseErfc>, InverseErfcExactly, OfInverseErfc(), nullptr, false},
  };
  return functions;
}

const ElementaryFunction& FunctionNamed(std::string_view name) {
  for (const ElementaryFunction& function : ElementaryFunctions())
    if (function.name == name) return function;
  throw std::out_of_range("no function " + std::string(name));
}

}  // namespace qorvex::testing
