// Single calls of the routines whose arguments and results are numbers: errors in their order,
// points outside the support, infinities, NaN, and closed forms.

#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "qorvex/stats/QorvexStatistics.h"
#include "support/table.h"
#include "support/test.h"

namespace qorvex {
namespace {

using Arguments = std::vector<Extended>;
using Routine = std::function<Extended(const Arguments&)>;

template <class... Parameters>
Routine Wrap(Extended (*routine)(Parameters...)) {
  return [routine](const Arguments& arguments) {
    return [&]<std::size_t... kIndex>(std::index_sequence<kIndex...>) {
      return routine(static_cast<Parameters>(arguments.at(kIndex))...);
    }
    (std::index_sequence_for<Parameters...>());
  };
}

#define ROUTINE(name) std::pair(#name, Wrap(name))
#define LESS_GREATER_BETWEEN(family) \
  ROUTINE(family##Less), ROUTINE(family##Greater), ROUTINE(family##Between)
#define INVERSES(family) ROUTINE(Inv##family##Less), ROUTINE(Inv##family##Greater)
// The form of a beta routine between two given ends has "5" appended to its name.
#define BETA(name, ...)                      \
  std::pair(#name, Wrap<__VA_ARGS__>(name)), \
      std::pair(#name "5", Wrap<__VA_ARGS__, Extended, Extended>(name))

const std::map<std::string, Routine> kRoutines = {
    ROUTINE(Factorial),
    ROUTINE(Permutation),
    ROUTINE(BinomialCoeff),
    ROUTINE(BinomialEq),
    LESS_GREATER_BETWEEN(Binomial),
    ROUTINE(HyperGeometricEq),
    LESS_GREATER_BETWEEN(HyperGeometric),
    ROUTINE(PoissonEq),
    LESS_GREATER_BETWEEN(Poisson),
    ROUTINE(NormalPDF),
    ROUTINE(NormalLess),
    LESS_GREATER_BETWEEN(NormalDist),
    INVERSES(NormalDist),
    ROUTINE(ZAlpha),
    ROUTINE(LogNormalPDF),
    LESS_GREATER_BETWEEN(LogNormal),
    INVERSES(LogNormal),
    ROUTINE(ExponentialPDF),
    LESS_GREATER_BETWEEN(Exponential),
    ROUTINE(ChiSquarePDF),
    LESS_GREATER_BETWEEN(ChiSquare),
    INVERSES(ChiSquare),
    ROUTINE(StudentTPDF),
    LESS_GREATER_BETWEEN(StudentT),
    INVERSES(StudentT),
    ROUTINE(FDistPDF),
    LESS_GREATER_BETWEEN(FDist),
    INVERSES(FDist),
    BETA(BetaPDF, Extended, Extended, Extended),
    BETA(BetaDistLess, Extended, Extended, Extended),
    BETA(BetaDistGreater, Extended, Extended, Extended),
    BETA(BetaDistBetween, Extended, Extended, Extended, Extended),
    BETA(InvBetaDistLess, Extended, Extended, Extended),
    BETA(InvBetaDistGreater, Extended, Extended, Extended),
    ROUTINE(IncompleteGamma),
    ROUTINE(IncompleteGamma2),
};

Extended Number(const std::string& text) {
  if (text == "nan") return kNaN;
  if (text.ends_with("inf")) return text.front() == '-' ? -kInfinity : kInfinity;
  return Str2Float(text);
}

constexpr const char* kMessageNames[] = {
#define NAME(id, text) #id,
    QORVEX_MATH_MESSAGES(NAME)
#undef NAME
};

// What the routine returns, or the name of the message that it raises. The expected text stands for
// every number that agrees with it.
std::string ResultOf(const Routine& routine, const Arguments& arguments,
                     const std::string& expected) {
  try {
    const Extended result = routine(arguments);
    if (std::isnan(result)) return "nan";
    if (expected == "nan" || expected.starts_with("rs")) return Float2Str(result);
    const Extended number = Number(expected);
    const bool agrees =
        result == number || std::fabs(result - number) <= 5e-19L * std::fabs(number);
    return agrees ? expected : Float2Str(result);
  } catch (const EMathError& error) {
    return kMessageNames[static_cast<std::size_t>(error.message_id())];
  }
}

TEST(ClassicRoutines, AgreeWithTheTable) {
  const testing::Table table("tables/classic_routines.csv");
  for (std::size_t row = 0; row < table.size(); ++row) {
    Arguments arguments;
    std::istringstream texts(table.Text(row, "arguments"));
    for (std::string text; texts >> text;) arguments.push_back(Number(text));
    const std::string& expected = table.Text(row, "result");
    EXPECT_EQ(ResultOf(kRoutines.at(table.Text(row, "routine")), arguments, expected), expected)
        << table.Text(row, "routine") << ' ' << table.Text(row, "arguments");
  }
}

}  // namespace
}  // namespace qorvex
