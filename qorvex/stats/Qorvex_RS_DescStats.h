#pragma once

/// @file
/// Unit Qorvex_RS_DescStats: the texts of statistical reports. Programs can replace them like error
/// messages. Texts that the library itself does not use are meant for applications. Trailing blanks
/// are part of a text.

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "qorvex/base/export.h"

namespace qorvex::inline Qorvex_RS_DescStats {

/// @cond internal
// Identifier and English text.
#define QORVEX_REPORT_TEXTS(X)                                                         \
  X(rsDSNEVariance, "Not enough Values for Variance")                                  \
  X(rsDSNEStdDev, "Not enough Values for Standard Deviation")                          \
  X(rsDSNESkew, "Not enough Values for Skew")                                          \
  X(rsDSNEKurtosis, "Not enough Values for Kurtosis")                                  \
  X(rsDSSDKurtosis, "Standard Deviation needs to be > 0 for Kurtosis")                 \
  X(rsDSSDSkew, "Standard Deviation needs to be > 0 for Skew")                         \
  X(rsDSNoOfValues, "Number of Values:")                                               \
  X(rsDSMaximum, "Maximum:")                                                           \
  X(rsDSMinimum, "Minimum:")                                                           \
  X(rsDSRange, "Range:")                                                               \
  X(rsDSMean, "Mean:")                                                                 \
  X(rsDSMeanX, "Mean of X Values:")                                                    \
  X(rsDSMeanY, "Mean of Y Values:")                                                    \
  X(rsDSMode, "Mode:")                                                                 \
  X(rsDSNoMode, "No Modal Value")                                                      \
  X(rsDSMedian, "Median:")                                                             \
  X(rsDSVariance, "Variance:")                                                         \
  X(rsDSCovar, "Covariance:")                                                          \
  X(rsDSStdDev, "Standard Deviation:")                                                 \
  X(rsDSStdDevX, "Standard Deviation of X Values:")                                    \
  X(rsDSStdDevY, "Standard Deviation of Y Values:")                                    \
  X(rsDSSum, "Sum:")                                                                   \
  X(rsDSSumSQ, "Sum of Squares:")                                                      \
  X(rsDSKurtosis, "Kurtosis:")                                                         \
  X(rsDSSkew, "Skew:")                                                                 \
  X(rsDSQtr1, "First Quartile:")                                                       \
  X(rsDSQtr3, "Third Quartile:")                                                       \
  X(rsDSIQR, "Inter-Quartile Range:")                                                  \
  X(rsDSConfidence, "Confidence Level: ")                                              \
  X(rsDSSignificance, "Significance Level: ")                                          \
  X(rsNullHypothesis, "Null Hypothesis: ")                                             \
  X(rsAlternateHypothesis, "Alternate Hypothesis: ")                                   \
  X(rsTestStatistic, "Test Statistics: ")                                              \
  X(rsDSConfidenceIntervalM, "Confidence Interval for the Mean: ")                     \
  X(rsDSConfidenceIntervalV, "Confidence Interval for the Variance: ")                 \
  X(rsPValue, "P-Value: ")                                                             \
  X(rsRejectionRegion, "Rejection Region: ")                                           \
  X(rsRejected, "Null Hypothesis is Rejected!")                                        \
  X(rsNotRejected, "Null Hypothesis is not-Rejected!")                                 \
  X(rsRejectReason,                                                                    \
    "There is sufficient Statistical evidence to reject the proposal behind the Null " \
    "Hypothesis")                                                                      \
  X(rsNotRejectReason,                                                                 \
    "There is insufficient Statistical evidence to reject the proposal behind the "    \
    "Null Hypothesis")                                                                 \
  X(rsDSRegressionLine, "Regression Line:")                                            \
  X(rsDSSSE, "Sum of Squares Error:")                                                  \
  X(rsDSCoeffDet, "Coefficient of Determination")                                      \
  X(rsDSCoeffCor, "Coefficient of Correlation")
/// @endcond

/// The identifier of a report text.
enum class ReportTextId : std::uint16_t {
/// @cond internal
#define QORVEX_IDENTIFIER(id, text) id,
  QORVEX_REPORT_TEXTS(QORVEX_IDENTIFIER)
#undef QORVEX_IDENTIFIER
  /// @endcond
};

using enum ReportTextId;

/// The current text: the result of the look-up function if it has one, otherwise the replacement if
/// one is set, otherwise the English text.
[[nodiscard]] QORVEX_EXPORT std::string ReportText(ReportTextId id);

/// The English text, even if it has been replaced: the key that translators look up. The view stays
/// valid until the program ends.
[[nodiscard]] QORVEX_EXPORT std::string_view EnglishReportText(ReportTextId id) noexcept;

/// Replaces a text.
QORVEX_EXPORT void SetReportText(ReportTextId id, std::string text);

/// Restores the English text.
QORVEX_EXPORT void ResetReportText(ReportTextId id);

/// Sets a function that is called first for every text, such as a translator's. It returns nothing
/// for texts that it does not know. An empty function removes the look-up. The function must not
/// request the same text through ReportText; use EnglishReportText for the source.
QORVEX_EXPORT void SetReportLookup(std::function<std::optional<std::string>(ReportTextId)> lookup);

}  // namespace qorvex::inline Qorvex_RS_DescStats
