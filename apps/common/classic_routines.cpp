#include "apps/common/classic_routines.h"

#include "qorvex/stats/QorvexStatistics.h"

namespace qorvex::apps {

namespace {

using A = Numbers;
using Vector = TQorFloatVector;

// Degrees of freedom and counts.
std::uint32_t N(Extended number) {
  return static_cast<std::uint32_t>(number);
}

}  // namespace

constexpr ClassicRoutines kClassicNormal = {
    [](A a) { return NormalPDF(a[2], a[0], a[1]); },
    [](A a) { return NormalDistLess(a[0], a[1], a[2]); },
    [](A a) { return NormalDistGreater(a[0], a[1], a[2]); },
    [](A a) { return NormalDistBetween(a[0], a[1], a[2], a[3]); },
    [](A a) { return InvNormalDistLess(a[0], a[1], a[2]); },
    [](A a) { return InvNormalDistGreater(a[0], a[1], a[2]); },
    [](A a, std::int32_t n, Vector& xs, Vector& ys) {
      NormalPDFValues(a[0], a[1], a[2], a[3], n, xs, ys);
    }};

constexpr ClassicRoutines kClassicLogNormal = {
    [](A a) { return LogNormalPDF(a[2], a[0], a[1]); },
    [](A a) { return LogNormalLess(a[0], a[1], a[2]); },
    [](A a) { return LogNormalGreater(a[0], a[1], a[2]); },
    [](A a) { return LogNormalBetween(a[0], a[1], a[2], a[3]); },
    [](A a) { return InvLogNormalLess(a[0], a[1], a[2]); },
    [](A a) { return InvLogNormalGreater(a[0], a[1], a[2]); },
    [](A a, std::int32_t n, Vector& xs, Vector& ys) {
      LogNormalPDFValues(a[0], a[1], a[2], a[3], n, xs, ys);
    }};

constexpr ClassicRoutines kClassicExponential = {
    .density = [](A a) { return ExponentialPDF(a[1], a[0]); },
    .less = [](A a) { return ExponentialLess(a[0], a[1]); },
    .greater = [](A a) { return ExponentialGreater(a[0], a[1]); },
    .between = [](A a) { return ExponentialBetween(a[0], a[1], a[2]); },
    .table = [](A a, std::int32_t n, Vector& xs,
                Vector& ys) { ExponentialPDFValues(a[0], a[1], a[2], n, xs, ys); }};

constexpr ClassicRoutines kClassicGamma = {
    .less = [](A a) { return IncompleteGamma(a[0], a[2] / a[1]); }};

constexpr ClassicRoutines kClassicChiSquare = {
    [](A a) { return ChiSquarePDF(a[1], N(a[0])); },
    [](A a) { return ChiSquareLess(a[1], N(a[0])); },
    [](A a) { return ChiSquareGreater(a[1], N(a[0])); },
    [](A a) { return ChiSquareBetween(a[1], a[2], N(a[0])); },
    [](A a) { return InvChiSquareLess(N(a[0]), a[1]); },
    [](A a) { return InvChiSquareGreater(N(a[0]), a[1]); },
    [](A a, std::int32_t n, Vector& xs, Vector& ys) {
      ChiSquarePDFValues(N(a[0]), a[1], a[2], n, xs, ys);
    }};

constexpr ClassicRoutines kClassicStudentT = {
    [](A a) { return StudentTPDF(a[1], N(a[0])); },
    [](A a) { return StudentTLess(a[1], N(a[0])); },
    [](A a) { return StudentTGreater(a[1], N(a[0])); },
    [](A a) { return StudentTBetween(a[1], a[2], N(a[0])); },
    [](A a) { return InvStudentTLess(N(a[0]), a[1]); },
    [](A a) { return InvStudentTGreater(N(a[0]), a[1]); },
    [](A a, std::int32_t n, Vector& xs, Vector& ys) {
      StudentTPDFValues(N(a[0]), a[1], a[2], n, xs, ys);
    }};

constexpr ClassicRoutines kClassicF = {
    [](A a) { return FDistPDF(a[2], N(a[0]), N(a[1])); },
    [](A a) { return FDistLess(a[2], N(a[0]), N(a[1])); },
    [](A a) { return FDistGreater(a[2], N(a[0]), N(a[1])); },
    [](A a) { return FDistBetween(a[2], a[3], N(a[0]), N(a[1])); },
    [](A a) { return InvFDistLess(N(a[0]), N(a[1]), a[2]); },
    [](A a) { return InvFDistGreater(N(a[0]), N(a[1]), a[2]); },
    [](A a, std::int32_t n, Vector& xs, Vector& ys) {
      FDistPDFValues(N(a[0]), N(a[1]), a[2], a[3], n, xs, ys);
    }};

// The ends of the support follow the shapes.
constexpr ClassicRoutines kClassicBeta = {
    [](A a) { return BetaPDF(a[4], a[0], a[1], a[2], a[3]); },
    [](A a) { return BetaDistLess(a[4], a[0], a[1], a[2], a[3]); },
    [](A a) { return BetaDistGreater(a[4], a[0], a[1], a[2], a[3]); },
    [](A a) { return BetaDistBetween(a[4], a[5], a[0], a[1], a[2], a[3]); },
    [](A a) { return InvBetaDistLess(a[0], a[1], a[2], a[3], a[4]); },
    [](A a) { return InvBetaDistGreater(a[0], a[1], a[2], a[3], a[4]); },
    [](A a, std::int32_t n, Vector& xs, Vector& ys) {
      BetaPDFValues(a[0], a[1], a[2], a[3], a[4], a[5], n, xs, ys);
    }};

constexpr ClassicRoutines kClassicBinomial = {
    .density = [](A a) { return BinomialEq(a[0], N(a[1]), N(a[2])); },
    .less = [](A a) { return BinomialLess(a[0], N(a[1]), N(a[2])); },
    .greater = [](A a) { return BinomialGreater(a[0], N(a[1]), N(a[2])); },
    .between = [](A a) { return BinomialBetween(a[0], N(a[1]), N(a[2]), N(a[3])); }};

constexpr ClassicRoutines kClassicHypergeometric = {
    .density = [](A a) { return HyperGeometricEq(N(a[0]), N(a[1]), N(a[2]), N(a[3])); },
    .less = [](A a) { return HyperGeometricLess(N(a[0]), N(a[1]), N(a[2]), N(a[3])); },
    .greater = [](A a) { return HyperGeometricGreater(N(a[0]), N(a[1]), N(a[2]), N(a[3])); },
    .between =
        [](A a) { return HyperGeometricBetween(N(a[0]), N(a[1]), N(a[2]), N(a[3]), N(a[4])); }};

constexpr ClassicRoutines kClassicPoisson = {
    .density = [](A a) { return PoissonEq(a[0], N(a[1])); },
    .less = [](A a) { return PoissonLess(a[0], N(a[1])); },
    .greater = [](A a) { return PoissonGreater(a[0], N(a[1])); },
    .between = [](A a) { return PoissonBetween(a[0], N(a[1]), N(a[2])); }};

}  // namespace qorvex::apps
