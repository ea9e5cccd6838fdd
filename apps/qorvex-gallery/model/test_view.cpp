// The texts for the outcome of a test.

#include <QCoreApplication>
#include <cmath>

#include "apps/common/figure_format.h"
#include "apps/qorvex-gallery/model/test_order.h"
#include "apps/qorvex-gallery/model/test_texts.h"
#include "apps/qorvex-gallery/model/texts.h"
#include "qorvex/base/text.h"

namespace qorvex::gallery {

namespace {

using apps::TestFigure;
using apps::TestReport;

class TestViewMaker {
  Q_DECLARE_TR_FUNCTIONS(TestView)

 public:
  TestViewMaker(const TestOrder& order, const TestOutcome& outcome)
      : order_(order),
        reports_(outcome.reports),
        texts_(*order.test),
        format_(apps::FormatFor(outcome.digits)),
        significance_(order.settings.Significance()) {}

  [[nodiscard]] TestView Make() const {
    const QString hypothesis = LocalText(order_.settings.hypothesis.text);
    TestView view;
    view.paragraphs = {
        tr("Null hypothesis: %1").arg(texts_.NullHypothesis(hypothesis)),
        reports_.size() == 1
            ? Decision(reports_[0], texts_.Alternative(order_.settings.alternative, hypothesis))
            : Decisions(),
        tr("Assumptions: %1").arg(texts_.Assumptions())};
    AddSamples(view);
    if (reports_.size() == 1) AddResults(view, reports_[0]);
    return view;
  }

 private:
  [[nodiscard]] QString Figure(Extended figure) const {
    return std::isnan(figure) ? Dash() : LocalText(format_.Text(figure));
  }
  [[nodiscard]] QString Figure(const TestFigure& figure) const {
    return figure.is_count ? LocalText(Float2EStr(figure.value, 0)) : Figure(figure.value);
  }
  [[nodiscard]] QString ProbabilityOf(const TestResult& result) const {
    if (std::isnan(result.p)) return Dash();
    return LocalText(format_.Text(apps::Probability{result.p, result.log_p}));
  }
  [[nodiscard]] bool IsRejected(const TestReport& report) const {
    return report.result.p <= significance_;
  }

  [[nodiscard]] QString Decision(const TestReport& report, const QString& alternative) const {
    if (std::isnan(report.result.p)) return tr("p does not exist for these values.");
    const QString level = ExactText(significance_);
    if (IsRejected(report)) {
      return tr("Rejected: p is at most the significance level, %1. The data speak for the "
                "alternative: %2")
          .arg(level, alternative);
    }
    return tr("Not rejected: p is above the significance level, %1. The data agree with the null "
              "hypothesis, which does not prove it.")
        .arg(level);
  }

  [[nodiscard]] QString Decisions() const {
    const auto rejected = std::ranges::count_if(
        reports_, [this](const TestReport& report) { return IsRejected(report); });
    return tr("Rejected for %L1 of %L2 samples: those whose p is at most the significance level, "
              "%3.")
        .arg(rejected)
        .arg(reports_.size())
        .arg(ExactText(significance_));
  }

  // Each sample with its figures; with those of the test if each has one of its own.
  void AddSamples(TestView& view) const {
    const bool each = reports_.size() > 1;
    for (const TestReport& report : reports_) {
      for (const apps::TestSample& sample : report.samples) {
        QStringList labels = {QString()};
        QStringList texts = {QString::fromStdString(sample.name)};
        for (const TestFigure& figure : sample.figures) {
          labels.append(TestTexts::LabelOf(figure));
          texts.append(Figure(figure));
        }
        if (each) {
          labels.append({SymbolOf(report), tr("p")});
          texts.append({Figure(report.result.statistic), ProbabilityOf(report.result)});
        }
        if (view.samples.isEmpty()) view.samples.append(labels);
        view.samples.append(texts);
      }
    }
  }

  void AddResults(TestView& view, const TestReport& report) const {
    const TestResult& result = report.result;
    QList<QStringList>& rows = view.results;
    rows.append({tr("Statistic %1").arg(SymbolOf(report)),
                 Figure({"", "", result.statistic, report.statistic_is_count})});
    if (!std::isnan(result.degrees_of_freedom)) {
      const bool has_second = !std::isnan(result.second_degrees_of_freedom);
      rows.append(
          {tr("Degrees of freedom"), has_second ? tr("%1 and %2")
                                                      .arg(Figure(result.degrees_of_freedom),
                                                           Figure(result.second_degrees_of_freedom))
                                                : Figure(result.degrees_of_freedom)});
    }
    rows.append({tr("p"), ProbabilityOf(result)});
    rows.append({tr("p comes from"), TestTexts::FormOf(result.form)});
    for (const TestFigure& figure : report.figures)
      rows.append({TestTexts::LabelOf(figure), Figure(figure)});
    const QString level = ExactText(100 * order_.settings.confidence.value);
    for (const apps::TestInterval& interval : report.intervals) {
      rows.append(
          {tr("%1, confidence interval of %2 %").arg(TestTexts::LabelOf(interval), level),
           tr("%1 to %2").arg(Figure(interval.ends.least), Figure(interval.ends.greatest))});
    }
  }

  static QString SymbolOf(const TestReport& report) {
    return report.law == apps::StatisticLaw::kChiSquare ? QStringLiteral("χ²")
                                                        : QString::fromLatin1(report.symbol);
  }

  const TestOrder& order_;
  const std::vector<TestReport>& reports_;
  TestTexts texts_;
  apps::FigureFormat format_;
  Extended significance_;
};

}  // namespace

TestView ViewOf(const TestOrder& order, const TestOutcome& outcome) {
  return TestViewMaker(order, outcome).Make();
}

}  // namespace qorvex::gallery
