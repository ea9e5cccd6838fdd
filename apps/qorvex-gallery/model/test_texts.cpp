#include "apps/qorvex-gallery/model/test_texts.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "qorvex/base/errors.h"

namespace qorvex::gallery {

const TestTexts::Texts& TestTexts::Find(const char* name) {
  static const char* const normal = QT_TR_NOOP(
      "The values are independent and come from a normal distribution. The more values there are, "
      "the less the form of the distribution matters.");
  static const char* const variances = QT_TR_NOOP(
      "The values are independent and come from normal distributions. This test is sensitive to "
      "other distributions, however many values there are.");
  static const char* const counts = QT_TR_NOOP(
      "The counted events are independent of one another. The approximation is good if all "
      "expected "
      "counts are at least 5.");
  static const Texts all[] = {
      {"one-sample-t", QT_TR_NOOP("One mean (Student's t)"), normal, QT_TR_NOOP("The mean is %1."),
       QT_TR_NOOP("The mean is not %1."), QT_TR_NOOP("The mean is less than %1."),
       QT_TR_NOOP("The mean is greater than %1."), QT_TR_NOOP("Mean")},
      {"welch", QT_TR_NOOP("Two means (Welch's t)"),
       QT_TR_NOOP("The values are independent, and each sample comes from a normal distribution. "
                  "The variances may differ. The more values there are, the less the form of the "
                  "distributions matters."),
       QT_TR_NOOP("The first mean less the second is %1."),
       QT_TR_NOOP("The first mean less the second is not %1."),
       QT_TR_NOOP("The first mean less the second is below %1."),
       QT_TR_NOOP("The first mean less the second is above %1."), QT_TR_NOOP("Difference")},
      {"two-sample-t", QT_TR_NOOP("Two means, equal variances (Student's t)"),
       QT_TR_NOOP(
           "The values are independent, and both samples come from normal distributions with "
           "the same variance. Use Welch's test unless you know that."),
       QT_TR_NOOP("The first mean less the second is %1."),
       QT_TR_NOOP("The first mean less the second is not %1."),
       QT_TR_NOOP("The first mean less the second is below %1."),
       QT_TR_NOOP("The first mean less the second is above %1."), QT_TR_NOOP("Difference")},
      {"paired-t", QT_TR_NOOP("Pairs: mean difference (Student's t)"),
       QT_TR_NOOP("The pairs are independent, and their differences come from a normal "
                  "distribution. The more pairs there are, the less its form matters."),
       QT_TR_NOOP("The mean of the differences x − y is %1."),
       QT_TR_NOOP("The mean of the differences x − y is not %1."),
       QT_TR_NOOP("The mean of the differences x − y is less than %1."),
       QT_TR_NOOP("The mean of the differences x − y is greater than %1."),
       QT_TR_NOOP("Difference")},
      {"anova", QT_TR_NOOP("Several means (analysis of variance)"),
       QT_TR_NOOP("The values are independent, and all samples come from normal distributions with "
                  "the same variance."),
       QT_TR_NOOP("All means are equal."), QT_TR_NOOP("Some means differ.")},
      {"variance", QT_TR_NOOP("One variance (chi-square)"), variances,
       QT_TR_NOOP("The variance is %1."), QT_TR_NOOP("The variance is not %1."),
       QT_TR_NOOP("The variance is less than %1."), QT_TR_NOOP("The variance is greater than %1."),
       QT_TR_NOOP("Variance")},
      {"variance-ratio", QT_TR_NOOP("Two variances (F)"), variances,
       QT_TR_NOOP("The first variance is %1 times the second."),
       QT_TR_NOOP("The first variance is not %1 times the second."),
       QT_TR_NOOP("The first variance is less than %1 times the second."),
       QT_TR_NOOP("The first variance is greater than %1 times the second."), QT_TR_NOOP("Ratio")},
      {"mann-whitney", QT_TR_NOOP("Two samples by ranks (Mann-Whitney)"),
       QT_TR_NOOP("The values are independent, and the distributions of both samples differ in "
                  "their place only. They need not be normal."),
       QT_TR_NOOP("The first sample lies %1 above the second."),
       QT_TR_NOOP("The first sample does not lie %1 above the second."),
       QT_TR_NOOP("The first sample lies less than %1 above the second."),
       QT_TR_NOOP("The first sample lies more than %1 above the second."), QT_TR_NOOP("Shift")},
      {"wilcoxon", QT_TR_NOOP("One centre by ranks (Wilcoxon)"),
       QT_TR_NOOP("The values are independent and come from a symmetric distribution, which need "
                  "not be normal."),
       QT_TR_NOOP("The values are symmetric about %1."),
       QT_TR_NOOP("The values are symmetric about another centre than %1."),
       QT_TR_NOOP("The centre of the values is less than %1."),
       QT_TR_NOOP("The centre of the values is greater than %1."), QT_TR_NOOP("Centre")},
      {"paired-wilcoxon", QT_TR_NOOP("Pairs by ranks (Wilcoxon)"),
       QT_TR_NOOP("The pairs are independent, and their differences come from a symmetric "
                  "distribution, which need not be normal."),
       QT_TR_NOOP("The differences x − y are symmetric about %1."),
       QT_TR_NOOP("The differences x − y are symmetric about another centre than %1."),
       QT_TR_NOOP("The centre of the differences x − y is less than %1."),
       QT_TR_NOOP("The centre of the differences x − y is greater than %1."), QT_TR_NOOP("Centre")},
      {"kolmogorov-smirnov", QT_TR_NOOP("One distribution (Kolmogorov-Smirnov)"),
       QT_TR_NOOP(
           "The values are independent, and the parameters of the distribution were known "
           "beforehand. With parameters that were estimated from the values, p is too large."),
       QT_TR_NOOP("The values follow the distribution."),
       QT_TR_NOOP("The values do not follow the distribution."),
       QT_TR_NOOP("The values tend to be larger: their distribution function lies below."),
       QT_TR_NOOP("The values tend to be smaller: their distribution function lies above.")},
      {"two-sample-kolmogorov-smirnov", QT_TR_NOOP("Two distributions (Kolmogorov-Smirnov)"),
       QT_TR_NOOP("The values are independent. Their distributions may have any form."),
       QT_TR_NOOP("Both samples follow the same distribution."),
       QT_TR_NOOP("The samples follow different distributions."),
       QT_TR_NOOP("The first sample tends to be larger: its distribution function lies below."),
       QT_TR_NOOP("The first sample tends to be smaller: its distribution function lies above.")},
      {"shapiro-wilk", QT_TR_NOOP("Normality (Shapiro-Wilk)"),
       QT_TR_NOOP("The values are independent. The test takes 3 to 5000 of them."),
       QT_TR_NOOP("The values follow a normal distribution."),
       QT_TR_NOOP("The values do not follow a normal distribution.")},
      {"goodness-of-fit", QT_TR_NOOP("Counts and proportions (chi-square)"), counts,
       QT_TR_NOOP("The counts follow the proportions."),
       QT_TR_NOOP("The counts do not follow the proportions.")},
      {"independence", QT_TR_NOOP("Table of counts (chi-square)"), counts,
       QT_TR_NOOP("Rows and columns are independent."),
       QT_TR_NOOP("Rows and columns are not independent.")},
      {"binomial", QT_TR_NOOP("Successes in trials (binomial)"),
       QT_TR_NOOP("The trials are independent and have the same probability of success."),
       QT_TR_NOOP("The probability of success is %1."),
       QT_TR_NOOP("The probability of success is not %1."),
       QT_TR_NOOP("The probability of success is less than %1."),
       QT_TR_NOOP("The probability of success is greater than %1."), QT_TR_NOOP("Probability")}};
  return *std::ranges::find(all, std::string_view(name),
                            [](const Texts& texts) { return std::string_view(texts.test); });
}

TestTexts::TestTexts(const apps::HypothesisTest& test) : texts_(Find(test.name)) {}

QString TestTexts::NullHypothesis(const QString& number) const {
  const QString text = tr(texts_.null_hypothesis);
  return number.isEmpty() ? text : text.arg(number);
}

QString TestTexts::Alternative(qorvex::Alternative alternative, const QString& number) const {
  const char* text = texts_.two_sided;
  if (alternative == qorvex::Alternative::kLess) text = texts_.less;
  if (alternative == qorvex::Alternative::kGreater) text = texts_.greater;
  return number.isEmpty() ? tr(text) : tr(text).arg(number);
}

QString TestTexts::LabelOf(const apps::TestFigure& figure) {
  static const std::pair<std::string_view, const char*> labels[] = {
      {"count", QT_TR_NOOP("Values")},
      {"mean", QT_TR_NOOP("Mean")},
      {"standard_deviation", QT_TR_NOOP("Standard deviation")},
      {"median", QT_TR_NOOP("Median")},
      {"cells", QT_TR_NOOP("Cells")},
      {"total", QT_TR_NOOP("Total")},
      {"successes", QT_TR_NOOP("Successes")},
      {"trials", QT_TR_NOOP("Trials")},
      {"proportion", QT_TR_NOOP("Proportion")},
      {"variance", QT_TR_NOOP("Variance")},
      {"mean_difference", QT_TR_NOOP("Mean of the differences")},
      {"standard_deviation_of_differences", QT_TR_NOOP("Standard deviation of the differences")},
      {"sum_of_squares_between", QT_TR_NOOP("Sum of squares between groups")},
      {"sum_of_squares_within", QT_TR_NOOP("Sum of squares within groups")},
      {"mean_square_between", QT_TR_NOOP("Mean square between groups")},
      {"mean_square_within", QT_TR_NOOP("Mean square within groups")},
      {"determination", QT_TR_NOOP("Coefficient of determination")},
      {"residual_standard_deviation", QT_TR_NOOP("Residual standard deviation")}};
  const auto* const found = std::ranges::find(labels, std::string_view(figure.key),
                                              &std::pair<std::string_view, const char*>::first);
  return found == std::end(labels) ? QString::fromStdString(figure.label) : tr(found->second);
}

QString TestTexts::LabelOf(const apps::TestInterval& interval) {
  static const std::pair<std::string_view, const char*> labels[] = {
      {"mean_interval", QT_TR_NOOP("Mean")},
      {"difference_interval", QT_TR_NOOP("Difference of the means")},
      {"variance_interval", QT_TR_NOOP("Variance")},
      {"clopper_pearson_interval", QT_TR_NOOP("Probability, by Clopper and Pearson")},
      {"wilson_interval", QT_TR_NOOP("Probability, by Wilson")}};
  const auto* const found = std::ranges::find(labels, std::string_view(interval.key),
                                              &std::pair<std::string_view, const char*>::first);
  return found == std::end(labels) ? QString::fromStdString(interval.label) : tr(found->second);
}

QString TestTexts::FormOf(TestForm form) {
  switch (form) {
    case TestForm::kExact:
      return tr("exact");
    case TestForm::kWelch:
      return tr("Student's t with Welch's degrees of freedom");
    case TestForm::kNormalApproximation:
      return tr("normal approximation");
    case TestForm::kChiSquareApproximation:
      return tr("chi-square approximation");
    case TestForm::kLimit:
      break;
  }
  return tr("limit for large samples");
}

QString TestTexts::WhyNot(const EMathError& error) {
  static const char* const texts[] = {
      QT_TR_NOOP("the test needs at least two values"),
      QT_TR_NOOP("the test needs at least three values"),
      QT_TR_NOOP("the values must not all be the same"),
      QT_TR_NOOP("no degrees of freedom are left"),
      QT_TR_NOOP("all counts are 0"),
      QT_TR_NOOP("the proportions must all be greater than 0"),
      QT_TR_NOOP("the table needs at least two rows and two columns"),
      QT_TR_NOOP("a row or a column of the table holds nothing but 0"),
      QT_TR_NOOP("the test takes at most 5000 values")};
  const char* const why = apps::WhyNoResult(error.message_id());
  const std::string_view text = why != nullptr ? why : error.what();
  const auto* const found = std::ranges::find(texts, text);
  return found == std::end(texts) ? QString::fromUtf8(error.what()) : tr(*found);
}

}  // namespace qorvex::gallery
