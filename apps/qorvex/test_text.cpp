#include <cmath>
#include <utility>

#include "apps/common/hidden_figures.h"
#include "apps/common/input_error.h"
#include "apps/common/probability_text.h"
#include "apps/common/text_input.h"
#include "apps/qorvex/test_arguments.h"
#include "apps/qorvex/test_report.h"
#include "apps/qorvex/text_output.h"
#include "qorvex/base/errors.h"
#include "qorvex/base/text.h"
#include "qorvex/stats/Qorvex_RS_DescStats.h"
#include "qorvex/stats/distributions/chi_square.h"
#include "qorvex/stats/distributions/f_distribution.h"
#include "qorvex/stats/distributions/student_t.h"

namespace qorvex::apps {

namespace {

const char* TextOf(TestForm form) {
  switch (form) {
    case TestForm::kExact:
      return "exact";
    case TestForm::kWelch:
      return "Student's t with Welch's degrees of freedom";
    case TestForm::kNormalApproximation:
      return "normal approximation";
    case TestForm::kChiSquareApproximation:
      return "chi-square approximation";
    case TestForm::kLimit:
      break;
  }
  return "limit for large samples";
}

class TestText {
 public:
  TestText(const TestReport& report, const TestArguments& arguments)
      : report_(report), result_(report.result), arguments_(arguments) {}

  [[nodiscard]] std::string Take() {
    text_ = report_.title + '\n';
    for (const TestSample& sample : report_.samples) AddSample(sample);
    AddFigures(report_.figures);
    Line(ReportText(rsNullHypothesis), report_.null_hypothesis);
    Line(ReportText(rsAlternateHypothesis), report_.alternate_hypothesis);
    AddResult();
    AddDecision();
    AddIntervals();
    return std::move(text_);
  }

 private:
  // Whole numbers have no decimals.
  [[nodiscard]] std::string Number(Extended figure) const {
    const bool is_whole = std::isfinite(figure) && figure == std::floor(figure);
    return is_whole ? Float2EStr(figure, 0) : Figure(figure);
  }
  [[nodiscard]] std::string Figure(Extended figure) const {
    return AvailableText(figure, arguments_.decimals);
  }

  void Line(const std::string& label, const std::string& value) {
    text_ += label + '\t' + value + '\n';
  }

  void AddSample(const TestSample& sample) {
    if (sample.column != 0) {
      text_ += "Column " + Int2EStr(sample.column);
      if (!sample.name.empty()) text_ += ": " + OnOneLine(sample.name);
      if (!sample.group.empty()) text_ += ", " + sample.group;
      text_ += '\n';
    }
    AddFigures(sample.figures);
  }

  void AddFigures(const std::vector<TestFigure>& figures) {
    for (const TestFigure& figure : figures)
      Line(figure.label, figure.is_count ? Number(figure.value) : Figure(figure.value));
  }

  void AddResult() {
    Line(ReportText(rsTestStatistic),
         report_.statistic_is_count ? Number(result_.statistic) : Figure(result_.statistic));
    if (!std::isnan(result_.degrees_of_freedom)) {
      const std::string second = std::isnan(result_.second_degrees_of_freedom)
                                     ? ""
                                     : " and " + Number(result_.second_degrees_of_freedom);
      Line("Degrees of Freedom:", Number(result_.degrees_of_freedom) + second);
    }
    Line("Form of the Test:", TextOf(result_.form));
    Line(ReportText(rsPValue),
         std::isnan(result_.p) ? MessageText(rsNA)
                               : ProbabilityText(result_.p, result_.log_p, arguments_.decimals));
  }

  void AddDecision() {
    const Extended significance = arguments_.Significance();
    Line(ReportText(rsDSSignificance), Float2Str(significance));
    if (std::isnan(result_.p)) return;
    switch (report_.law) {
      case StatisticLaw::kStudentT:
        AddRejectionRegion(StudentTDistribution(result_.degrees_of_freedom), significance);
        break;
      case StatisticLaw::kChiSquare:
        AddRejectionRegion(ChiSquareDistribution(result_.degrees_of_freedom), significance);
        break;
      case StatisticLaw::kF:
        AddRejectionRegion(
            FDistribution(result_.degrees_of_freedom, result_.second_degrees_of_freedom),
            significance);
        break;
      case StatisticLaw::kOther:
        break;
    }
    const bool is_rejected = result_.p <= significance;
    text_ += ReportText(is_rejected ? rsRejected : rsNotRejected) + '\n';
    text_ += ReportText(is_rejected ? rsRejectReason : rsNotRejectReason) + '\n';
  }

  template <class Law>
  void AddRejectionRegion(const Law& law, Extended significance) {
    const std::string symbol = report_.symbol;
    const auto below = [&](Extended p) {
      return symbol + " <= " + Figure(law.Quantile(Tail::kLower, p));
    };
    const auto above = [&](Extended p) {
      return symbol + " >= " + Figure(law.Quantile(Tail::kUpper, p));
    };
    std::string region;
    switch (report_.alternative) {
      case Alternative::kTwoSided:
        region = below(significance / 2) + " or " + above(significance / 2);
        break;
      case Alternative::kLess:
        region = below(significance);
        break;
      case Alternative::kGreater:
        region = above(significance);
        break;
    }
    Line(ReportText(rsRejectionRegion), region);
  }

  void AddIntervals() {
    if (report_.intervals.empty()) return;
    Line(ReportText(rsDSConfidence), arguments_.confidence.text);
    for (const TestInterval& interval : report_.intervals)
      Line(interval.label, Figure(interval.ends.least) + " to " + Figure(interval.ends.greatest));
  }

  const TestReport& report_;
  const TestResult& result_;
  const TestArguments& arguments_;
  std::string text_;
};

}  // namespace

void RemarkOnSmallFigures(const std::vector<TestReport>& reports, const TestArguments& arguments) {
  UnderflowedFigures underflowed;
  for (const TestReport& report : reports) {
    for (const TestFigure& figure : report.figures) underflowed.Check(figure.value, figure.witness);
    for (const TestInterval& interval : report.intervals) {
      underflowed.Check(interval.ends.least, interval.witness);
      underflowed.Check(interval.ends.greatest, interval.witness);
    }
  }
  if (underflowed.count > 0)
    WriteRemark(OnOneLine(InputName(arguments.table.file)) + ": " + underflowed.Remark());
}

std::string TextOf(const std::vector<TestReport>& reports, const TestArguments& arguments) {
  std::string text;
  for (const TestReport& report : reports) {
    if (!text.empty()) text += '\n';
    text += TestText(report, arguments).Take();
  }
  return text;
}

}  // namespace qorvex::apps
