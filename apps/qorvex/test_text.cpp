#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

#include "apps/common/hidden_figures.h"
#include "apps/common/input_error.h"
#include "apps/common/text_input.h"
#include "apps/qorvex/report_parts.h"
#include "apps/qorvex/test_arguments.h"
#include "apps/qorvex/test_report.h"
#include "apps/qorvex/text_output.h"
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

// A number without decimals if it is whole.
Cell Whole(Extended figure) {
  const bool is_whole = figure >= 0 && figure < 0x1p63L && figure == std::floor(figure);
  return is_whole ? Cell(static_cast<std::uint64_t>(figure)) : Cell(figure);
}

std::vector<Figure> FiguresOf(const std::vector<TestFigure>& of_test) {
  std::vector<Figure> figures;
  for (const TestFigure& figure : of_test) {
    figures.push_back(
        {figure.key, figure.label, figure.is_count ? Whole(figure.value) : Cell(figure.value)});
  }
  return figures;
}

ReportPart PartOf(const TestSample& sample) {
  ReportPart part{.key = "sample", .figures = FiguresOf(sample.figures)};
  if (sample.column == 0) return part;
  part.item = sample.name.empty() ? "Column " + Int2EStr(sample.column) : sample.name;
  part.title = "Column " + Int2EStr(sample.column);
  if (!sample.name.empty()) part.title += ": " + OnOneLine(sample.name);
  if (!sample.group.empty()) {
    part.item = sample.group;
    part.title += ", " + sample.group;
  }
  if (sample.missing > 0) {
    part.figures.insert(part.figures.begin() + 1,
                        {"missing", "Missing Values:", std::uint64_t{sample.missing}});
  }
  return part;
}

// The figures of a test behind those of its samples.
class TestResultFigures {
 public:
  TestResultFigures(const TestReport& report, const TestArguments& arguments,
                    const FigureFormat& format)
      : report_(report), result_(report.result), arguments_(arguments), format_(format) {}

  [[nodiscard]] std::vector<Figure> Take() {
    figures_ = FiguresOf(report_.figures);
    Add("null_hypothesis", ReportText(rsNullHypothesis), report_.null_hypothesis);
    Add("alternate_hypothesis", ReportText(rsAlternateHypothesis), report_.alternate_hypothesis);
    AddResult();
    AddDecision();
    if (!report_.intervals.empty())
      Add("confidence", ReportText(rsDSConfidence), arguments_.confidence);
    for (const TestInterval& interval : report_.intervals)
      Add(interval.key, interval.label, interval.ends);
    return std::move(figures_);
  }

 private:
  void Add(const char* key, const std::string& label, const Cell& value) {
    figures_.push_back({key, label, value});
  }

  void AddResult() {
    Add("statistic", ReportText(rsTestStatistic),
        report_.statistic_is_count ? Whole(result_.statistic) : Cell(result_.statistic));
    if (!std::isnan(result_.degrees_of_freedom))
      Add("degrees_of_freedom", "Degrees of Freedom:", Whole(result_.degrees_of_freedom));
    if (!std::isnan(result_.second_degrees_of_freedom)) {
      Add("second_degrees_of_freedom",
          "Second Degrees of Freedom:", Whole(result_.second_degrees_of_freedom));
    }
    Add("form", "Form of the Test:", TextOf(result_.form));
    Add("p", ReportText(rsPValue), Probability{result_.p, result_.log_p});
  }

  void AddDecision() {
    const Extended significance = arguments_.Significance();
    Add("significance", ReportText(rsDSSignificance),
        WrittenNumber{Float2Str(significance), significance});
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
    figures_.push_back({"rejected", "Rejected:", is_rejected ? "yes" : "no",
                        ReportText(is_rejected ? rsRejected : rsNotRejected)});
    figures_.push_back(
        {"reason", "", {}, ReportText(is_rejected ? rsRejectReason : rsNotRejectReason)});
  }

  template <class Law>
  void AddRejectionRegion(const Law& law, Extended significance) {
    const std::string symbol = report_.symbol;
    const auto below = [&](Extended p) {
      return symbol + " <= " + format_.Text(law.Quantile(Tail::kLower, p));
    };
    const auto above = [&](Extended p) {
      return symbol + " >= " + format_.Text(law.Quantile(Tail::kUpper, p));
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
    Add("rejection_region", ReportText(rsRejectionRegion), region);
  }

  const TestReport& report_;
  const TestResult& result_;
  const TestArguments& arguments_;
  const FigureFormat& format_;
  std::vector<Figure> figures_;
};

int DigitsOf(const TestReport& report) {
  int digits = 0;
  for (const TestSample& sample : report.samples)
    digits = std::max(digits, sample.significant_digits);
  return digits;
}

std::vector<ReportPart> PartsOf(const TestReport& report, const TestArguments& arguments) {
  std::vector<ReportPart> parts;
  for (const TestSample& sample : report.samples) parts.push_back(PartOf(sample));
  const std::string item = parts.size() == 1 ? parts[0].item : "";
  if (arguments.output.form == OutputForm::kTable && parts.size() > 1) parts = {SideBySide(parts)};
  const FigureFormat format = arguments.output.ForReport(DigitsOf(report));
  parts.push_back({.key = "test",
                   .item = item,
                   .figures = TestResultFigures(report, arguments, format).Take()});
  return parts;
}

std::vector<ReportPart> PartsOf(const std::vector<TestReport>& reports,
                                const TestArguments& arguments) {
  std::vector<ReportPart> parts;
  for (const TestReport& report : reports)
    std::ranges::move(PartsOf(report, arguments), std::back_inserter(parts));
  return parts;
}

}  // namespace

void RemarkOnSmallFigures(const std::vector<TestReport>& reports, const TestArguments& arguments) {
  const std::string& file = arguments.table.file;
  const std::string place = file.empty() ? "" : OnOneLine(InputName(file)) + ": ";
  UnderflowedFigures underflowed;
  for (const TestReport& report : reports) {
    for (const TestFigure& figure : report.figures) underflowed.Check(figure.value, figure.witness);
    for (const TestInterval& interval : report.intervals) {
      underflowed.Check(interval.ends.least, interval.witness);
      underflowed.Check(interval.ends.greatest, interval.witness);
    }
  }
  if (underflowed.count > 0) WriteRemark(place + underflowed.Remark());
  if (arguments.output.CanHideFigures())
    RemarkOnHidden(place, PartsOf(reports, arguments), arguments.output);
}

std::string TextOf(const std::vector<TestReport>& reports, const TestArguments& arguments) {
  if (arguments.output.form == OutputForm::kCsv)
    return CsvOf(PartsOf(reports, arguments), arguments.output.ForReport());
  std::string text;
  for (const TestReport& report : reports) {
    if (!text.empty()) text += '\n';
    text += report.title + '\n' +
            TextOf(PartsOf(report, arguments), arguments.output, DigitsOf(report));
  }
  return text;
}

}  // namespace qorvex::apps
