#include "apps/qorvex-gallery/pages/test_page.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QScrollArea>
#include <QStandardItemModel>
#include <QVBoxLayout>
#include <algorithm>
#include <memory>
#include <utility>

#include "apps/common/hypothesis_tests.h"
#include "apps/qorvex-gallery/model/sheet.h"
#include "apps/qorvex-gallery/model/test_order.h"
#include "apps/qorvex-gallery/model/test_texts.h"
#include "apps/qorvex-gallery/plot/plot_view.h"
#include "apps/qorvex-gallery/widgets/figure_table.h"
#include "apps/qorvex-gallery/widgets/heading.h"
#include "apps/qorvex-gallery/widgets/hypothesis_form.h"
#include "apps/qorvex-gallery/widgets/message_bar.h"
#include "apps/qorvex-gallery/widgets/sample_form.h"
#include "apps/qorvex-gallery/widgets/side_panel.h"

namespace qorvex::gallery {

namespace {

QFont MakeBold(QFont font) {
  font.setBold(true);
  return font;
}

}  // namespace

TestPage::TestPage(const Sheet& sheet, QWidget* parent)
    : Page(parent),
      message_(new MessageBar),
      test_(new QComboBox),
      samples_form_(new SampleForm(sheet)),
      hypothesis_(new HypothesisForm(*message_)),
      refresh_(this),
      work_(this) {
  setObjectName("testPage");
  test_->setObjectName("test");
  test_->setAccessibleName(tr("Test"));
  test_->setMaxVisibleItems(25);
  // Long titles do not widen the panel.
  test_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  FillTests();
  auto* const panel = new SidePanel;
  panel->AddGroup(tr("Test"))->addWidget(test_);
  panel->AddGroup(tr("Data"))->addWidget(samples_form_);
  panel->AddGroup(tr("Hypothesis"))->addWidget(hypothesis_);
  panel->Finish();
  auto* const body = new QHBoxLayout;
  body->addWidget(panel);
  body->addWidget(MakeResults(), 1);
  auto* const layout = new QVBoxLayout(this);
  layout->addLayout(body, 1);
  layout->addWidget(message_);

  refresh_.setSingleShot(true);
  connect(&refresh_, &QTimer::timeout, this, &TestPage::Refresh);
  connect(test_, &QComboBox::currentIndexChanged, this, &TestPage::ChooseTest);
  connect(samples_form_, &SampleForm::Changed, this, &TestPage::RefreshSoon);
  connect(hypothesis_, &HypothesisForm::Changed, this, &TestPage::RefreshSoon);
  connect(&sheet, &Sheet::Changed, this, &TestPage::RefreshSoon);
  ChooseTest();
}

TestPage::~TestPage() = default;

// Tests that take the same follow one another.
void TestPage::FillTests() {
  using apps::TestInput;
  const std::pair<QList<TestInput>, QString> kinds[] = {
      {{TestInput::kSample}, tr("One sample")},
      {{TestInput::kTwoSamples}, tr("Two samples")},
      {{TestInput::kPairs}, tr("Pairs")},
      {{TestInput::kSeveralSamples}, tr("Several samples")},
      {{TestInput::kCounts, TestInput::kCountTable, TestInput::kTrials}, tr("Counts")}};
  for (const auto& [inputs, kind] : kinds) {
    test_->addItem(kind);
    auto* const heading =
        static_cast<QStandardItemModel*>(test_->model())->item(test_->count() - 1);
    heading->setFlags(Qt::NoItemFlags);
    heading->setFont(MakeBold(test_->font()));
    for (const apps::HypothesisTest& test : apps::HypothesisTests()) {
      if (inputs.contains(test.input)) test_->addItem(TestTexts(test).Title(), QString(test.name));
    }
  }
  test_->setCurrentIndex(1);
}

QWidget* TestPage::MakeResults() {
  title_ = MakeHeading({});
  words_ = new QLabel;
  words_->setObjectName("words");
  words_->setWordWrap(true);
  words_->setTextFormat(Qt::PlainText);
  words_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  // Lines that are easy to read.
  words_->setMaximumWidth(95 * fontMetrics().averageCharWidth());
  remark_ = new QLabel;
  remark_->setObjectName("leftOut");
  using Table = FigureTable;
  samples_ = new FigureTable({Table::kLabel, Table::kFigure, Table::kFigure, Table::kFigure,
                              Table::kFigure, Table::kFigure});
  samples_->setObjectName("samples");
  samples_->SetTitled();
  results_ = new FigureTable({Table::kLabel, Table::kFigure});
  results_->setObjectName("results");
  boxes_ = new PlotView;
  boxes_->setObjectName("boxes");
  boxes_->setAccessibleName(tr("Samples"));
  boxes_->setMaximumHeight(24 * fontMetrics().height());
  auto* const content = new QWidget;
  auto* const layout = new QVBoxLayout(content);
  const int gap = fontMetrics().height();
  layout->setContentsMargins(12, 0, 0, 0);
  layout->addWidget(title_);
  layout->addWidget(words_);
  layout->addSpacing(gap);
  layout->addWidget(samples_);
  layout->addWidget(remark_);
  layout->addSpacing(gap);
  layout->addWidget(results_);
  layout->addSpacing(gap);
  layout->addWidget(boxes_, 1);
  layout->addStretch();
  auto* const area = new QScrollArea;
  area->setAccessibleName(tr("Results"));
  area->setWidget(content);
  area->setWidgetResizable(true);
  area->setFrameShape(QFrame::NoFrame);
  return area;
}

const apps::HypothesisTest& TestPage::Test() const {
  const std::string name = test_->currentData().toString().toStdString();
  return *std::ranges::find(apps::HypothesisTests(), name, &apps::HypothesisTest::name);
}

void TestPage::ChooseTest() {
  samples_form_->SetInput(Test().input);
  hypothesis_->SetTest(Test());
  title_->setText(TestTexts(Test()).Title());
  RefreshSoon();
}

void TestPage::RefreshSoon() {
  refresh_.start();
}

void TestPage::Refresh() {
  work_.Abandon();
  const QString wrong = hypothesis_->WhatIsWrong();
  if (!wrong.isEmpty()) return ShowNone(wrong);
  const auto order = std::make_shared<TestOrder>();
  const auto outcome = std::make_shared<TestOutcome>();
  order->test = &Test();
  samples_form_->Fill(*order);
  hypothesis_->Fill(order->settings);
  work_.Start([order, outcome](const Proceed&) { *outcome = RunTest(*order); },
              [this, order, outcome] { Show(*order, *outcome); },
              [this](const QString& why) { ShowNone(why); });
}

void TestPage::Show(const TestOrder& order, const TestOutcome& outcome) {
  remark_->setText(RemarkOn(outcome.left_out));
  remark_->setVisible(outcome.left_out > 0);
  if (outcome.reports.empty()) return ShowNone(outcome.why_not);
  const TestView view = ViewOf(order, outcome);
  words_->setText(view.paragraphs.join(QStringLiteral("\n\n")));
  samples_->SetRows(view.samples);
  results_->SetRows(view.results);
  boxes_->SetContent(outcome.boxes);
  boxes_->setVisible(!boxes_->IsEmpty());
  message_->SetText({});
}

// Results of other choices must not stay.
void TestPage::ShowNone(const QString& why) {
  words_->setText(tr("Assumptions: %1").arg(TestTexts(Test()).Assumptions()));
  samples_->SetRows({});
  results_->SetRows({});
  boxes_->hide();
  message_->SetText(why);
}

QString TestPage::RemarkOn(std::size_t left_out) const {
  if (left_out == 0) return {};
  return left_out == 1 ? tr("without 1 missing value")
                       : tr("without %L1 missing values").arg(left_out);
}

void TestPage::SuggestColumn(int column) {
  samples_form_->SuggestColumn(column);
}

QVariantMap TestPage::State() const {
  return {{"test", test_->currentData()},
          {"samples", samples_form_->State()},
          {"hypothesis", hypothesis_->State()}};
}

void TestPage::SetState(const QVariantMap& state) {
  const int index = test_->findData(state["test"]);
  if (index < 0) return;
  test_->setCurrentIndex(index);
  samples_form_->SetState(state["samples"].toMap());
  hypothesis_->SetState(state["hypothesis"].toMap());
}

PageReport TestPage::Report() const {
  if (results_->Rows().isEmpty() && samples_->Rows().isEmpty()) return {};
  QList<QStringList> words;
  for (const QString& paragraph : words_->text().split(QStringLiteral("\n\n")))
    words.append({paragraph});
  return {title_->text(),
          {{tr("Result"), words},
           {tr("Samples"), samples_->Rows()},
           {tr("Figures"), results_->Rows(), boxes_->isHidden() ? nullptr : boxes_}}};
}

}  // namespace qorvex::gallery
