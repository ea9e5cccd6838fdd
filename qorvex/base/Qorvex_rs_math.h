#pragma once

/// @file
/// Unit Qorvex_rs_math: the messages of the library's errors. A message is an identifier; its text
/// is looked up when an error is raised. Applications may replace texts at any time, on any thread.

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "qorvex/base/export.h"

namespace qorvex::inline Qorvex_rs_math {

/// @cond internal
// Identifier and English text. %1 stands for the text that was rejected, in rsAtCharacter for
// another message, and %2 for a position.
#define QORVEX_MATH_MESSAGES(X)                                                                    \
  X(rsVectorIsEmpty, "The vector is empty")                                                        \
  X(rsSameDimensions, "The dimensions must be the same")                                           \
  X(rsMagZero, "The magnitude of a vector must not be zero")                                       \
  X(rsValueNotZero, "The value must not be zero")                                                  \
  X(rsVectorNeg, "The vector must not have negative elements")                                     \
  X(rsVectorNotPos, "The elements of the vector must all be positive")                             \
  X(rsVectorZero, "The vector must not have zero elements")                                        \
  X(rsVectorG1, "The vector must have at least two elements")                                      \
  X(rsVectorG2, "The vector must have at least three elements")                                    \
  X(rsVectorG3, "The vector must have at least four elements")                                     \
  X(rsMatrixIsEmpty, "The matrix is empty or its rows differ in length")                           \
  X(rsMatrixRect, "The matrix must be rectangular")                                                \
  X(rsInvalidCol, "The column index is out of range")                                              \
  X(rsInvalidRow, "The row index is out of range")                                                 \
  X(rsMatrixMult, "The columns of the first matrix must be as many as the rows of the second")     \
  X(rsMatrixSqr, "The matrix must be square")                                                      \
  X(rsMatrixNeg, "The matrix must not have negative elements")                                     \
  X(rsMatrixNotPos, "The elements of the matrix must all be positive")                             \
  X(rsMatrixZero, "The matrix must not have zero elements")                                        \
  X(rsNoInvert, "The matrix has no inverse")                                                       \
  X(rsNA, "Not available")                                                                         \
  X(rsMedianNotFound, "The median was not found")                                                  \
  X(rsQuartilesNotFound, "The quartiles were not found")                                           \
  X(rsDF, "The degrees of freedom must be greater than zero")                                      \
  X(rsStdDev, "The standard deviation must be greater than zero")                                  \
  X(rsSameValue, "The values must not all be the same")                                            \
  X(rsExpDistInvalid,                                                                              \
    "The exponential distribution needs a positive mean and a value that is not negative")         \
  X(rsPoissonInvalid, "The Poisson distribution needs a positive mean")                            \
  X(rsHyperGeometricInvalid,                                                                       \
    "The hypergeometric distribution needs a population and a sample of at least one, and "        \
    "neither sample nor successes above the population")                                           \
  X(rsBinomDistInvalid,                                                                            \
    "The binomial distribution needs at least one trial, no more successes than trials "           \
    "and a probability from 0 to 1")                                                               \
  X(rsBinomOverflowed, "The binomial coefficient is too large")                                    \
  X(rsBinomInvalid, "The binomial coefficient cannot choose more items than there are")            \
  X(rsPermOverflowed, "The number of permutations is too large")                                   \
  X(rsPermInvalid, "A permutation cannot take more items than there are")                          \
  X(rsFactOverflow, "The factorial is too large")                                                  \
  X(rsValue2, "The value must be at least two")                                                    \
  X(rsValue01Inc, "The value must be from 0 to 1")                                                 \
  X(rsValue01, "The value must be greater than 0 and less than 1")                                 \
  X(rsValueGEZero, "The value must not be negative")                                               \
  X(rsValueGZero, "The value must be greater than zero")                                           \
  X(rsInvalidValue, "The value is out of range")                                                   \
  X(rsDivideByZero, "Division by zero")                                                            \
  X(rsInvalidStdDev, "The standard deviation is invalid: it must be greater than zero")            \
  X(rsInvalidMean, "The mean is invalid: it must be greater than zero")                            \
  X(rsVectorTooSmall, "The vector has too few elements")                                           \
  X(rsVectorEmpty, "The vector must have elements")                                                \
  X(rsShapeTooSmall, "The shape parameter is too small")                                           \
  X(rsInvalidShape, "The shape parameter is out of range")                                         \
  X(rsZeroDivide, "Floating-point division by zero")                                               \
  X(rsInvalidOp, "Invalid floating-point operation")                                               \
  X(rsOverflow, "Floating-point overflow")                                                         \
  X(rsNotANumber, "\"%1\" is not a number")                                                        \
  X(rsNumberTooLarge, "\"%1\" is too large a number")                                              \
  X(rsNotAFraction, "\"%1\" is not a fraction")                                                    \
  X(rsAmountOverflow, "The amount is out of range")                                                \
  X(rsInvalidWeight, "The weights must be finite and must not be negative")                        \
  X(rsWeightsZero, "The weights must not all be zero")                                             \
  X(rsNotAnInteger, "\"%1\" is not an integer")                                                    \
  X(rsUnexpectedText, "\"%1\" is unexpected")                                                      \
  X(rsUnexpectedEnd, "The text ends too early")                                                    \
  X(rsAtCharacter, "%1 (character %2)")                                                            \
  X(rsWeightSum, "The weights must add up to more than one")                                       \
  X(rsOneWeight, "At least two weights must be greater than zero")                                 \
  X(rsFrequencies, "The weights must be frequencies: whole numbers")                               \
  X(rsInvalidClasses,                                                                              \
    "The classes need a finite lower bound, a finite width greater than zero and a number of "     \
    "at least one")                                                                                \
  X(rsOutsideClasses, "A value belongs to none of the classes")                                    \
  X(rsCovariance, "No variables can have these covariances")                                       \
  X(rsCollinear, "Predictor %1 depends linearly on the intercept and the predictors before it")    \
  X(rsCollinearOrigin, "Predictor %1 depends linearly on the predictors before it")                \
  X(rsCollinearPower, "x^%1 depends linearly on the terms before it: there are too few different " \
                      "x")
/// @endcond

/// The identifier of a message.
enum class MessageId : std::uint16_t {
/// @cond internal
#define QORVEX_IDENTIFIER(id, text) id,
  QORVEX_MATH_MESSAGES(QORVEX_IDENTIFIER)
#undef QORVEX_IDENTIFIER
  /// @endcond
  /// The first of the identifiers that are left to applications: this value and all above. The
  /// library has no texts for them.
  rsApplication = 0x8000,
};

using enum MessageId;

/// The current text of one of the library's messages: the result of the look-up function if it has
/// one, otherwise the replacement if one is set, otherwise the English text. std::out_of_range for
/// identifiers of applications.
[[nodiscard]] QORVEX_EXPORT std::string MessageText(MessageId id);

/// The English text of a message, even if it has been replaced: the source text for translators.
/// Valid for the lifetime of the program. Empty for identifiers of applications.
[[nodiscard]] QORVEX_EXPORT std::string_view EnglishMessageText(MessageId id) noexcept;

/// Replaces the text of a message of the library. std::out_of_range for identifiers of
/// applications.
QORVEX_EXPORT void SetMessageText(MessageId id, std::string text);

/// Restores the English text of a message of the library. std::out_of_range for identifiers of
/// applications.
QORVEX_EXPORT void ResetMessageText(MessageId id);

/// Sets a function that is asked for every text first, such as a translator.
///
/// - It returns std::nullopt for messages that it does not know.
/// - It is called on the thread that raises the error, without a lock held.
/// - It must not call MessageText for the same message; EnglishMessageText gives the source text.
/// - An exception that it throws replaces the error.
/// - An empty function removes it; calls already running on other threads are completed.
QORVEX_EXPORT void SetMessageLookup(std::function<std::optional<std::string>(MessageId)> lookup);

}  // namespace qorvex::inline Qorvex_rs_math
