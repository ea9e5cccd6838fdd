#include "apps/common/hypothesis_tests.h"

#include <optional>

#include "apps/common/test_computations.h"
#include "qorvex/base/exact/rational.h"

namespace qorvex::apps {

namespace {

constexpr NullValue kDifference = {"--difference", "The difference of the null hypothesis",
                                   NumberKind::kReal, "0"};
constexpr NullValue kCentre = {"--centre", "The centre of the null hypothesis", NumberKind::kReal,
                               "0"};

const HypothesisTest kTests[] = {
    {.name = "one-sample-t",
     .aliases = {"t"},
     .summary = "Whether a mean has a value: Student's t test of each column",
     .input = TestInput::kSample,
     .null_value = {"--mean", "The mean of the null hypothesis", NumberKind::kReal, "0"},
     .run = OneMean},
    {.name = "welch",
     .summary = "Whether two means differ, whatever the variances: Welch's t test",
     .input = TestInput::kTwoSamples,
     .null_value = kDifference,
     .run = TwoMeansWelch},
    {.name = "two-sample-t",
     .summary = "Whether two means differ, for equal variances: Student's t test",
     .input = TestInput::kTwoSamples,
     .null_value = kDifference,
     .run = TwoMeansPooled},
    {.name = "paired-t",
     .summary = "Whether the values of pairs differ: Student's t test of x - y",
     .input = TestInput::kPairs,
     .null_value = kDifference,
     .run = MeanOfDifferences},
    {.name = "anova",
     .summary = "Whether several means differ: one-way analysis of variance",
     .input = TestInput::kSeveralSamples,
     .has_alternative = false,
     .run = SeveralMeans},
    {.name = "variance",
     .summary = "Whether a variance has a value: chi-square test of each column",
     .input = TestInput::kSample,
     .null_value = {"--variance", "The variance of the null hypothesis", NumberKind::kPositive},
     .run = OneVariance},
    {.name = "variance-ratio",
     .aliases = {"f"},
     .summary = "Whether two variances differ: F test",
     .input = TestInput::kTwoSamples,
     .null_value = {"--ratio", "The ratio of the null hypothesis", NumberKind::kPositive, "1"},
     .run = TwoVariances},
    {.name = "mann-whitney",
     .aliases = {"rank-sum"},
     .summary = "Whether one sample tends to larger values: Mann and Whitney's rank test",
     .input = TestInput::kTwoSamples,
     .null_value = {"--shift", "The shift of the null hypothesis", NumberKind::kReal, "0"},
     .run = TwoCentres},
    {.name = "wilcoxon",
     .aliases = {"signed-rank"},
     .summary = "Whether values are symmetric about a centre: Wilcoxon's test",
     .input = TestInput::kSample,
     .null_value = kCentre,
     .run = OneCentre},
    {.name = "paired-wilcoxon",
     .summary = "Whether the values of pairs differ: Wilcoxon's test of x - y",
     .input = TestInput::kPairs,
     .null_value = kCentre,
     .run = CentreOfDifferences},
    {.name = "kolmogorov-smirnov",
     .aliases = {"ks"},
     .summary = "Whether values follow a distribution, each column",
     .input = TestInput::kSample,
     .takes_family = true,
     .run = AgainstFamily},
    {.name = "two-sample-kolmogorov-smirnov",
     .aliases = {"two-sample-ks"},
     .summary = "Whether two samples follow the same distribution",
     .input = TestInput::kTwoSamples,
     .run = TwoDistributions},
    {.name = "shapiro-wilk",
     .aliases = {"shapiro"},
     .summary = "Whether values are normal: the test of each column",
     .input = TestInput::kSample,
     .has_alternative = false,
     .run = Normality},
    {.name = "goodness-of-fit",
     .aliases = {"chi-square", "chisq"},
     .summary = "Whether counts follow proportions: chi-square test of each column",
     .input = TestInput::kCounts,
     .has_alternative = false,
     .run = GoodnessOfFit},
    {.name = "independence",
     .summary = "Whether rows and columns of a table of counts are independent",
     .input = TestInput::kCountTable,
     .has_alternative = false,
     .run = Independence},
    {.name = "binomial",
     .aliases = {"binom"},
     .summary = "Whether the probability of success has a value: exact binomial test",
     .input = TestInput::kTrials,
     .null_value = {"--success-probability", "The probability of the null hypothesis",
                    NumberKind::kShare, "0.5"},
     .run = Binomial},
};

}  // namespace

Extended TestSettings::Significance() const {
  const std::optional<DecimalNumber> decimal = ParseDecimal(confidence.text);
  // Beyond this, 1 less the number rounds to 1.
  if (!decimal || decimal->exponent < -5000) return 1 - confidence.value;
  return (1 - exact::Rational(decimal->integer) *
                  exact::Rational::PowerOfTen(static_cast<int>(decimal->exponent)))
      .Round();
}

std::span<const HypothesisTest> HypothesisTests() {
  return kTests;
}

}  // namespace qorvex::apps
