// The figures of functions, variates and distributions for the self-test.

#include <cmath>
#include <memory>
#include <string>
#include <vector>

#include "apps/common/distributions.h"
#include "apps/common/input_error.h"
#include "apps/common/self_test.h"
#include "apps/common/variates.h"
#include "qorvex/base/elementary/functions.h"
#include "qorvex/base/errors.h"
#include "qorvex/base/special_functions.h"

namespace qorvex::apps {

namespace {

// A random number with a uniform exponent.
Extended AnyNumber(RandomStream& stream, int least, int greatest) {
  const auto range = static_cast<std::uint64_t>(greatest - least + 1);
  const int exponent = least + static_cast<int>(stream() % range);
  return std::ldexp(1 + UniformValue(stream()), exponent);
}

Extended AnySign(RandomStream& stream, Extended x) {
  return stream() % 2 == 0 ? x : -x;
}

// The result, or the error that the call raises.
template <class Compute>
void AddResult(FigureHash& hash, Compute compute) {
  try {
    hash.Add(compute());
  } catch (const EMathError& error) {
    hash.Add(static_cast<Extended>(error.message_id()));
  }
}

struct ElementaryFunction {
  Extended (*function)(Extended);
  int least, greatest;
  bool has_signs = true;
};

constexpr ElementaryFunction kFunctions[] = {
    {Exp, -20, 13},
    {Expm1, -66, 13},
    {Exp2, -20, 14},
    {Log, -16382, 16383, false},
    {Log, -3, 3, false},
    {Log1p, -66, -1},
    {Log1p, -1, 16383, false},
    {Log2, -20, 20, false},
    {Log10, -20, 20, false},
    {Sin, -20, 2},
    {Cos, -20, 100},
    {Tan, -20, 30},
    {ArcCos, -20, -1},
    {ArcSin, -20, -1},
    {ArcTan, -20, 30},
    {Cbrt, -16382, 16383},
    {Erf, -20, 2},
    {Erfc, -8, 6},
    {Gamma, -10, 10},
    {LnGamma, -10, 20},
    {InverseErfc, -40, 0, false},
};

// A number of the kind near the one that a form starts with.
Extended NumberNear(const NumberParameter& parameter, RandomStream& stream) {
  const Extended factor = AnyNumber(stream, -3, 1);
  switch (parameter.kind) {
    case NumberKind::kReal:
      return parameter.start * factor + (parameter.start == 0 ? factor - 1 : 0);
    case NumberKind::kShare:
    case NumberKind::kProbability:
      return UniformValue(stream());
    case NumberKind::kPositive:
    case NumberKind::kShape:
      return parameter.start * factor;
    default:
      return 1 + std::floor(parameter.start * factor);
  }
}

// The means and the covariance of vectors of normal variates.
TQorFloatVector ListFor(std::size_t index) {
  return index == 0 ? TQorFloatVector{1, -2} : TQorFloatVector{4, 1, 9};
}

void AddVariatesBy(const VariateMethod& method, const Variate& variate, FigureHash& hash,
                   RandomStream& stream) {
  VariateArguments arguments;
  for (const NumberParameter& parameter : variate.parameters) {
    arguments.Append(parameter.kind == NumberKind::kReals
                         ? ListFor(arguments.size())
                         : TQorFloatVector{NumberNear(parameter, stream)});
  }
  if (method.inconsistency != nullptr && !method.inconsistency(arguments).empty()) return;
  TQorFloatVector figures = TQorFloatVector::WithLength(1);
  try {
    const Draw draw = method.prepare(arguments);
    for (int i = 0; i < 300; ++i) {
      draw(figures, stream);
      for (const Extended figure : figures) hash.Add(figure);
    }
  } catch (const EMathError& error) {
    hash.Add(static_cast<Extended>(error.message_id()));
  }
}

void AddDistribution(const Family& family, FigureHash& hash, RandomStream& stream) {
  std::vector<Extended> parameters;
  for (const NumberParameter& parameter : family.parameters)
    parameters.push_back(NumberNear(parameter, stream));
  if (family.inconsistency != nullptr && family.inconsistency(parameters) != nullptr) return;
  std::unique_ptr<const AnyDistribution> distribution;
  try {
    distribution = family.make(parameters);
  } catch (const EMathError& error) {
    return hash.Add(static_cast<Extended>(error.message_id()));
  }
  for (const Tail tail : {Tail::kLower, Tail::kUpper}) {
    for (int i = 0; i < 12; ++i) {
      Extended point = 0;
      AddResult(hash, [&] {
        return point = distribution->Quantile(tail, AnyNumber(stream, i < 6 ? -40 : -3, -2));
      });
      for (int k = 0; k < 12; ++k, point += point / 64) {
        const Extended x = family.is_discrete ? std::floor(point) : point;
        AddResult(hash, [&] { return distribution->Pdf(x); });
        AddResult(hash, [&] { return Lower(*distribution, x); });
        AddResult(hash, [&] { return LogUpper(*distribution, x); });
      }
    }
  }
}

}  // namespace

void AddElementaryFunctions(FigureHash& hash, RandomStream& stream) {
  for (const ElementaryFunction& f : kFunctions) {
    for (int i = 0; i < 3000; ++i) {
      const Extended x = AnyNumber(stream, f.least, f.greatest);
      AddResult(hash, [&] { return f.function(f.has_signs ? AnySign(stream, x) : x); });
    }
  }
  for (int i = 0; i < 6000; ++i) {
    const Extended x = AnyNumber(stream, -30, 30);
    hash.Add(Pow(x, AnySign(stream, AnyNumber(stream, -6, 8))));
  }
}

void AddVariates(FigureHash& hash, RandomStream& stream) {
  for (const Variate& variate : Variates()) {
    for (int i = 0; i < 6; ++i) {
      for (const VariateMethod& method : variate.methods)
        AddVariatesBy(method, variate, hash, stream);
      if (variate.classic) AddVariatesBy(*variate.classic, variate, hash, stream);
    }
  }
}

void AddDistributions(FigureHash& hash, RandomStream& stream) {
  for (const Family& family : Families())
    for (int i = 0; i < 2; ++i) AddDistribution(family, hash, stream);
}

}  // namespace qorvex::apps
