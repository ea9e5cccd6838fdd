#include "apps/qorvex-gallery/pages/regression_page.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>
#include <optional>
#include <utility>

#include "apps/common/pair_fit.h"
#include "apps/qorvex-gallery/model/texts.h"
#include "apps/qorvex-gallery/plot/plot_view.h"
#include "apps/qorvex-gallery/widgets/figure_table.h"
#include "apps/qorvex-gallery/widgets/heading.h"
#include "apps/qorvex-gallery/widgets/message_bar.h"
#include "apps/qorvex-gallery/widgets/tall_editor.h"

namespace qorvex::gallery {

namespace {

using apps::PairFit;

constexpr int kMostRows = 1'000'000;

// Years, and thousands of people aged 14 and over in the United States. From J. W. Longley, An
// appraisal of least squares programs for the electronic computer from the point of view of the
// user, 1967. Such programs lost the digits that the years have in common.
constexpr std::pair<int, int> kExamplePairs[] = {
    {1947, 107608}, {1948, 108632}, {1949, 109773}, {1950, 110929}, {1951, 112075}, {1952, 113270},
    {1953, 115094}, {1954, 116219}, {1955, 117388}, {1956, 118734}, {1957, 120445}, {1958, 121950},
    {1959, 123366}, {1960, 125368}, {1961, 127852}, {1962, 130081}};

struct Pairs {
  TQorFloatVector x, y;
  std::size_t left_out;
};

Pairs CompletePairs(const TQorFloatVector& x, const TQorFloatVector& y) {
  Pairs pairs{.x = {}, .y = {}, .left_out = 0};
  for (std::size_t i = 0; i < x.size(); ++i) {
    if (std::isnan(x[i]) || std::isnan(y[i])) {
      ++pairs.left_out;
    } else {
      pairs.x.Append(x[i]);
      pairs.y.Append(y[i]);
    }
  }
  return pairs;
}

QString WhyNot(apps::PairFitFault fault, std::size_t degree) {
  switch (fault) {
    case apps::PairFitFault::kTooFewDifferentX:
      return degree == 1 ? RegressionPage::tr("A line needs two different x.")
                         : RegressionPage::tr("A parabola needs three different x.");
    case apps::PairFitFault::kNearlyTwoPlaces:
      return RegressionPage::tr("The x lie too close to only two places for a parabola.");
    case apps::PairFitFault::kTooLarge:
      break;
  }
  return RegressionPage::tr(
      "The values are too large: their sums are beyond the range of extended precision.");
}

PlotLayer Curve(const PairFit& fit, const TQorFloatVector& x, PlotRole role, const QString& name) {
  PlotLayer layer{PlotShape::kLine, role, name, {}};
  const auto [low, high] = std::ranges::minmax(x);
  const std::vector<Extended>& c = fit.coefficients;
  const int steps = c.size() == 2 ? 1 : 200;
  for (int i = 0; i <= steps; ++i) {
    const Extended at = low + (high - low) * i / steps;
    Extended y = 0;
    for (std::size_t power = c.size(); power-- > 0;) y = y * at + c[power];
    layer.points.emplace_back(static_cast<double>(at), static_cast<double>(y));
  }
  return layer;
}

}  // namespace

RegressionPage::RegressionPage(QWidget* parent)
    : QWidget(parent),
      message_(new MessageBar),
      rows_(new QSpinBox),
      x_(new TQorLabelledVectorEdit),
      y_(new TQorVectorEdit),
      tall_x_(new TallEditor(x_)),
      tall_y_(new TallEditor(y_)),
      plot_(new PlotView),
      figures_(new FigureTable({FigureTable::kLabel, FigureTable::kFigure, FigureTable::kFigure})),
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
    editor->setCellWidth(14 * fontMetrics().averageCharWidth());
    editor->setBlankWhenNull(true);
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
  for (const auto& [editor, name] : {std::pair(tall_x_, tr("&x")), std::pair(tall_y_, tr("&y"))}) {
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
  plot_->setObjectName("scatter");
  plot_->setAccessibleName(tr("Pairs with line and parabola"));
  plot_->SetAxisTitles(tr("x"), tr("y"));
  plot_->SetPlaceholder(tr("No pairs to show"));
  figures_->setObjectName("figures");
  auto* const head = new QHBoxLayout;
  QLabel* const heading = MakeHeading(tr("Least-squares line and parabola"));
  // Level with the spin box beside it.
  heading->setMinimumHeight(rows_->sizeHint().height());
  head->addWidget(heading);
  head->addWidget(remark_);
  head->addStretch(1);
  auto* const layout = new QVBoxLayout;
  layout->addLayout(head);
  layout->addWidget(plot_, 1);
  layout->addSpacing(fontMetrics().height() / 2);
  layout->addWidget(figures_);
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
  tall_x_->FitFormat(x_->Vector());
  tall_y_->FitFormat(y_->Vector());
  const Pairs pairs = CompletePairs(x_->Vector(), y_->Vector());
  remark_->setText(pairs.left_out == 0
                       ? QString()
                       : tr("without %1 incomplete pairs").arg(locale().toString(pairs.left_out)));

  QString why_not;
  const auto fit = [&](std::size_t degree) -> std::optional<PairFit> {
    try {
      return apps::FitPairs(pairs.x, pairs.y, degree);
    } catch (const apps::PairFitError& error) {
      if (why_not.isEmpty()) why_not = WhyNot(error.Fault(), degree);
      return std::nullopt;
    }
  };
  const std::optional<PairFit> line = fit(1);
  const std::optional<PairFit> parabola = fit(2);
  message_->SetText(why_not);

  PlotLayer points{PlotShape::kPoints, PlotRole::kData, tr("Pairs"), {}};
  for (std::size_t i = 0; i < pairs.x.size(); ++i)
    points.points.emplace_back(static_cast<double>(pairs.x[i]), static_cast<double>(pairs.y[i]));
  std::vector<PlotLayer> layers;
  if (line) layers.push_back(Curve(*line, pairs.x, PlotRole::kModel, tr("Line")));
  if (parabola) layers.push_back(Curve(*parabola, pairs.x, PlotRole::kSecondModel, tr("Parabola")));
  layers.push_back(std::move(points));
  plot_->SetLayers(std::move(layers));

  const auto row = [&](const QString& label, auto figure) {
    const auto text = [&](const std::optional<PairFit>& of) {
      return ExactTextOrDash(of ? figure(*of) : std::optional<Extended>());
    };
    return QStringList{label, text(line), text(parabola)};
  };
  const auto coefficient = [](std::size_t power) {
    return [power](const PairFit& of) -> std::optional<Extended> {
      if (power >= of.coefficients.size()) return std::nullopt;
      return of.coefficients[power];
    };
  };
  figures_->SetRows(
      {{QString(), tr("Line"), tr("Parabola")},
       row(tr("Constant"), coefficient(0)),
       row(tr("Coefficient of x"), coefficient(1)),
       row(tr("Coefficient of x²"), coefficient(2)),
       row(tr("Sum of squared errors"), [](const PairFit& of) { return std::optional(of.sse); }),
       row(tr("Coefficient of determination"), [](const PairFit& of) { return of.determination; }),
       {tr("Correlation of x and y"), ExactTextOrDash(line ? line->correlation : std::nullopt)}});
}

}  // namespace qorvex::gallery
