// The elementary functions against the C library's for long double: called one by one with computed
// arguments ("ours" and "libm"), and over ranges.

#include <benchmark/benchmark.h>
#include <cmath>
#include <functional>
#include <random>
#include <span>
#include <string>
#include <vector>

#include "qorvex/base/elementary/functions.h"

namespace qorvex::benchmarks {
namespace {

constexpr std::size_t kCount = 10'000;

using Numbers = std::vector<Extended>;

Numbers Between(Extended lower, Extended upper) {
  std::mt19937_64 engine(1);
  std::uniform_real_distribution<Extended> uniform(lower, upper);
  Numbers numbers(kCount);
  for (Extended& x : numbers) x = uniform(engine);
  return numbers;
}

// Numbers of any size between two powers of two.
Numbers BetweenPowers(Extended lower, Extended upper) {
  Numbers numbers = Between(lower, upper);
  for (Extended& x : numbers) x = std::exp2(x);
  return numbers;
}

// Registers work(arguments, results).
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

// Calls a function for each argument plus 0, which makes it a result of the x87 unit, as arguments
// are in programs: it is not passed as it was found in memory.
template <class Function>
auto OneByOne(Function function) {
  return [function](const Numbers& arguments, Numbers& results) {
    Extended zero = 0;
    benchmark::DoNotOptimize(zero);
    for (std::size_t i = 0; i < kCount; ++i) results[i] = function(arguments[i] + zero);
  };
}

using Function = Extended(Extended);
using SpanFunction = void(VectorView<Extended>, std::span<Extended>);

void Add(const std::string& routine, const Numbers& arguments, Function* ours, SpanFunction* span,
         Function* libm) {
  Register(routine, "ours", arguments, OneByOne(ours));
  Register(routine, "libm", arguments, OneByOne(libm));
  Register(routine + ", span", "ours", arguments, span);
  Register(routine + ", span", "libm", arguments, [libm](const Numbers& x, Numbers& results) {
    for (std::size_t i = 0; i < kCount; ++i) results[i] = libm(x[i]);
  });
}

// Each number with its own exponent, and all with the same.
void AddPowers() {
  const Numbers x = BetweenPowers(-30, 30);
  const Numbers exponents = BetweenPowers(-6, 8);
  const auto each = [exponents](auto power) {
    return [exponents, power](const Numbers& arguments, Numbers& results) {
      for (std::size_t i = 0; i < kCount; ++i) results[i] = power(arguments[i], exponents[i]);
    };
  };
  Register("Pow", "ours", x, each([](Extended a, Extended b) { return Pow(a, b); }));
  Register("Pow", "libm", x, each([](Extended a, Extended b) { return std::pow(a, b); }));
  Register("Pow, span", "ours", x,
           [](const Numbers& a, Numbers& results) { Pow(a, 2.5L, results); });
  Register("Pow, span", "libm", x, [](const Numbers& a, Numbers& results) {
    for (std::size_t i = 0; i < kCount; ++i) results[i] = std::pow(a[i], 2.5L);
  });
}

[[maybe_unused]] const bool registered = [] {
  Add("Exp", Between(-11000, 11000), Exp, Exp, std::exp);
  Add("Exp2", Between(-16000, 16000), Exp2, Exp2, std::exp2);
  Add("Expm1, -5 to 5", Between(-5, 5), Expm1, Expm1, std::expm1);
  Add("Expm1, below 0.003", Between(-0.003L, 0.003L), Expm1, Expm1, std::expm1);
  Add("Log", BetweenPowers(-30, 30), Log, Log, std::log);
  Add("Log, 0 to 1", Between(0, 1), Log, Log, std::log);
  Add("Log, near 1", Between(0.999L, 1.001L), Log, Log, std::log);
  Add("Log1p, -0.9 to 5", Between(-0.9L, 5), Log1p, Log1p, std::log1p);
  Add("Log1p, below 0.003", Between(-0.003L, 0.003L), Log1p, Log1p, std::log1p);
  Add("Log2", BetweenPowers(-30, 30), Log2, Log2, std::log2);
  Add("Log10", BetweenPowers(-30, 30), Log10, Log10, std::log10);
  AddPowers();
  Add("Cos, within 0.785", Between(-0.785L, 0.785L), Cos, Cos, std::cos);
  Add("Cos, within pi", Between(-3.14L, 3.14L), Cos, Cos, std::cos);
  Add("Cos, 2^200", BetweenPowers(200, 201), Cos, Cos, std::cos);
  Add("Sin, within pi", Between(-3.14L, 3.14L), Sin, Sin, std::sin);
  Add("Tan, within pi", Between(-3.14L, 3.14L), Tan, Tan, std::tan);
  Add("ArcCos", Between(-1, 1), ArcCos, ArcCos, std::acos);
  Add("ArcSin", Between(-1, 1), ArcSin, ArcSin, std::asin);
  Add("ArcTan", Between(-10, 10), ArcTan, ArcTan, std::atan);
  Add("Cbrt", BetweenPowers(-30, 30), Cbrt, Cbrt, std::cbrt);
  Add("Erf", Between(-3, 3), Erf, Erf, std::erf);
  Add("Erfc", Between(-2, 10), Erfc, Erfc, std::erfc);
  return true;
}();

}  // namespace
}  // namespace qorvex::benchmarks
