
#include "qorvex/stats/Qorvex_RS_DescStats.h"
#include "support/test.h"

namespace qorvex {

constexpr ReportTextId kAllTexts[] = {
#define QORVEX_ID(id, text) id,
    QORVEX_REPORT_TEXTS(QORVEX_ID)
#undef QORVEX_ID
};

// The tests of the report check the texts that it uses. Here: which texts end in a blank, and the
// long texts, which span source lines.
TEST(ReportTexts, HaveTheirExactWording) {
  std::string with_trailing_blank;
  for (const ReportTextId id : kAllTexts) {
    if (ReportText(id).ends_with(' ')) with_trailing_blank += ReportText(id);
  }
  EXPECT_EQ(with_trailing_blank,
            "Confidence Level: Significance Level: Null Hypothesis: Alternate Hypothesis: "
            "Test Statistics: Confidence Interval for the Mean: "
            "Confidence Interval for the Variance: P-Value: Rejection Region: ");
  EXPECT_EQ(ReportText(rsRejectReason),
            "There is sufficient Statistical evidence to reject the proposal behind the Null "
            "Hypothesis");
  EXPECT_EQ(ReportText(rsNotRejectReason),
            "There is insufficient Statistical evidence to reject the proposal behind the Null "
            "Hypothesis");
  EXPECT_EQ(ReportText(rsNotRejected), "Null Hypothesis is not-Rejected!");
  EXPECT_EQ(ReportText(rsDSCoeffCor), "Coefficient of Correlation");
}

TEST(ReportTexts, CanBeReplaced) {
  SetReportText(rsDSMean, "Mittelwert:");
  EXPECT_EQ(ReportText(rsDSMean), "Mittelwert:");
  SetReportLookup([](ReportTextId id) {
    if (id != rsDSMean) return std::optional<std::string>();
    return std::optional("translated " + std::string(EnglishReportText(id)));
  });
  EXPECT_EQ(ReportText(rsDSMean), "translated Mean:");
  EXPECT_EQ(ReportText(rsDSMode), "Mode:");
  SetReportLookup(nullptr);
  ResetReportText(rsDSMean);
  EXPECT_EQ(ReportText(rsDSMean), "Mean:");
}

}  // namespace qorvex
