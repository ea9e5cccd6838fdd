// Single calls of the routines that give numbers: errors in their order, points outside the
// support, infinities, NaN, and closed forms.

#include <array>
#include <functional>
#include <map>
#include <span>
#include <sstream>
#include <string>
#include <tuple>
#include <typeinfo>
#include <utility>
#include <vector>

#include "qorvex/stats/QorvexPairStats.h"
#include "qorvex/stats/QorvexStatistics.h"
#include "support/table.h"
#include "support/test.h"

namespace qorvex {
namespace {

using Texts = std::vector<std::string>;
using Figures = std::vector<Extended>;
using Routine = std::function<Figures(const Texts&)>;
using Values = VectorView<Extended>;

Extended Number(const std::string& text) {
  if (text == "nan") return kNaN;
  if (text.ends_with("inf")) return text.front() == '-' ? -kInfinity : kInfinity;
  return Str2Float(text);
}

// The numbers between semicolons; none for "-".
Texts Elements(const std::string& text) {
  Texts elements;
  std::istringstream in(text == "-" ? "" : text);
  for (std::string element; std::getline(in, element, ';');) elements.push_back(element);
  return elements;
}

void Append(Figures& figures, Extended figure) {
  figures.push_back(figure);
}
template <ContiguousRange Range>
void Append(Figures& figures, const Range& elements) {
  figures.insert(figures.end(), elements.begin(), elements.end());
}

struct Arguments {
  const std::string& Next() { return texts.at(next++); }
  const Texts& texts;
  std::size_t next = 0;
};

// What a parameter is bound to: the next argument, or an output, which has no text.
template <class Parameter>
struct Slot {
  explicit Slot(Arguments& arguments) : value(static_cast<Parameter>(Number(arguments.Next()))) {}
  Parameter Get() { return value; }
  void AppendTo(Figures&) const {}
  void ExpectStateAfterError() const {}
  Parameter value;
};

template <class T>
struct Slot<VectorView<T>> {
  explicit Slot(Arguments& arguments) {
    for (const std::string& element : Elements(arguments.Next()))
      elements.push_back(static_cast<T>(Number(element)));
  }
  VectorView<T> Get() { return elements; }
  void AppendTo(Figures&) const {}
  void ExpectStateAfterError() const {}
  std::vector<T> elements;
};

template <std::size_t kCount>
struct OutputSlots {
  explicit OutputSlots(Arguments&) { values.fill(-7); }
  void AppendTo(Figures& figures) const { Append(figures, values); }
  void ExpectStateAfterError() const {
    for (const Extended untouched : values) EXPECT_EQ(untouched, -7);
  }
  std::array<Extended, kCount> values;
};
template <>
struct Slot<Extended&> : OutputSlots<1> {
  using OutputSlots::OutputSlots;
  Extended& Get() { return values[0]; }
};
template <>
struct Slot<std::span<Extended, 9>> : OutputSlots<9> {
  using OutputSlots::OutputSlots;
  std::span<Extended, 9> Get() { return values; }
};

// Tables are released before the checks.
template <class T>
struct Slot<TQorVector<T>&> {
  explicit Slot(Arguments&) {}
  TQorVector<T>& Get() { return vector; }
  void AppendTo(Figures& figures) const { Append(figures, vector); }
  void ExpectStateAfterError() const { EXPECT_TRUE(vector.empty()); }
  TQorVector<T> vector = TQorVector<T>::WithLength(2);
};

// The result and then the outputs.
template <class Result, class... Parameters>
Routine Wrap(Result (*routine)(Parameters...)) {
  return [routine](const Texts& texts) {
    Arguments arguments{texts};
    std::tuple<Slot<Parameters>...> all{Slot<Parameters>(arguments)...};
    EXPECT_EQ(arguments.next, texts.size());
    return std::apply(
        [routine](auto&... slots) {
          Figures figures;
          try {
            if constexpr (std::is_void_v<Result>) {
              routine(slots.Get()...);
            } else {
              Append(figures, routine(slots.Get()...));
            }
          } catch (const EMathError&) {
            (slots.ExpectStateAfterError(), ...);
            throw;
          }
          (slots.AppendTo(figures), ...);
          return figures;
        },
        all);
  };
}

#define ROUTINE(name) std::pair(#name, Wrap(name))
#define LESS_GREATER_BETWEEN(family) \
  ROUTINE(family##Less), ROUTINE(family##Greater), ROUTINE(family##Between)
#define INVERSES(family) ROUTINE(Inv##family##Less), ROUTINE(Inv##family##Greater)
// The form of a beta routine between two given ends has "5" appended to its name.
#define BETA(name, ...)                                \
  std::pair(#name, Wrap<Extended, __VA_ARGS__>(name)), \
      std::pair(#name "5", Wrap<Extended, __VA_ARGS__, Extended, Extended>(name))
// The form with a mean and a standard deviation has "3" appended to its name.
#define SHAPE(name)                               \
  std::pair(#name, Wrap<Extended, Values>(name)), \
      std::pair(#name "3", Wrap<Extended, Values, Extended, Extended>(name))

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
    {"GeometricStdDev", Wrap<Extended, Values, Extended, bool>(GeometricStdDev)},
    {"GeometricStdDev2", Wrap<Extended, Values, bool>(GeometricStdDev)},
    SHAPE(GetSampleSkew),
    SHAPE(GetPopulationSkew),
    SHAPE(GetSampleKurtosis),
    SHAPE(GetPopulationKurtosis),
    ROUTINE(GetMode),
    ROUTINE(GetMostFrequent),
    ROUTINE(GetQuartiles),
    ROUTINE(GetDeciles),
    {"TrimmedMean", Wrap(TrimmedMean<Extended>)},
    {"ExcelTrimmedMean", Wrap(ExcelTrimmedMean<Extended>)},
    ROUTINE(CoeffCorrelation),
    ROUTINE(CoeffDetermination),
    ROUTINE(GetSSE),
    ROUTINE(GetRegressionLine),
    ROUTINE(GetQuadraticCurve),
    ROUTINE(GroupedMean),
    ROUTINE(GroupedMedian),
    ROUTINE(GroupedMode),
    ROUTINE(GroupedQuartiles),
    ROUTINE(GetGroupedDeciles),
    ROUTINE(GroupedSampleVariance),
    ROUTINE(GroupedPopulationVariance),
    ROUTINE(GroupedSampleStdDev),
    ROUTINE(GroupedPopulationStdDev),
    ROUTINE(GroupedSums),
    ROUTINE(GetGroupedMeanDev),
    ROUTINE(GetGroupedSampleSkew),
    ROUTINE(GetGroupedPopulationSkew),
    ROUTINE(GetGroupedSampleKurtosis),
    ROUTINE(GetGroupedPopulationKurtosis),
    ROUTINE(NormalPDFValues),
    ROUTINE(LogNormalPDFValues),
    ROUTINE(ExponentialPDFValues),
    ROUTINE(ChiSquarePDFValues),
    ROUTINE(StudentTPDFValues),
    ROUTINE(FDistPDFValues),
    {"BetaPDFValues", Wrap<void, Extended, Extended, Extended, Extended, std::int32_t,
                           TQorFloatVector&, TQorFloatVector&>(BetaPDFValues)},
    {"BetaPDFValues5", Wrap<void, Extended, Extended, Extended, Extended, Extended, Extended,
                            std::int32_t, TQorFloatVector&, TQorFloatVector&>(BetaPDFValues)},
    ROUTINE(BinomialPDFValues),
    ROUTINE(HyperGeometricPDFValues),
    ROUTINE(PoissonPDFValues),
};

constexpr const char* kMessageNames[] = {
#define NAME(id, text) #id,
    QORVEX_MATH_MESSAGES(NAME)
#undef NAME
};

std::string NameOf(const EMathError& error) {
  const std::string name = kMessageNames[static_cast<std::size_t>(error.message_id())];
  const std::type_info& type = name == "rsInvalidOp"    ? typeid(EInvalidOp)
                               : name == "rsZeroDivide" ? typeid(EZeroDivide)
                               : name == "rsOverflow"   ? typeid(EOverflow)
                                                        : typeid(EMathError);
  EXPECT_EQ(typeid(error), type);
  return name;
}

bool Agrees(Extended figure, const std::string& expected) {
  const Extended number = Number(expected);
  return figure == number || std::fabs(figure - number) <= 5e-19L * std::fabs(number) ||
         (std::isnan(figure) && std::isnan(number));
}

// The figures, or the name of the message that the routine raises. The expected text of a figure
// stands for every number that agrees with it.
std::string ResultOf(const Routine& routine, const Texts& arguments, const Texts& expected) {
  try {
    std::string result;
    const Figures figures = routine(arguments);
    for (std::size_t i = 0; i < figures.size(); ++i) {
      const bool agrees =
          i < expected.size() && !expected[i].starts_with("rs") && Agrees(figures[i], expected[i]);
      result += (i == 0 ? "" : ";") + (agrees ? expected[i] : Float2Str(figures[i]));
    }
    return result.empty() ? "-" : result;
  } catch (const EMathError& error) {
    return NameOf(error);
  }
}

TEST(Routines, AgreeWithTheTable) {
  const testing::Table table("tables/routines.csv");
  for (std::size_t row = 0; row < table.size(); ++row) {
    const std::string& expected = table.Text(row, "result");
    SCOPED_TRACE(table.Text(row, "routine") + ' ' + table.Text(row, "arguments"));
    EXPECT_EQ(ResultOf(kRoutines.at(table.Text(row, "routine")),
                       testing::Words(table.Text(row, "arguments")), Elements(expected)),
              expected);
  }
}

}  // namespace
}  // namespace qorvex
