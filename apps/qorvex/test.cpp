#include "apps/qorvex/commands.h"
#include "apps/qorvex/common_arguments.h"
#include "apps/qorvex/test_arguments.h"

namespace qorvex::apps {

namespace {

constexpr const char* kExamples = R"(Examples:
  qorvex test one-sample-t speeds.csv --column speed --mean 299792.458
  qorvex test welch heights.csv --column 1 --column 2 --alternative less
  qorvex test anova speeds.csv --column speed --by series --decimals 4
  qorvex test kolmogorov-smirnov normal speeds.csv --column speed --mean 299850 --std-dev 79
  qorvex test binomial --successes 60 --trials 100 --json)";

}  // namespace

void AddTestCommands(CLI::App& program) {
  CLI::App& test = *program.add_subcommand("test", "Tests of hypotheses, with intervals");
  AddMeanTests(test);
  AddVarianceTests(test);
  AddRankTests(test);
  AddDistributionTests(test);
  AddCountTests(test);
  test.footer(kExamples);
  RequireOneCommand(test, "test");
}

}  // namespace qorvex::apps
