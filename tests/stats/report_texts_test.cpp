#include <gtest/gtest.h>

#include "qorvex/stats/Qorvex_RS_DescStats.h"

namespace qorvex {

// A few texts stand for the rest: one of each ending, and the two long ones that span source lines.
TEST(ReportTexts, AreTheSystemsOwn) {
  EXPECT_EQ(ReportText(rsDSNoOfValues), "Number of Values:");
  EXPECT_EQ(ReportText(rsPValue), "P-Value: ") << "the trailing blank belongs to the text";
  EXPECT_EQ(ReportText(rsDSCoeffDet), "Coefficient of Determination") << "no colon";
  EXPECT_EQ(ReportText(rsNotRejected), "Null Hypothesis is not-Rejected!");
  EXPECT_EQ(
      ReportText(rsRejectReason),
      "There is sufficient Statistical evidence to reject the proposal behind the Null Hypothesis");
  EXPECT_EQ(ReportText(rsNotRejectReason),
            "There is insufficient Statistical evidence to reject the proposal behind the Null "
            "Hypothesis");
  EXPECT_EQ(ReportText(rsDSCoeffCor), "Coefficient of Correlation") << "the last of the list";
}

TEST(ReportTexts, CanBeReplaced) {
  SetReportText(rsDSMean, "Mittelwert:");
  EXPECT_EQ(ReportText(rsDSMean), "Mittelwert:");
  SetReportLookup([](ReportTextId id) {
    return id == rsDSMean ? std::optional<std::string>("Moyenne :") : std::nullopt;
  });
  EXPECT_EQ(ReportText(rsDSMean), "Moyenne :");
  EXPECT_EQ(ReportText(rsDSMode), "Mode:");
  SetReportLookup(nullptr);
  ResetReportText(rsDSMean);
  EXPECT_EQ(ReportText(rsDSMean), "Mean:");
}

}  // namespace qorvex
