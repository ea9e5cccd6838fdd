#include "apps/qorvex-gallery/widgets/column_report.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QSpinBox>
#include <QVBoxLayout>

#include "apps/qorvex-gallery/model/column_figures.h"
#include "apps/qorvex-gallery/model/column_plots.h"
#include "apps/qorvex-gallery/plot/plot_view.h"
#include "apps/qorvex-gallery/widgets/figure_table.h"
#include "apps/qorvex-gallery/widgets/heading.h"
#include "apps/qorvex-gallery/widgets/tool_tip.h"

namespace qorvex::gallery {

ColumnReport::ColumnReport(QWidget* parent)
    : QWidget(parent),
      decimals_(new QSpinBox),
      population_(new QCheckBox(tr("Whole &population (divide by n)"))),
      figures_(new FigureTable(
          {FigureTable::kLabel, FigureTable::kFigure, FigureTable::kLabel, FigureTable::kFigure})),
      remark_(new QLabel),
      plot_(new PlotView) {
  figures_->setObjectName("report");
  decimals_->setObjectName("decimals");
  decimals_->setRange(0, 40);
  decimals_->setValue(4);
  population_->setObjectName("population");
  remark_->setObjectName("remark");
  // A long remark does not widen the page.
  remark_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  plot_->setObjectName("histogram");
  plot_->setAccessibleName(tr("Histogram"));
  plot_->SetPlaceholder(tr("No values to show"));
  auto* const decimals_label = new QLabel(tr("&Decimals:"));
  decimals_label->setBuddy(decimals_);
  connect(decimals_, &QSpinBox::valueChanged, this, &ColumnReport::OptionsChanged);
  connect(population_, &QCheckBox::toggled, this, &ColumnReport::OptionsChanged);

  auto* const head = new QHBoxLayout;
  head->addWidget(MakeHeading(tr("Statistics")));
  head->addWidget(remark_, 1);
  head->addWidget(population_);
  head->addSpacing(fontMetrics().height());
  head->addWidget(decimals_label);
  head->addWidget(decimals_);
  auto* const layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addLayout(head);
  layout->addWidget(figures_);
  layout->addSpacing(fontMetrics().height() / 2);
  layout->addWidget(MakeHeading(tr("Histogram")));
  layout->addWidget(plot_, 1);
}

ColumnReport::~ColumnReport() = default;

void ColumnReport::Show(const TQorFloatVector& values, std::size_t empty_cells,
                        const QString& title) {
  const ColumnFigures figures(values, population_->isChecked());
  figures_->SetRows(figures.ReportTable(decimals_->value(), locale()));
  remark_->setText(figures.Remark(empty_cells, decimals_->value(), decimals_->maximum(), locale()));
  remark_->setToolTip(ToolTipOf(remark_->text()));
  plot_->SetContent(HistogramPlot({title, values}));
}

}  // namespace qorvex::gallery
