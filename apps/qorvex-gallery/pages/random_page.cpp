#include "apps/qorvex-gallery/pages/random_page.h"

#include <QClipboard>
#include <QComboBox>
#include <QFileDialog>
#include <QFormLayout>
#include <QGuiApplication>
#include <QLabel>
#include <QLocale>
#include <QProgressBar>
#include <QPushButton>
#include <QRandomGenerator>
#include <QSpinBox>
#include <QVBoxLayout>
#include <algorithm>

#include "apps/qorvex-gallery/model/distribution_curve.h"
#include "apps/qorvex-gallery/model/names.h"
#include "apps/qorvex-gallery/model/texts.h"
#include "apps/qorvex-gallery/model/variate_theory.h"
#include "apps/qorvex-gallery/plot/plot_view.h"
#include "apps/qorvex-gallery/widgets/figure_table.h"
#include "apps/qorvex-gallery/widgets/heading.h"
#include "apps/qorvex-gallery/widgets/message_bar.h"
#include "apps/qorvex-gallery/widgets/parameter_form.h"
#include "apps/qorvex-gallery/widgets/side_panel.h"
#include "qorvex/base/errors.h"
#include "qorvex/base_controls/float_edit.h"

namespace qorvex::gallery {

namespace {

constexpr int kMostValues = 10'000'000;
// More values could exhaust the memory of the program that they are pasted into.
constexpr std::size_t kMostCopied = 1'000'000;

}  // namespace

RandomPage::RandomPage(QWidget* parent)
    : Page(parent),
      message_(new MessageBar),
      variate_(new QComboBox),
      summary_(new QLabel),
      parameters_(new ParameterForm(*message_)),
      size_(new QSpinBox),
      seed_(MakeNumberCell(1, tr("Seed"), this)),
      classes_(new QSpinBox),
      generate_(new QPushButton(tr("&Generate"))),
      cancel_(new QPushButton(tr("Cancel"))),
      progress_(new QProgressBar),
      copy_(new QPushButton(tr("&Copy"))),
      save_(new QPushButton(tr("&Save…"))),
      plot_(new PlotView),
      title_(MakeHeading({})),
      moments_(new FigureTable({FigureTable::kLabel, FigureTable::kFigure, FigureTable::kFigure})),
      work_(this) {
  setObjectName(QStringLiteral("randomPage"));
  variate_->setObjectName(QStringLiteral("variate"));
  variate_->setAccessibleName(tr("Variate"));
  size_->setObjectName(QStringLiteral("size"));
  seed_->setObjectName(QStringLiteral("seed"));
  generate_->setObjectName(QStringLiteral("generate"));
  cancel_->setObjectName(QStringLiteral("cancel"));
  moments_->setObjectName(QStringLiteral("moments"));
  moments_->SetTitled();

  // Only single numbers have a histogram.
  for (const apps::Variate& variate : apps::Variates()) {
    if (std::any_of(variate.parameters.begin(), variate.parameters.end(),
                    [](const auto& p) { return p.kind == apps::NumberKind::kReals; })) {
      continue;
    }
    variates_.push_back(&variate);
    variate_->addItem(DisplayName(variate.name), QLatin1String(variate.name));
  }
  variate_->setCurrentIndex(variate_->findData(QLatin1String("gamma")));
  summary_->setWordWrap(true);
  size_->setRange(2, kMostValues);
  size_->setGroupSeparatorShown(true);
  size_->setValue(10'000);
  classes_->setObjectName(QStringLiteral("classes"));
  classes_->setRange(0, 1000);
  classes_->setSpecialValueText(tr("automatic"));
  progress_->setRange(0, 1000);
  progress_->setTextVisible(false);
  plot_->SetPlaceholder(tr("No sample yet"));
  plot_->setAccessibleName(tr("Histogram"));

  auto* const panel = new SidePanel;
  QVBoxLayout* const what = panel->AddGroup(tr("Variate"));
  what->addWidget(variate_);
  what->addWidget(summary_);
  what->addWidget(parameters_);
  QVBoxLayout* const how = panel->AddGroup(tr("Sample"));
  auto* const form = new QFormLayout;
  form->addRow(tr("Values"), size_);
  auto* const seed_line = new QHBoxLayout;
  auto* const new_seed = new QPushButton(tr("&New"));
  new_seed->setToolTip(tr("Take a random seed and generate"));
  seed_line->addWidget(seed_, 1);
  seed_line->addWidget(new_seed);
  form->addRow(tr("Seed"), seed_line);
  how->addLayout(form);
  auto* const buttons = new QHBoxLayout;
  buttons->addWidget(generate_, 1);
  buttons->addWidget(cancel_, 1);
  how->addLayout(buttons);
  how->addWidget(progress_);
  QVBoxLayout* const shown = panel->AddGroup(tr("Histogram"));
  auto* const shown_form = new QFormLayout;
  shown_form->addRow(tr("C&lasses"), classes_);
  shown->addLayout(shown_form);
  panel->Finish();

  auto* const buttons_of_values = new QVBoxLayout;
  buttons_of_values->addWidget(copy_);
  buttons_of_values->addWidget(save_);
  auto* const below = new QHBoxLayout;
  below->addWidget(moments_, 1, Qt::AlignTop);
  below->addLayout(buttons_of_values);
  auto* const right = new QVBoxLayout;
  right->addWidget(title_);
  right->addWidget(plot_, 1);
  right->addLayout(below);
  right->addWidget(message_);
  auto* const layout = new QHBoxLayout(this);
  layout->addWidget(panel);
  layout->addLayout(right, 1);

  connect(variate_, &QComboBox::currentIndexChanged, this, &RandomPage::ShowVariate);
  connect(parameters_, &ParameterForm::Changed, this,
          [this] { message_->SetText(parameters_->WhatIsWrong()); });
  message_->Watch(*seed_);
  connect(new_seed, &QPushButton::clicked, this, [this] {
    seed_->setValue(static_cast<Extended>(QRandomGenerator::system()->generate64() >> 32));
    Generate();
  });
  connect(generate_, &QPushButton::clicked, this, &RandomPage::Generate);
  connect(cancel_, &QPushButton::clicked, this, [this] {
    work_.Stop();
    message_->SetText(tr("Cancelled"));
    ShowRunning();
  });
  connect(classes_, &QSpinBox::valueChanged, this, &RandomPage::UpdateClasses);
  connect(copy_, &QPushButton::clicked, this, &RandomPage::Copy);
  connect(save_, &QPushButton::clicked, this, &RandomPage::AskAndSave);
  connect(&work_, &BackgroundWork::Progressed, progress_, &QProgressBar::setValue);
  ShowVariate();
  ShowRunning();
}

RandomPage::~RandomPage() = default;

const apps::Variate& RandomPage::Chosen() const {
  return *variates_[static_cast<std::size_t>(std::max(variate_->currentIndex(), 0))];
}

void RandomPage::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  if (sample_ == nullptr) Generate();
}

void RandomPage::ShowVariate() {
  summary_->setText(Translated(Chosen().summary));
  parameters_->SetParameters(Chosen().parameters);
  message_->SetText({});
}

QString RandomPage::WhatIsWrong(const std::vector<Extended>& parameters) const {
  const QString wrong = parameters_->WhatIsWrong();
  if (!wrong.isEmpty()) return wrong;
  if (const char* const what = apps::WhatIsWrong(seed_->Value(), apps::NumberKind::kUint64))
    return tr("Seed: %1 %2").arg(ExactText(seed_->Value()), Translated(what));
  const auto inconsistency = Chosen().methods.front().inconsistency;
  if (inconsistency == nullptr) return {};
  apps::VariateArguments arguments;
  for (const Extended parameter : parameters) arguments.Append({parameter});
  return parameters_->Labelled(inconsistency(arguments));
}

void RandomPage::Generate() {
  if (work_.IsRunning()) return;
  const std::vector<Extended> parameters = parameters_->Numbers();
  const QString wrong = WhatIsWrong(parameters);
  message_->SetText(wrong);
  if (!wrong.isEmpty()) return;
  const SampleOrder order = {&Chosen(), parameters, static_cast<std::size_t>(size_->value()),
                             static_cast<std::uint64_t>(seed_->Value())};
  const auto sample = std::make_shared<RandomSample>();
  work_.Start([order, sample](const Proceed& proceed) { *sample = DrawSample(order, proceed); },
              [this, sample] {
                sample_ = sample;
                ShowSample();
                EndWork();
              },
              [this](const QString& why) {
                message_->SetText(parameters_->Labelled(why.toStdString()));
                ShowRunning();
              });
  ShowRunning();
}

void RandomPage::ShowRunning() {
  const bool running = work_.IsRunning();
  generate_->setEnabled(!running);
  cancel_->setEnabled(running);
  copy_->setEnabled(!running && sample_ != nullptr);
  save_->setEnabled(!running && sample_ != nullptr);
  progress_->setValue(0);
  progress_->setVisible(running);
}

void RandomPage::EndWork() {
  ShowRunning();
  UpdateClasses();
}

void RandomPage::ShowSample() {
  const SampleOrder& order = sample_->order;
  const VariateTheory theory = TheoryOf(*order.variate, order.parameters);
  title_->setText(tr("%1: %L2 values, seed %3")
                      .arg(DisplayName(order.variate->name))
                      .arg(order.size)
                      .arg(order.seed));
  moments_->SetRows(
      {{QString(), tr("Sample"), tr("Distribution")},
       {tr("Mean"), ExactText(sample_->mean), ExactTextOrDash(theory.mean)},
       {tr("Variance"), ExactText(sample_->variance), ExactTextOrDash(theory.variance)}});

  const QString name =
      sample_->is_cropped ? tr("Sample, without the outermost hundredth") : tr("Sample");
  std::vector<PlotLayer> layers = {{PlotShape::kBars, PlotRole::kData, name, sample_->bars}};
  if (theory.density && !sample_->bars.empty()) try {
      Interval<Extended> range = {static_cast<Extended>(sample_->bars.front().x()),
                                  static_cast<Extended>(sample_->bars.back().x())};
      if (theory.is_count) range = {std::ceil(range.least), std::floor(range.greatest)};
      const auto curve = DensityAt(theory.density, PlottedPoints(range, theory.is_count));
      layers.push_back({PlotShape::kLine, PlotRole::kModel,
                        theory.is_count ? tr("Probabilities") : tr("Density"), curve});
    } catch (const EMathError&) {
      // Some variates lie where the density cannot be computed; the sample is then shown alone.
    }
  const bool has_counts = theory.is_count && sample_->classes == 0;
  plot_->SetAxisTitles(tr("Value"), has_counts ? tr("Share") : tr("Density"));
  plot_->SetLayers(std::move(layers));
}

// While there is work in progress, waits for EndWork.
void RandomPage::UpdateClasses() {
  const auto classes = static_cast<std::size_t>(classes_->value());
  if (work_.IsRunning() || sample_ == nullptr || sample_->classes == classes) return;
  const auto sample = std::make_shared<RandomSample>(*sample_);
  work_.Start([sample, classes](const Proceed&) { *sample = WithClasses(*sample, classes); },
              [this, sample] {
                sample_ = sample;
                ShowSample();
                EndWork();
              },
              [this](const QString& why) { message_->SetText(why); });
  ShowRunning();
}

QVariantMap RandomPage::State() const {
  return {{QStringLiteral("variate"), QString::fromUtf8(Chosen().name)},
          {QStringLiteral("parameters"), parameters_->Texts()},
          {QStringLiteral("size"), size_->value()},
          {QStringLiteral("seed"), NumberText(*seed_)},
          {QStringLiteral("classes"), classes_->value()}};
}

void RandomPage::SetState(const QVariantMap& state) {
  const std::string name = state.value(QStringLiteral("variate")).toString().toStdString();
  const auto variate = std::ranges::find_if(
      variates_, [&name](const apps::Variate* of) { return of->name == name; });
  if (variate == variates_.end()) return;
  variate_->setCurrentIndex(static_cast<int>(variate - variates_.begin()));
  parameters_->SetTexts(state.value(QStringLiteral("parameters")).toStringList());
  size_->setValue(state.value(QStringLiteral("size")).toInt());
  SetNumberText(*seed_, state.value(QStringLiteral("seed")).toString());
  classes_->setValue(state.value(QStringLiteral("classes")).toInt());
}

PageReport RandomPage::Report() const {
  if (sample_ == nullptr) return {};
  return {title_->text(), {{tr("Histogram"), {}, plot_}, {tr("Moments"), moments_->Rows()}}};
}

void RandomPage::Copy() {
  if (sample_->values.size() > kMostCopied) {
    message_->SetText(tr("More than %L1 values are saved rather than copied").arg(kMostCopied));
    return;
  }
  QString text;
  for (const Extended value : sample_->values) text += ExactText(value) + '\n';
  QGuiApplication::clipboard()->setText(text);
}

void RandomPage::AskAndSave() {
  const QString path = QFileDialog::getSaveFileName(
      this, tr("Save the Values"), QStringLiteral("variates.csv"), tr("Text (*.csv *.txt)"));
  if (!path.isEmpty()) Save(path);
}

void RandomPage::Save(const QString& path) {
  if (sample_ == nullptr || work_.IsRunning()) return;
  message_->SetText({});
  work_.Start([sample = sample_,
               path](const Proceed& proceed) { SaveValues(sample->values, path, proceed); },
              [this] { EndWork(); },
              [this, path](const QString& why) {
                message_->SetText(tr("%1: %2").arg(path, why));
                ShowRunning();
              });
  ShowRunning();
}

}  // namespace qorvex::gallery
