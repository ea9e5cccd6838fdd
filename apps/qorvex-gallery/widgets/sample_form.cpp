#include "apps/qorvex-gallery/widgets/sample_form.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QSpinBox>
#include <limits>

#include "apps/qorvex-gallery/model/sheet.h"
#include "apps/qorvex-gallery/model/test_order.h"
#include "apps/qorvex-gallery/widgets/column_box.h"
#include "apps/qorvex-gallery/widgets/column_list.h"
#include "apps/qorvex-gallery/widgets/form_rows.h"

namespace qorvex::gallery {

namespace {

using apps::TestInput;

QSpinBox* CountBox(const char* name, int count) {
  auto* const box = new QSpinBox;
  box->setObjectName(QLatin1String(name));
  box->setRange(0, std::numeric_limits<int>::max());
  box->setValue(count);
  box->setKeyboardTracking(false);
  return box;
}

bool TakesSamples(TestInput input) {
  return input == TestInput::kSample || input == TestInput::kTwoSamples ||
         input == TestInput::kSeveralSamples;
}

}  // namespace

SampleForm::SampleForm(const Sheet& sheet, QWidget* parent)
    : QWidget(parent),
      sheet_(sheet),
      layout_(new QFormLayout(this)),
      kind_(new QComboBox),
      first_(new ColumnBox(sheet, ColumnBox::kNumeric)),
      second_(new ColumnBox(sheet, ColumnBox::kNumeric)),
      proportions_(new ColumnBox(sheet, ColumnBox::kNumeric, tr("all equal"))),
      labels_(new ColumnBox(sheet, ColumnBox::kAll)),
      list_(new ColumnList(sheet)),
      yates_(new QCheckBox(tr("Yates' correction"))),
      fitted_(CountBox("fitted", 0)),
      successes_(CountBox("successes", 60)),
      trials_(CountBox("trials", 100)) {
  kind_->setObjectName("kind");
  kind_->addItems({tr("columns"), tr("groups of a column")});
  first_->setObjectName("first");
  second_->setObjectName("second");
  proportions_->setObjectName("proportions");
  labels_->setObjectName("labels");
  list_->setObjectName("columns");
  list_->setAccessibleName(tr("Columns"));
  list_->setFixedHeight(6 * fontMetrics().height());
  list_->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  yates_->setObjectName("yates");
  layout_->setContentsMargins(0, 0, 0, 0);
  layout_->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
  Connect();
  SetInput(TestInput::kSample);
}

SampleForm::~SampleForm() = default;

void SampleForm::Connect() {
  connect(kind_, &QComboBox::currentIndexChanged, this, [this] {
    ShowRows();
    Q_EMIT Changed();
  });
  for (ColumnBox* const box : {first_, second_, proportions_, labels_})
    connect(box, &ColumnBox::ColumnChanged, this, &SampleForm::Changed);
  for (QSpinBox* const box : {fitted_, successes_, trials_})
    connect(box, &QSpinBox::valueChanged, this, &SampleForm::Changed);
  connect(first_, &QComboBox::activated, this, [this] { is_first_chosen_ = true; });
  connect(list_, &ColumnList::ColumnsChanged, this, &SampleForm::Changed);
  connect(yates_, &QCheckBox::toggled, this, &SampleForm::Changed);
}

void SampleForm::SetInput(TestInput input) {
  input_ = input;
  ShowRows();
}

void SampleForm::SuggestColumn(int column) {
  if (!is_first_chosen_) first_->SetColumn(column);
}

bool SampleForm::HasGroups() const {
  return TakesSamples(input_) && kind_->currentIndex() == 1;
}

bool SampleForm::HasList() const {
  return input_ == TestInput::kCountTable || (input_ == TestInput::kSeveralSamples && !HasGroups());
}

void SampleForm::ShowRows() {
  const bool groups = HasGroups();
  const bool pairs = input_ == TestInput::kPairs;
  const bool two = pairs || (input_ == TestInput::kTwoSamples && !groups);
  const bool counts = input_ == TestInput::kCounts;
  const bool trials = input_ == TestInput::kTrials;
  const QString first = pairs    ? tr("x:")
                        : counts ? tr("Counts:")
                        : two    ? tr("First:")
                                 : tr("Values:");
  SetRows(*layout_, {{kind_, tr("Samples:"), TakesSamples(input_)},
                     {first_, first, !HasList() && !trials},
                     {second_, pairs ? tr("y:") : tr("Second:"), two},
                     {labels_, tr("Labels:"), groups},
                     {proportions_, tr("Proportions:"), counts},
                     {list_, {}, HasList()},
                     {yates_, {}, input_ == TestInput::kCountTable},
                     {fitted_, tr("Fitted parameters:"), counts},
                     {successes_, tr("Successes:"), trials},
                     {trials_, tr("Trials:"), trials}});
}

void SampleForm::Fill(TestOrder& order) const {
  const auto add = [this, &order](int column) {
    if (column >= 0) order.columns.push_back({sheet_.Title(column), sheet_.Numbers(column)});
  };
  if (HasList()) {
    for (const int column : list_->Columns()) add(column);
  } else {
    for (const ColumnBox* const box : {first_, second_, proportions_})
      if (!box->isHidden()) add(box->Column());
  }
  if (HasGroups() && labels_->Column() >= 0 && !order.columns.empty())
    order.groups = sheet_.Groups(labels_->Column());
  order.settings.yates = input_ == TestInput::kCountTable && yates_->isChecked();
  order.settings.fitted_parameters = static_cast<std::uint32_t>(fitted_->value());
  order.settings.successes = static_cast<std::uint32_t>(successes_->value());
  order.settings.trials = static_cast<std::uint32_t>(trials_->value());
}

QVariantMap SampleForm::State() const {
  return {{"kind", kind_->currentIndex()},    {"first", first_->State()},
          {"second", second_->State()},       {"proportions", proportions_->State()},
          {"labels", labels_->State()},       {"columns", list_->State()},
          {"yates", yates_->isChecked()},     {"fitted", fitted_->value()},
          {"successes", successes_->value()}, {"trials", trials_->value()},
          {"chosen", is_first_chosen_}};
}

void SampleForm::SetState(const QVariantMap& state) {
  if (state.isEmpty()) return;
  is_first_chosen_ = state["chosen"].toBool();
  kind_->setCurrentIndex(state["kind"].toInt());
  for (ColumnBox* const box : {first_, second_, proportions_, labels_})
    box->SetState(state[box->objectName()].toList());
  list_->SetState(state["columns"].toList());
  yates_->setChecked(state["yates"].toBool());
  for (QSpinBox* const box : {fitted_, successes_, trials_})
    box->setValue(state[box->objectName()].toInt());
}

}  // namespace qorvex::gallery
