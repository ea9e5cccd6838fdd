#include "apps/qorvex-gallery/widgets/plot_chooser.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QSpinBox>
#include <QVBoxLayout>
#include <algorithm>
#include <vector>

#include "apps/qorvex-gallery/model/column_plots.h"
#include "apps/qorvex-gallery/model/sheet.h"
#include "apps/qorvex-gallery/plot/plot_view.h"
#include "apps/qorvex-gallery/widgets/column_box.h"

namespace qorvex::gallery {

namespace {

// More boxes would be thinner than their labels.
constexpr qsizetype kMostBoxes = 40;
constexpr int kBoxLength = 18;

}  // namespace

PlotChooser::PlotChooser(const Sheet& sheet, QWidget* parent)
    : QWidget(parent),
      sheet_(sheet),
      kind_(new QComboBox),
      classes_label_(new QLabel(tr("Cl&asses:"))),
      classes_(new QSpinBox),
      other_label_(new QLabel(tr("Aga&inst:"))),
      other_(new ColumnBox(sheet, ColumnBox::kNumeric)),
      plot_(new PlotView) {
  kind_->setObjectName("plotKind");
  kind_->addItems({tr("Histogram"), tr("Box plot"), tr("Normal quantiles"), tr("Values in order"),
                   tr("Autocorrelation"), tr("Against another column"), tr("Residuals of a line")});
  // Long names do not widen the page.
  for (QComboBox* const box : {kind_, static_cast<QComboBox*>(other_)}) {
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    box->setMinimumContentsLength(kBoxLength);
  }
  classes_->setObjectName("classes");
  classes_->setRange(0, 1000);
  classes_->setSpecialValueText(tr("automatic"));
  other_->setObjectName("plotOther");
  plot_->setObjectName("columnPlot");
  auto* const kind_label = new QLabel(tr("Plo&t:"));
  kind_label->setBuddy(kind_);
  classes_label_->setBuddy(classes_);
  other_label_->setBuddy(other_);

  auto* const head = new QHBoxLayout;
  head->addWidget(kind_label);
  head->addWidget(kind_);
  head->addSpacing(fontMetrics().height());
  for (QWidget* const option :
       std::initializer_list<QWidget*>{classes_label_, classes_, other_label_, other_})
    head->addWidget(option);
  head->addStretch(1);
  auto* const layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addLayout(head);
  layout->addWidget(plot_, 1);

  connect(kind_, &QComboBox::currentIndexChanged, this, &PlotChooser::Update);
  connect(classes_, &QSpinBox::valueChanged, this, &PlotChooser::Update);
  connect(other_, &ColumnBox::ColumnChanged, this, &PlotChooser::Update);
  Update();
}

PlotChooser::~PlotChooser() = default;

void PlotChooser::ShowColumn(int column, int group_column) {
  column_ = column;
  group_column_ = group_column;
  Update();
}

QString PlotChooser::KindName() const {
  return kind_->currentText();
}

QVariantMap PlotChooser::State() const {
  return {{QStringLiteral("kind"), kind_->currentIndex()},
          {QStringLiteral("classes"), classes_->value()}};
}

void PlotChooser::SetState(const QVariantMap& state) {
  const int kind = state.value(QStringLiteral("kind")).toInt();
  kind_->setCurrentIndex(std::clamp(kind, 0, kind_->count() - 1));
  classes_->setValue(state.value(QStringLiteral("classes")).toInt());
}

PlotChooser::Kind PlotChooser::ChosenKind() const {
  return static_cast<Kind>(std::max(kind_->currentIndex(), 0));
}

void PlotChooser::Update() {
  const bool has_classes = ChosenKind() == kHistogram;
  const bool has_other = ChosenKind() == kScatter || ChosenKind() == kResiduals;
  classes_label_->setVisible(has_classes);
  classes_->setVisible(has_classes);
  other_label_->setVisible(has_other);
  other_->setVisible(has_other);
  plot_->setAccessibleName(kind_->currentText());
  plot_->SetPlaceholder(WhyEmpty());
  plot_->SetContent(column_ < 0 ? PlotContent() : Content());
}

QString PlotChooser::WhyEmpty() const {
  if (column_ < 0) return tr("No values to show");
  switch (ChosenKind()) {
    case kScatter:
      return tr("No row has a value in both columns");
    case kResiduals:
      return tr("A line needs rows with two different values of the other column");
    case kAutocorrelation:
      return tr("Autocorrelations need two different values, and no infinite ones");
    default:
      return tr("No values to show");
  }
}

PlotContent PlotChooser::Content() const {
  const NamedValues column = {sheet_.Title(column_), sheet_.Numbers(column_)};
  switch (ChosenKind()) {
    case kHistogram:
      return HistogramPlot(column, static_cast<std::size_t>(classes_->value()));
    case kBox:
      return Boxes();
    case kNormalQuantiles:
      return NormalQuantilePlot(column);
    case kOrder:
      return OrderPlot(column);
    case kAutocorrelation:
      return AutocorrelationPlot(column);
    case kScatter:
    case kResiduals:
      break;
  }
  return AgainstOther();
}

PlotContent PlotChooser::Boxes() const {
  const QString title = sheet_.Title(column_);
  const TQorFloatVector values = sheet_.Numbers(column_);
  if (group_column_ < 0) return BoxPlot({{{}, values}}, title);
  const SheetGroups rows = sheet_.Groups(group_column_);
  QList<NamedValues> groups;
  for (const QString& name : rows.names.mid(0, kMostBoxes)) groups.append({name, {}});
  for (std::size_t row = 0; row < values.size(); ++row) {
    const int group = rows.group_of_row[row];
    if (group >= 0 && group < groups.size()) groups[group].values.Append(values[row]);
  }
  PlotContent plot = BoxPlot(groups, title);
  plot.y.title = sheet_.Title(group_column_);
  if (rows.names.size() > kMostBoxes)
    plot.y.title = tr("The first %1 groups of %2").arg(kMostBoxes).arg(plot.y.title);
  return plot;
}

PlotContent PlotChooser::AgainstOther() const {
  const int by = other_->Column();
  if (by < 0) return {};
  const NamedValues x = {sheet_.Title(by), sheet_.Numbers(by)};
  const NamedValues y = {sheet_.Title(column_), sheet_.Numbers(column_)};
  return ChosenKind() == kScatter ? ScatterPlot(x, y) : ResidualPlot(x, y);
}

}  // namespace qorvex::gallery
