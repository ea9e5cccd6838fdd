// Single calls of the routines that return a number: errors in their order, points outside the
// support, infinities, NaN, and closed forms.

#include <concepts>
#include <functional>
#include <map>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "qorvex/stats/QorvexPairStats.h"
#include "qorvex/stats/QorvexStatistics.h"
#include "support/table.h"
#include "support/test.h"

namespace qorvex {
namespace {

using Texts = std::vector<std::string>;
using Routine = std::function<Extended(const Texts&)>;

Extended Number(const std::string& text) {
  if (text == "nan") return kNaN;
  if (text.ends_with("inf")) return text.front() == '-' ? -kInfinity : kInfinity;
  return Str2Float(text);
}

// A number, or the elements of a vector between semicolons, or "-" for an empty vector.
template <class T>
T Argument(const std::string& text) {
  if constexpr (std::same_as<T, TQorFloatVector>) {
    TQorFloatVector vector;
    std::istringstream elements(text == "-" ? "" : text);
    for (std::string element; std::getline(elements, element, ';');) vector.Append(Number(element));
    return vector;
  } else {
    return static_cast<T>(Number(text));
  }
}

template <class... Parameters>
Routine Wrap(Extended (*routine)(Parameters...)) {
  return [routine](const Texts& arguments) {
    return [&]<std::size_t... kIndex>(std::index_sequence<kIndex...>) {
      return routine(Argument<std::remove_cvref_t<Parameters>>(arguments.at(kIndex))...);
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
// The form with a mean and a standard deviation has "3" appended to its name.
#define SHAPE(name)                                     \
  std::pair(#name, Wrap<const TQorFloatVector&>(name)), \
      std::pair(#name "3", Wrap<const TQorFloatVector&, Extended, Extended>(name))

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
    ROUTINE(GeometricMean),
    ROUTINE(HarmonicMean),
    ROUTINE(RootMeanSquare),
    ROUTINE(MeanDeviation),
    {"GeometricStdDev", Wrap<const TQorFloatVector&, Extended, bool>(GeometricStdDev)},
    {"GeometricStdDev2", Wrap<const TQorFloatVector&, bool>(GeometricStdDev)},
    SHAPE(GetSampleSkew),
    SHAPE(GetPopulationSkew),
    SHAPE(GetSampleKurtosis),
    SHAPE(GetPopulationKurtosis),
    {"TrimmedMean", Wrap(TrimmedMean<Extended>)},
    {"ExcelTrimmedMean", Wrap(ExcelTrimmedMean<Extended>)},
    ROUTINE(CoeffCorrelation),
    ROUTINE(CoeffDetermination),
    ROUTINE(GetSSE),
};

constexpr const char* kMessageNames[] = {
#define NAME(id, text) #id,
    QORVEX_MATH_MESSAGES(NAME)
#undef NAME
};

// What the routine returns, or the name of the message that it raises. The expected text stands for
// every number that agrees with it.
std::string ResultOf(const Routine& routine, const Texts& arguments, const std::string& expected) {
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

TEST(Routines, AgreeWithTheTable) {
  const testing::Table table("tables/routines.csv");
  for (std::size_t row = 0; row < table.size(); ++row) {
    Texts arguments;
    std::istringstream texts(table.Text(row, "arguments"));
    for (std::string text; texts >> text;) arguments.push_back(text);
    const std::string& expected = table.Text(row, "result");
    EXPECT_EQ(ResultOf(kRoutines.at(table.Text(row, "routine")), arguments, expected), expected)
        << table.Text(row, "routine") << ' ' << table.Text(row, "arguments");
  }
}

}  // namespace
}  // namespace qorvex
