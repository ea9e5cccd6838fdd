#include "qorvex/package/package.h"

#include "qorvex/matrix/currency_shape.h"
#include "qorvex/matrix/shape.h"

namespace qorvex {

namespace {

// A package that is loaded again checks shapes, whatever the program had set before.
void CheckShapesOfMatrices() {
  QorvexMatrix::QorMatrixRectangularCheck = true;
}
void CheckShapesOfCurrencyMatrices() {
  QorvexFinMatrix::QorMatrixRectangularCheck = true;
}

constexpr PackageUnit kUnits[] = {
    {.name = "QorvexGlobals"},
    {.name = "Qorvex_rs_math"},
    {.name = "QorvexVector"},
    {.name = "QorvexFinVector"},
    {.name = "QorvexMatrix", .initialise = CheckShapesOfMatrices},
    {.name = "QorvexFinMatrix", .initialise = CheckShapesOfCurrencyMatrices},
    {.name = "QorvexStatistics"},
    {.name = "QorvexPairStats"},
    {.name = "QorvexRandom"},
    {.name = "Qorvex_RS_DescStats"},
    {.name = "QorvexDescStats"},
    {.name = "QorvexVectorEdit"},
    {.name = "QorvexMatrixEdit"},
    {.name = "QorvexMatrixFractEdit"},
    {.name = "QorvexMathLabel"},
};

const PackageSession session(kUnits);

}  // namespace

std::span<const PackageUnit> PackageUnits() noexcept {
  return kUnits;
}

}  // namespace qorvex
