#include "apps/qorvex-gallery/pages/distribution_page.h"

#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>
#include <algorithm>
#include <cmath>
#include <exception>

#include "apps/qorvex-gallery/model/distribution_curve.h"
#include "apps/qorvex-gallery/model/names.h"
#include "apps/qorvex-gallery/model/texts.h"
#include "apps/qorvex-gallery/plot/plot_view.h"
#include "apps/qorvex-gallery/widgets/figure_table.h"
#include "apps/qorvex-gallery/widgets/message_bar.h"
#include "apps/qorvex-gallery/widgets/parameter_form.h"
#include "apps/qorvex-gallery/widgets/side_panel.h"
#include "qorvex/base_controls/float_edit.h"

namespace qorvex::gallery {

DistributionPage::DistributionPage(QWidget* parent)
    : Page(parent),
      message_(new MessageBar),
      family_(new QComboBox),
      summary_(new QLabel),
      parameters_(new ParameterForm(*message_)),
      question_(new QComboBox),
      first_label_(new QLabel),
      first_(MakeNumberCell(1, tr("Point"), this)),
      second_label_(new QLabel),
      second_(MakeNumberCell(2, tr("Upper end of the interval"), this)),
      side_(new QComboBox),
      probability_(MakeNumberCell(0.975L, tr("Probability"), this)),
      quantile_(new FigureTable({FigureTable::kLabel, FigureTable::kFigure})),
      plot_(new PlotView),
      figures_(new FigureTable({FigureTable::kLabel, FigureTable::kFigure})) {
  setObjectName(QStringLiteral("distributionPage"));
  family_->setObjectName(QStringLiteral("family"));
  family_->setAccessibleName(tr("Family of distributions"));
  question_->setObjectName(QStringLiteral("question"));
  question_->setAccessibleName(tr("Question"));
  first_->setObjectName(QStringLiteral("first"));
  second_->setObjectName(QStringLiteral("second"));
  probability_->setObjectName(QStringLiteral("probability"));
  side_->setAccessibleName(tr("Which probability"));
  quantile_->setObjectName(QStringLiteral("quantile"));
  plot_->setObjectName(QStringLiteral("plot"));
  plot_->setAccessibleName(tr("Density or probabilities"));
  figures_->setObjectName(QStringLiteral("figures"));

  for (const apps::Family& family : apps::Families()) family_->addItem(DisplayName(family.name));
  question_->addItems({tr("Both sides of a point"), tr("Inside and outside an interval")});
  side_->addItems({tr("At most the quantile"), tr("More than the quantile")});
  summary_->setWordWrap(true);
  first_label_->setBuddy(first_);
  second_label_->setBuddy(second_);

  auto* const panel = new SidePanel;
  QVBoxLayout* const distribution = panel->AddGroup(tr("Distribution"));
  distribution->addWidget(family_);
  distribution->addWidget(summary_);
  distribution->addWidget(parameters_);
  QVBoxLayout* const probabilities = panel->AddGroup(tr("Probabilities"));
  probabilities->addWidget(question_);
  auto* const ends = new QHBoxLayout;
  for (const auto& [label, cell] : {std::pair(first_label_, first_), {second_label_, second_}}) {
    ends->addWidget(label);
    ends->addWidget(cell, 1);
  }
  probabilities->addLayout(ends);
  QVBoxLayout* const quantile = panel->AddGroup(tr("Quantile"));
  quantile->addWidget(side_);
  auto* const asked = new QFormLayout;
  asked->addRow(tr("Pr&obability"), probability_);
  quantile->addLayout(asked);
  quantile->addWidget(quantile_);
  panel->Finish();

  auto* const right = new QVBoxLayout;
  right->addWidget(plot_, 1);
  right->addWidget(figures_);
  right->addWidget(message_);

  auto* const layout = new QHBoxLayout(this);
  layout->addWidget(panel);
  layout->addLayout(right, 1);

  connect(family_, &QComboBox::currentIndexChanged, this, &DistributionPage::ShowFamily);
  connect(parameters_, &ParameterForm::Changed, this, &DistributionPage::Update);
  for (QComboBox* const box : {question_, side_})
    connect(box, &QComboBox::currentIndexChanged, this, &DistributionPage::Update);
  for (TQorFloatEdit* const cell : {first_, second_, probability_}) {
    message_->Watch(*cell);
    connect(cell, &TQorFloatEdit::Changed, this, &DistributionPage::Update);
  }
  ShowFamily();
}

DistributionPage::~DistributionPage() = default;

const apps::Family& DistributionPage::Family() const {
  return apps::Families()[static_cast<std::size_t>(std::max(family_->currentIndex(), 0))];
}

bool DistributionPage::IsInterval() const {
  return question_->currentIndex() == 1;
}

void DistributionPage::ShowFamily() {
  // The diagram does not show that of another family.
  quantile_at_.reset();
  summary_->setText(Translated(Family().summary));
  parameters_->SetParameters(Family().parameters);
  // Points that the diagram shows, whatever the family.
  const auto distribution = Family().make(parameters_->Numbers());
  const auto point = [&](Extended p) {
    const Extended exact = distribution->Quantile(Tail::kLower, p);
    return Family().is_discrete ? exact : std::round(exact * 100) / 100;
  };
  first_->setValue(point(0.2L));
  second_->setValue(point(0.9L));
  Update();
}

void DistributionPage::Update() {
  second_->setVisible(IsInterval());
  second_label_->setVisible(IsInterval());
  const QString variable = Family().is_discrete ? QStringLiteral("k") : QStringLiteral("x");
  first_label_->setText(IsInterval() ? QStringLiteral("a") : variable);
  second_label_->setText(QStringLiteral("b"));
  const std::vector<Extended> parameters = parameters_->Numbers();
  const QString wrong = WhatIsWrong(parameters);
  if (!wrong.isEmpty()) return message_->SetText(wrong);
  try {
    const auto distribution = Family().make(parameters);
    // The diagram of the points shows the quantile, too.
    const QString wrong_quantile = UpdateQuantile(*distribution);
    QStringList messages = {UpdatePoints(*distribution), wrong_quantile};
    messages.removeAll(QString());
    message_->SetText(messages.join(QStringLiteral("; ")));
  } catch (const std::exception& error) {
    message_->SetText(QString::fromUtf8(error.what()));
  }
}

QString DistributionPage::WhatIsWrong(const std::vector<Extended>& parameters) const {
  const QString wrong = parameters_->WhatIsWrong();
  if (!wrong.isEmpty() || Family().inconsistency == nullptr) return wrong;
  const char* const what = Family().inconsistency(parameters);
  return what == nullptr ? QString() : parameters_->Labelled(what);
}

QString DistributionPage::UpdatePoints(const apps::AnyDistribution& distribution) {
  std::vector<Extended> points = {first_->Value()};
  if (IsInterval()) points.push_back(second_->Value());
  const apps::NumberKind kind =
      Family().is_discrete ? apps::NumberKind::kCount : apps::NumberKind::kReal;
  for (std::size_t i = 0; i < points.size(); ++i) {
    if (const char* const wrong = apps::WhatIsWrong(points[i], kind)) {
      return tr("%1: %2 %3")
          .arg((i == 0 ? first_label_ : second_label_)->text(), ExactText(points[i]),
               Translated(wrong));
    }
  }
  std::sort(points.begin(), points.end());
  try {
    const Tails tails = distribution.At(points.front());
    QList<QStringList> figures;
    const Extended a = points.front();
    if (IsInterval()) {
      const Extended b = points.back();
      // At least b is the same as more than b - 1.
      const Tails at_b = distribution.At(Family().is_discrete ? b - 1 : b);
      figures = {{tr("P(a < X < b)"), ExactText(distribution.ProbabilityBetween(a, b))},
                 {tr("P(X ≤ a)"), ExactText(tails.Probability(Tail::kLower))},
                 {tr("P(X ≥ b)"), ExactText(at_b.Probability(Tail::kUpper))},
                 {tr("ln P(X ≤ a)"), ExactText(tails.LogProbability(Tail::kLower))},
                 {tr("ln P(X ≥ b)"), ExactText(at_b.LogProbability(Tail::kUpper))}};
    } else {
      const bool is_count = Family().is_discrete;
      figures = {
          {is_count ? tr("P(X = k)") : tr("Density at x"), ExactText(distribution.Pdf(a))},
          {is_count ? tr("P(X ≤ k)") : tr("P(X ≤ x)"), ExactText(tails.Probability(Tail::kLower))},
          {is_count ? tr("P(X > k)") : tr("P(X > x)"), ExactText(tails.Probability(Tail::kUpper))},
          {is_count ? tr("ln P(X ≤ k)") : tr("ln P(X ≤ x)"),
           ExactText(tails.LogProbability(Tail::kLower))},
          {is_count ? tr("ln P(X > k)") : tr("ln P(X > x)"),
           ExactText(tails.LogProbability(Tail::kUpper))}};
    }
    Draw(distribution, points);
    figures_->SetRows(figures);
  } catch (const std::exception& error) {
    return QString::fromUtf8(error.what());
  }
  return {};
}

QString DistributionPage::UpdateQuantile(const apps::AnyDistribution& distribution) {
  const Extended probability = probability_->Value();
  if (const char* const wrong = apps::WhatIsWrong(probability, apps::NumberKind::kProbability))
    return tr("Probability: %1 %2").arg(ExactText(probability), Translated(wrong));
  try {
    const Tail tail = side_->currentIndex() == 0 ? Tail::kLower : Tail::kUpper;
    quantile_at_ = distribution.Quantile(tail, probability);
    quantile_->SetRows({{tr("Quantile"), ExactText(*quantile_at_)}});
  } catch (const std::exception& error) {
    return QString::fromUtf8(error.what());
  }
  return {};
}

void DistributionPage::Draw(const apps::AnyDistribution& distribution,
                            const std::vector<Extended>& points) {
  plot_->SetContent(DistributionPlot(distribution, {Family().is_discrete, points, quantile_at_}));
}

QVariantMap DistributionPage::State() const {
  return {{QStringLiteral("family"), QString::fromUtf8(Family().name)},
          {QStringLiteral("parameters"), parameters_->Texts()},
          {QStringLiteral("question"), question_->currentIndex()},
          {QStringLiteral("first"), NumberText(*first_)},
          {QStringLiteral("second"), NumberText(*second_)},
          {QStringLiteral("side"), side_->currentIndex()},
          {QStringLiteral("probability"), NumberText(*probability_)}};
}

void DistributionPage::SetState(const QVariantMap& state) {
  const std::string name = state.value(QStringLiteral("family")).toString().toStdString();
  const apps::Family* const family = apps::FindFamily(name);
  if (family == nullptr) return;
  family_->setCurrentIndex(static_cast<int>(family - apps::Families().data()));
  parameters_->SetTexts(state.value(QStringLiteral("parameters")).toStringList());
  question_->setCurrentIndex(state.value(QStringLiteral("question")).toInt() == 1 ? 1 : 0);
  side_->setCurrentIndex(state.value(QStringLiteral("side")).toInt() == 1 ? 1 : 0);
  SetNumberText(*first_, state.value(QStringLiteral("first")).toString());
  SetNumberText(*second_, state.value(QStringLiteral("second")).toString());
  SetNumberText(*probability_, state.value(QStringLiteral("probability")).toString());
  Update();
}

PageReport DistributionPage::Report() const {
  // The figures are those of the last valid numbers.
  if (!message_->Text().isEmpty()) return {};
  const QList<QStringList> probability = {{side_->currentText(), ExactText(probability_->Value())}};
  QList<QStringList> points = {{first_label_->text(), ExactText(first_->Value())}};
  if (IsInterval()) points.append({second_label_->text(), ExactText(second_->Value())});
  return {family_->currentText(),
          {{tr("Parameters"), parameters_->Rows()},
           {tr("Diagram"), {}, plot_},
           {tr("Probabilities"), points + figures_->Rows()},
           {tr("Quantile"), probability + quantile_->Rows()}}};
}

}  // namespace qorvex::gallery
