#pragma once

/// @file
/// What the page of tests says of each test.

#include <QCoreApplication>
#include <QString>

#include "apps/common/hypothesis_tests.h"

namespace qorvex::gallery {

/// The texts of the tests in the language of the user. The number of a null hypothesis is %1.
class TestTexts {
  Q_DECLARE_TR_FUNCTIONS(TestTexts)

 public:
  explicit TestTexts(const apps::HypothesisTest& test);

  /// "One mean (Student's t)"
  [[nodiscard]] QString Title() const { return tr(texts_.title); }
  /// The name of the number of the null hypothesis: "Mean".
  [[nodiscard]] QString NullValue() const { return tr(texts_.null_value); }
  [[nodiscard]] QString NullHypothesis(const QString& number) const;
  [[nodiscard]] QString Alternative(qorvex::Alternative alternative, const QString& number) const;
  /// What the test takes for granted about the data.
  [[nodiscard]] QString Assumptions() const { return tr(texts_.assumptions); }

  /// The label of a figure of a report.
  [[nodiscard]] static QString LabelOf(const apps::TestFigure& figure);
  [[nodiscard]] static QString LabelOf(const apps::TestInterval& interval);
  /// Where p comes from.
  [[nodiscard]] static QString FormOf(TestForm form);
  /// Why a test has no result: the message of an error of the library, or what it means here.
  [[nodiscard]] static QString WhyNot(const EMathError& error);

 private:
  struct Texts {
    const char* test;
    const char* title;
    const char* assumptions;
    const char* null_hypothesis;
    const char* two_sided;
    const char* less = "";
    const char* greater = "";
    const char* null_value = "";
  };
  [[nodiscard]] static const Texts& Find(const char* name);

  const Texts& texts_;
};

}  // namespace qorvex::gallery
