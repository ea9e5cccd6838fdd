#include "apps/qorvex-gallery/widgets/hypothesis_form.h"

#include <QComboBox>
#include <QFormLayout>
#include <algorithm>

#include "apps/qorvex-gallery/model/names.h"
#include "apps/qorvex-gallery/model/test_texts.h"
#include "apps/qorvex-gallery/model/texts.h"
#include "apps/qorvex-gallery/widgets/form_rows.h"
#include "apps/qorvex-gallery/widgets/message_bar.h"
#include "apps/qorvex-gallery/widgets/parameter_form.h"
#include "qorvex/base/errors.h"
#include "qorvex/base/text.h"
#include "qorvex/base_controls/float_edit.h"

namespace qorvex::gallery {

namespace {

// Of a null hypothesis whose number has no default.
constexpr const char* kFirstNullValue = "1";

apps::WrittenNumber Written(const TQorFloatEdit& cell) {
  return {Float2Str(cell.Value()), cell.Value()};
}

}  // namespace

HypothesisForm::HypothesisForm(MessageBar& message, QWidget* parent)
    : QWidget(parent),
      layout_(new QFormLayout(this)),
      null_value_(MakeNumberCell(0, tr("Number of the null hypothesis"), this)),
      family_(new QComboBox),
      parameters_(new ParameterForm(message)),
      alternative_(new QComboBox),
      confidence_(MakeNumberCell(0.95L, tr("Confidence level"), this)) {
  null_value_->setObjectName("nullValue");
  family_->setObjectName("family");
  alternative_->setObjectName("alternative");
  confidence_->setObjectName("confidence");
  for (const apps::Family& family : apps::Families())
    if (!family.is_discrete) family_->addItem(DisplayName(family.name), QString(family.name));
  family_->setCurrentIndex(family_->findData("normal"));
  // Long names do not widen the form.
  family_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  // In the order of Alternative.
  alternative_->addItems({tr("two-sided"), tr("less"), tr("greater")});
  layout_->setContentsMargins(0, 0, 0, 0);
  layout_->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
  for (TQorFloatEdit* const cell : {null_value_, confidence_}) {
    message.Watch(*cell);
    connect(cell, &TQorFloatEdit::Changed, this, &HypothesisForm::Changed);
  }
  connect(alternative_, &QComboBox::currentIndexChanged, this, &HypothesisForm::Changed);
  connect(parameters_, &ParameterForm::Changed, this, &HypothesisForm::Changed);
  connect(family_, &QComboBox::currentIndexChanged, this, &HypothesisForm::ShowParameters);
  ShowParameters();
}

HypothesisForm::~HypothesisForm() = default;

const apps::Family& HypothesisForm::Family() const {
  return *apps::FindFamily(family_->currentData().toString().toStdString());
}

void HypothesisForm::ShowParameters() {
  parameters_->SetParameters(Family().parameters);
  Q_EMIT Changed();
}

void HypothesisForm::SetTest(const apps::HypothesisTest& test) {
  test_ = &test;
  const apps::NullValue& null_value = test.null_value;
  const bool has_number = null_value.option != nullptr;
  const QString label = TestTexts(test).NullValue();
  SetRows(*layout_, {{null_value_, label + QLatin1Char(':'), has_number},
                     {family_, tr("Distribution:"), test.takes_family},
                     {parameters_, {}, test.takes_family},
                     {alternative_, tr("Alternative:"), test.has_alternative},
                     {confidence_, tr("Confidence level:")}});
  if (!has_number) return;
  null_value_->setAccessibleName(label);
  null_value_->setValue(
      Str2Float(null_value.default_text != nullptr ? null_value.default_text : kFirstNullValue));
}

QString HypothesisForm::WhatIsWrong() const {
  if (test_->null_value.option != nullptr) {
    if (const char* const wrong = apps::WhatIsWrong(null_value_->Value(), test_->null_value.kind)) {
      return TestTexts(*test_).NullValue() + QStringLiteral(": ") +
             ExactText(null_value_->Value()) + ' ' + Translated(wrong);
    }
  }
  if (test_->takes_family) {
    const QString wrong = parameters_->WhatIsWrong();
    if (!wrong.isEmpty()) return wrong;
    const std::vector<Extended> numbers = parameters_->Numbers();
    const char* const inconsistent =
        Family().inconsistency == nullptr ? nullptr : Family().inconsistency(numbers);
    if (inconsistent != nullptr) return parameters_->Labelled(inconsistent);
  }
  const char* const wrong = apps::WhatIsWrong(confidence_->Value(), apps::NumberKind::kProbability);
  return wrong == nullptr ? QString()
                          : tr("Confidence level: %1 %2")
                                .arg(ExactText(confidence_->Value()), Translated(wrong));
}

void HypothesisForm::Fill(apps::TestSettings& settings) const {
  settings.alternative = test_->has_alternative
                             ? static_cast<Alternative>(alternative_->currentIndex())
                             : Alternative::kTwoSided;
  if (test_->null_value.option != nullptr) settings.hypothesis = Written(*null_value_);
  settings.confidence = Written(*confidence_);
  if (!test_->takes_family) return;
  settings.family = &Family();
  settings.parameters = parameters_->Numbers();
}

QVariantMap HypothesisForm::State() const {
  return {{"nullValue", QString::fromStdString(Float2Str(null_value_->Value()))},
          {"family", family_->currentData()},
          {"alternative", alternative_->currentIndex()},
          {"confidence", QString::fromStdString(Float2Str(confidence_->Value()))}};
}

void HypothesisForm::SetState(const QVariantMap& state) {
  if (state.isEmpty()) return;
  for (TQorFloatEdit* const cell : {null_value_, confidence_}) {
    try {
      cell->setValue(Str2Float(state[cell->objectName()].toString().toStdString()));
    } catch (const EConvertError&) {
      // Settings that were changed by hand.
    }
  }
  family_->setCurrentIndex(std::max(0, family_->findData(state["family"])));
  alternative_->setCurrentIndex(state["alternative"].toInt());
}

}  // namespace qorvex::gallery
