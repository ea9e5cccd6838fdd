#include "apps/qorvex-gallery/pages/regression_page.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QTimer>
#include <QVBoxLayout>
#include <iterator>
#include <limits>
#include <utility>

#include "apps/qorvex-gallery/model/regression_report.h"
#include "apps/qorvex-gallery/plot/plot_view.h"
#include "apps/qorvex-gallery/widgets/figure_table.h"
#include "apps/qorvex-gallery/widgets/heading.h"
#include "apps/qorvex-gallery/widgets/message_bar.h"
#include "apps/qorvex-gallery/widgets/value_editor.h"

namespace qorvex::gallery {

namespace {

constexpr int kMostRows = 1'000'000;

// Years, and thousands of people aged 14 and over in the United States. From J. W. Longley, An
// appraisal of least squares programs for the electronic computer from the point of view of the
// user, 1967. Such programs lost the digits that the years have in common.
constexpr std::pair<int, int> kExamplePairs[] = {
    {1947, 107608}, {1948, 108632}, {1949, 109773}, {1950, 110929}, {1951, 112075}, {1952, 113270},
    {1953, 115094}, {1954, 116219}, {1955, 117388}, {1956, 118734}, {1957, 120445}, {1958, 121950},
    {1959, 123366}, {1960, 125368}, {1961, 127852}, {1962, 130081}};

}  // namespace

RegressionPage::RegressionPage(QWidget* parent)
    : Page(parent),
      message_(new MessageBar),
      rows_(new QSpinBox),
      x_(new TQorLabelledVectorEdit),
      y_(new TQorVectorEdit),
      curves_(new PlotView),
      residuals_(new PlotView),
      coefficients_(
          new FigureTable({FigureTable::kLabel, FigureTable::kFigure, FigureTable::kFigure,
                           FigureTable::kFigure, FigureTable::kFigure, FigureTable::kFigure})),
      quality_(new FigureTable({FigureTable::kLabel, FigureTable::kFigure, FigureTable::kFigure})),
      remark_(new QLabel) {
  setObjectName("regressionPage");
  auto* const body = new QHBoxLayout;
  body->addLayout(MakeEditors());
  body->addSpacing(fontMetrics().height());
  body->addLayout(MakeResults(), 1);
  auto* const layout = new QVBoxLayout(this);
  layout->addLayout(body, 1);
  layout->addWidget(message_);
  ShowExample();
}

RegressionPage::~RegressionPage() = default;

QLayout* RegressionPage::MakeEditors() {
  x_->setObjectName("x");
  x_->setLabelWidth(6 * fontMetrics().averageCharWidth());
  y_->setObjectName("y");
  for (TQorVectorEdit* const editor : {static_cast<TQorVectorEdit*>(x_), y_}) {
    SetUpValueEditor(*editor);
    connect(editor, &TQorVectorEdit::OnChange, this, &RegressionPage::RefreshSoon);
    connect(editor, &TQorVectorEdit::OnBlockRefused, message_, &MessageBar::SetText);
    connect(editor, &TQorVectorEdit::OnTextRefused, message_, &MessageBar::SetText);
  }
  connect(x_, &TQorVectorEdit::OnAfterTopChange, y_,
          [this](quint32 top) { y_->setDisplayTopRow(top); });
  connect(y_, &TQorVectorEdit::OnAfterTopChange, x_,
          [this](quint32 top) { x_->setDisplayTopRow(top); });

  rows_->setObjectName("rows");
  rows_->setRange(0, kMostRows);
  connect(rows_, &QSpinBox::valueChanged, this, &RegressionPage::SetRows);
  auto* const rows_label = new QLabel(tr("&Pairs:"));
  rows_label->setBuddy(rows_);
  auto* const example = new QPushButton(tr("&Example"));
  example->setToolTip(
      tr("Year, and thousands of people aged 14 and over in the USA; Longley 1967"));
  connect(example, &QPushButton::clicked, this, &RegressionPage::ShowExample);
  auto* const head = new QHBoxLayout;
  head->addWidget(rows_label);
  head->addWidget(rows_);
  head->addStretch(1);
  head->addWidget(example);

  auto* const editors = new QHBoxLayout;
  for (const auto& [editor, name] :
       {std::pair(static_cast<TQorVectorEdit*>(x_), tr("&x")), std::pair(y_, tr("&y"))}) {
    auto* const column = new QVBoxLayout;
    column->addWidget(MakeHeading(name, editor));
    column->addWidget(editor, 1);
    editors->addLayout(column);
  }
  auto* const layout = new QVBoxLayout;
  layout->addLayout(head);
  layout->addLayout(editors, 1);
  return layout;
}

QLayout* RegressionPage::MakeResults() {
  curves_->setObjectName("scatter");
  curves_->setAccessibleName(tr("Pairs with line and parabola"));
  curves_->SetAxisTitles(tr("x"), tr("y"));
  curves_->SetPlaceholder(tr("No pairs to show"));
  residuals_->setObjectName("residuals");
  residuals_->setAccessibleName(tr("Residuals"));
  residuals_->SetAxisTitles(tr("x"), tr("Residual"));
  residuals_->SetPlaceholder(tr("No residuals to show"));
  coefficients_->setObjectName("coefficients");
  quality_->setObjectName("quality");
  auto* const plots = new QHBoxLayout;
  plots->addWidget(curves_, 3);
  plots->addWidget(residuals_, 2);
  auto* const head = new QHBoxLayout;
  QLabel* const heading =
      MakeHeading(tr("Least-squares line and parabola, with 95 % confidence bands"));
  // Level with the spin box beside it.
  heading->setMinimumHeight(rows_->sizeHint().height());
  head->addWidget(heading);
  head->addWidget(remark_);
  head->addStretch(1);
  auto* const layout = new QVBoxLayout;
  layout->addLayout(head);
  layout->addLayout(plots, 1);
  layout->addSpacing(fontMetrics().height() / 2);
  layout->addWidget(coefficients_);
  layout->addSpacing(fontMetrics().height() / 2);
  layout->addWidget(quality_);
  return layout;
}

void RegressionPage::ShowExample() {
  TQorFloatVector x, y;
  for (const auto& [year, people] : kExamplePairs) {
    x.Append(year);
    y.Append(people);
  }
  const QSignalBlocker blocker(rows_);
  rows_->setValue(static_cast<int>(std::size(kExamplePairs)));
  x_->setVector(x);
  y_->setVector(y);
  Refresh();
}

// New pairs are empty.
void RegressionPage::SetRows(int rows) {
  for (TQorVectorEdit* const editor : {static_cast<TQorVectorEdit*>(x_), y_}) {
    TQorFloatVector values = editor->Vector();
    const std::size_t before = values.size();
    values.SetLength(static_cast<std::size_t>(rows));
    for (std::size_t i = before; i < values.size(); ++i)
      values[i] = std::numeric_limits<Extended>::quiet_NaN();
    editor->setVector(values);
  }
  RefreshSoon();
}

// Pasting changes many elements one after the other; one refresh is enough.
void RegressionPage::RefreshSoon() {
  message_->SetText({});
  if (std::exchange(refresh_is_due_, true)) return;
  QTimer::singleShot(0, this, &RegressionPage::Refresh);
}

void RegressionPage::Refresh() {
  refresh_is_due_ = false;
  const RegressionReport report(x_->Vector(), y_->Vector());
  remark_->setText(RemarkOn(report.LeftOut()));
  message_->SetText(report.WhyNot());
  curves_->SetLayers(report.Curves());
  residuals_->SetLayers(report.Residuals());
  coefficients_->SetRows(report.CoefficientRows());
  quality_->SetRows(report.QualityRows());
  FigureTable::Align(*coefficients_, *quality_);
}

QString RegressionPage::RemarkOn(std::size_t left_out) const {
  if (left_out == 0) return {};
  return left_out == 1 ? tr("without 1 incomplete pair")
                       : tr("without %1 incomplete pairs").arg(locale().toString(left_out));
}

}  // namespace qorvex::gallery
