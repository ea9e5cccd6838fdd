#include "apps/qorvex-gallery/widgets/column_report.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

#include "apps/qorvex-gallery/model/column_figures.h"
#include "apps/qorvex-gallery/model/sheet.h"
#include "apps/qorvex-gallery/widgets/figure_table.h"
#include "apps/qorvex-gallery/widgets/heading.h"
#include "apps/qorvex-gallery/widgets/plot_chooser.h"
#include "apps/qorvex-gallery/widgets/tool_tip.h"

namespace qorvex::gallery {

ColumnReport::ColumnReport(const Sheet& sheet, QWidget* parent)
    : QWidget(parent),
      sheet_(sheet),
      decimals_(new QSpinBox),
      population_(new QCheckBox(tr("Whole &population (divide by n)"))),
      figures_(new FigureTable(
          {FigureTable::kLabel, FigureTable::kFigure, FigureTable::kLabel, FigureTable::kFigure})),
      remark_(new QLabel),
      plot_(new PlotChooser(sheet)) {
  figures_->setObjectName("report");
  decimals_->setObjectName("decimals");
  // The least value stands for the digits that fit.
  decimals_->setRange(-1, 40);
  decimals_->setSpecialValueText(tr("auto"));
  decimals_->setValue(-1);
  population_->setObjectName("population");
  remark_->setObjectName("remark");
  // A long remark does not widen the page.
  remark_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  connect(decimals_, &QSpinBox::valueChanged, this, &ColumnReport::ShowFigures);
  connect(population_, &QCheckBox::toggled, this, &ColumnReport::PopulationChosen);

  auto* const layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addLayout(MakeHead());
  layout->addWidget(figures_);
  layout->addWidget(remark_);
  layout->addWidget(plot_, 1);
}

ColumnReport::~ColumnReport() = default;

QLayout* ColumnReport::MakeHead() {
  auto* const decimals_label = new QLabel(tr("&Decimals:"));
  decimals_label->setBuddy(decimals_);
  auto* const copy = new QPushButton(tr("Cop&y"));
  copy->setObjectName("copyStatistics");
  copy->setToolTip(tr("Copy all statistics as a table"));
  connect(copy, &QPushButton::clicked, figures_, &FigureTable::Copy);
  auto* const head = new QHBoxLayout;
  head->addWidget(MakeHeading(tr("Statistics")));
  head->addStretch(1);
  head->addWidget(population_);
  head->addSpacing(fontMetrics().height());
  head->addWidget(decimals_label);
  head->addWidget(decimals_);
  head->addWidget(copy);
  return head;
}

void ColumnReport::ShowColumn(int column, int group_column) {
  column_ = column;
  ShowFigures();
  plot_->ShowColumn(column, group_column);
}

void ColumnReport::ShowFigures() {
  const TQorFloatVector all = column_ < 0 ? TQorFloatVector() : sheet_.Numbers(column_);
  const TQorFloatVector values = WithoutNulls(all);
  const ColumnFigures figures(values, population_->isChecked());
  figures_->SetRows(figures.ReportTable(Decimals(), locale()));
  remark_->setText(
      figures.Remark(all.size() - values.size(), Decimals(), decimals_->maximum(), locale()));
  remark_->setToolTip(ToolTipOf(remark_->text()));
}

std::optional<int> ColumnReport::Decimals() const {
  return decimals_->value() < 0 ? std::nullopt : std::optional(decimals_->value());
}

bool ColumnReport::OfPopulation() const {
  return population_->isChecked();
}

QVariantMap ColumnReport::State() const {
  QVariantMap state = plot_->State();
  state.insert(QStringLiteral("decimals"), decimals_->value());
  state.insert(QStringLiteral("population"), population_->isChecked());
  return state;
}

void ColumnReport::SetState(const QVariantMap& state) {
  plot_->SetState(state);
  decimals_->setValue(state.value(QStringLiteral("decimals"), decimals_->value()).toInt());
  population_->setChecked(state.value(QStringLiteral("population")).toBool());
}

QList<PageReport::Part> ColumnReport::ReportParts() const {
  if (column_ < 0) return {};
  return {{tr("Statistics of %1").arg(sheet_.Title(column_)), figures_->Rows()},
          {plot_->KindName(), {}, &plot_->Plot()}};
}

}  // namespace qorvex::gallery
