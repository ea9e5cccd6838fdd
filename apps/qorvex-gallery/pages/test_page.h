#pragma once

/// @file
/// TestPage, tests of hypotheses and confidence intervals.

#include <QTimer>
#include <cstddef>

#include "apps/qorvex-gallery/model/background_work.h"
#include "apps/qorvex-gallery/widgets/page.h"

class QComboBox;
class QLabel;

namespace qorvex::apps {
struct HypothesisTest;
}

namespace qorvex::gallery {

class FigureTable;
class HypothesisForm;
class MessageBar;
class PlotView;
class SampleForm;
class Sheet;
struct TestOrder;
struct TestOutcome;

/// Any of the tests of the library on columns of the sheet, or on groups of one: what the null
/// hypothesis is, whether it is rejected and what the test takes for granted, in words; the
/// samples; the statistic, p, and the intervals. Every change updates them, in the background.
class TestPage : public Page {
  Q_OBJECT

 public:
  /// The sheet must outlive the page.
  explicit TestPage(const Sheet& sheet, QWidget* parent = nullptr);
  ~TestPage() override;

  [[nodiscard]] QVariantMap State() const override;
  void SetState(const QVariantMap& state) override;
  [[nodiscard]] PageReport Report() const override;

  /// Tests this column of the sheet, unless the user has chosen one here.
  void SuggestColumn(int column);

 private:
  void FillTests();
  QWidget* MakeResults();
  [[nodiscard]] const apps::HypothesisTest& Test() const;
  void ChooseTest();
  void RefreshSoon();
  void Refresh();
  void Show(const TestOrder& order, const TestOutcome& outcome);
  // Without results.
  void ShowNone(const QString& why);
  [[nodiscard]] QString RemarkOn(std::size_t left_out) const;

  MessageBar* message_;
  QComboBox* test_;
  SampleForm* samples_form_;
  HypothesisForm* hypothesis_;
  QLabel* title_;
  QLabel* words_;
  QLabel* remark_;
  FigureTable* samples_;
  FigureTable* results_;
  PlotView* boxes_;
  QTimer refresh_;
  BackgroundWork work_;
};

}  // namespace qorvex::gallery
