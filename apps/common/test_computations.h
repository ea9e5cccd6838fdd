#pragma once

/// @file
/// The computations behind the catalogue of tests.

#include <span>

#include "apps/common/hypothesis_tests.h"

namespace qorvex::apps {

using Samples = std::span<const NumberSample>;
using TestComputation = TestReport(Samples samples, const TestSettings& settings);

/// @{
/// One for each entry.
TestComputation OneMean, TwoMeansWelch, TwoMeansPooled, MeanOfDifferences, SeveralMeans;
TestComputation OneVariance, TwoVariances;
TestComputation OneCentre, CentreOfDifferences, TwoCentres;
TestComputation AgainstFamily, TwoDistributions, Normality;
TestComputation GoodnessOfFit, Independence, Binomial;
/// @}

}  // namespace qorvex::apps
