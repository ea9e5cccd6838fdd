// The elementary functions compared with those of libm: one by one, and over a range, where libm
// has only a loop.

#include <benchmark/benchmark.h>
#include <cmath>
#include <random>
#include <span>
#include <string>
#include <vector>

#include "qorvex/base/elementary/functions.h"

namespace qorvex::benchmarks {
namespace {

// More arguments than a branch predictor remembers; they and the results fit the second cache.
constexpr std::size_t kCount = 16'000;

using Numbers = std::vector<Extended>;

Numbers Uniform(Extended low, Extended high) {
  std::mt19937_64 engine(1);
  std::uniform_real_distribution<Extended> uniform(low, high);
  Numbers numbers(kCount);
  for (Extended& x : numbers) x = uniform(engine);
  return numbers;
}

// Numbers whose binary logarithms are uniform.
Numbers OfAllSizes(Extended low, Extended high) {
  Numbers numbers = Uniform(low, high);
  for (Extended& x : numbers) x = std::exp2(x);
  return numbers;
}

template <class Work>
void Register(const std::string& routine, const std::string& who, const Numbers& arguments,
              Work work) {
  const std::string name = routine + "/Float/" + who + "/" + std::to_string(kCount);
  benchmark::RegisterBenchmark(name.c_str(), [arguments, work](benchmark::State& state) {
    Numbers results(kCount);
    for (auto _ : state) {
      work(arguments, results);
      benchmark::ClobberMemory();
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(kCount));
  });
}

using Function = Extended (*)(Extended);
using OverRange = void (*)(VectorView<Extended>, std::span<Extended>);

// The function of each argument, by a call each.
auto Loop(Function function) {
  return [function](const Numbers& x, Numbers& results) {
    for (std::size_t i = 0; i < x.size(); ++i) results[i] = function(x[i]);
  };
}

// Rows of a function for arguments described by a text.
void Compare(const std::string& routine, const std::string& arguments, const Numbers& numbers,
             Function ours, OverRange range, Function libm) {
  Register(routine + ", " + arguments, "ours", numbers, Loop(ours));
  Register(routine + ", " + arguments, "libm", numbers, Loop(libm));
  const std::string over = routine + " over a range, " + arguments;
  Register(over, "ours", numbers,
           [range](const Numbers& x, Numbers& results) { range(x, results); });
  Register(over, "libm", numbers, Loop(libm));
}

// Powers with an exponent each, of 2^-6 to 2^8.
void ComparePowers(const Numbers& x) {
  const auto each = [exponents = OfAllSizes(-6, 8)](auto power) {
    return [exponents, power](const Numbers& bases, Numbers& results) {
      for (std::size_t i = 0; i < bases.size(); ++i) results[i] = power(bases[i], exponents[i]);
    };
  };
  const std::string routine = "Pow, 2^-30 to 2^30 to the 2^-6 to 2^8";
  Register(routine, "ours", x, each([](Extended a, Extended b) { return Pow(a, b); }));
  Register(routine, "libm", x, each([](Extended a, Extended b) { return powl(a, b); }));
}

// A sum of the x87 unit as argument, as in many programs: a function that reads its bits has to
// wait for them. The other rows copy arguments from memory to memory.
void CompareComputed(const std::string& routine, const Numbers& numbers, Function ours,
                     Function libm) {
  Extended zero = 0;
  benchmark::DoNotOptimize(zero);
  const auto loop = [zero](Function function) {
    return [zero, function](const Numbers& x, Numbers& results) {
      for (std::size_t i = 0; i < x.size(); ++i) results[i] = function(x[i] + zero);
    };
  };
  Register(routine + ", computed argument", "ours", numbers, loop(ours));
  Register(routine + ", computed argument", "libm", numbers, loop(libm));
}

[[maybe_unused]] const bool registered = [] {
  const Numbers unit = Uniform(-1, 1);
  const Numbers within = Uniform(-0.78L, 0.78L);
  const Numbers angles = Uniform(-3.14L, 3.14L);
  const Numbers turns = Uniform(-1000, 1000);
  const Numbers sizes = OfAllSizes(-30, 30);
  for (const auto& [arguments, numbers] :
       {std::pair("within 0.78", within), {"within 3.14", angles}, {"within 1000", turns}}) {
    Compare("Sin", arguments, numbers, Sin, Sin, sinl);
    Compare("Cos", arguments, numbers, Cos, Cos, cosl);
    Compare("Tan", arguments, numbers, Tan, Tan, tanl);
  }
  Compare("ArcTan", "-1 to 1", unit, ArcTan, ArcTan, atanl);
  Compare("ArcTan", "-10 to 10", Uniform(-10, 10), ArcTan, ArcTan, atanl);
  Compare("ArcSin", "-1 to 1", unit, ArcSin, ArcSin, asinl);
  Compare("ArcCos", "-1 to 1", unit, ArcCos, ArcCos, acosl);
  Compare("Cbrt", "2^-30 to 2^30", sizes, Cbrt, Cbrt, cbrtl);
  const Numbers exponents = Uniform(-11000, 11000);
  Compare("Exp", "-11000 to 11000", exponents, Exp, Exp, expl);
  CompareComputed("Exp", exponents, Exp, expl);
  Compare("Expm1", "-5 to 5", Uniform(-5, 5), Expm1, Expm1, expm1l);
  Compare("Expm1", "within 0.003", Uniform(-0.003L, 0.003L), Expm1, Expm1, expm1l);
  Compare("Exp2", "-11000 to 11000", exponents, Exp2, Exp2, exp2l);
  Compare("Log", "2^-30 to 2^30", sizes, Log, Log, logl);
  CompareComputed("Log", sizes, Log, logl);
  Compare("Log", "0 to 1", Uniform(0, 1), Log, Log, logl);
  Compare("Log", "0.999 to 1.001", Uniform(0.999L, 1.001L), Log, Log, logl);
  Compare("Log1p", "-0.9 to 5", Uniform(-0.9L, 5), Log1p, Log1p, log1pl);
  Compare("Log1p", "within 0.003", Uniform(-0.003L, 0.003L), Log1p, Log1p, log1pl);
  Compare("Log2", "2^-30 to 2^30", sizes, Log2, Log2, log2l);
  Compare("Log10", "2^-30 to 2^30", sizes, Log10, Log10, log10l);
  constexpr Extended exponent = 2.718281828459045235L;
  Compare(
      "Pow", "2^-30 to 2^30", sizes, [](Extended x) { return Pow(x, exponent); },
      [](VectorView<Extended> x, std::span<Extended> y) { Pow(x, exponent, y); },
      [](Extended x) { return powl(x, exponent); });
  ComparePowers(sizes);
  Compare("Erf", "-3 to 3", Uniform(-3, 3), Erf, Erf, erfl);
  Compare("Erfc", "0 to 8", Uniform(0, 8), Erfc, Erfc, erfcl);
  return true;
}();

}  // namespace
}  // namespace qorvex::benchmarks
