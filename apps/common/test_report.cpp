#include "apps/common/test_report.h"

namespace qorvex::apps {

void TestReport::SetHypotheses(const std::string& subject, const std::string& value) {
  const char* const relation = alternative == Alternative::kTwoSided ? " is not "
                               : alternative == Alternative::kLess   ? " is less than "
                                                                     : " is greater than ";
  null_hypothesis = subject + " is " + value;
  alternate_hypothesis = subject + relation + value;
}

}  // namespace qorvex::apps
