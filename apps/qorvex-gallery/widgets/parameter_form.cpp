#include "apps/qorvex-gallery/widgets/parameter_form.h"

#include <QLabel>
#include <QVBoxLayout>

#include "apps/qorvex-gallery/model/names.h"
#include "apps/qorvex-gallery/model/texts.h"
#include "apps/qorvex-gallery/widgets/message_bar.h"
#include "qorvex/base/errors.h"
#include "qorvex/base/text.h"
#include "qorvex/base_controls/float_edit.h"

namespace qorvex::gallery {

namespace {

QString LabelOf(const apps::NumberParameter& parameter) {
  return Title(Translated(parameter.name));
}

}  // namespace

ParameterForm::ParameterForm(MessageBar& message, QWidget* parent)
    : QWidget(parent), message_(message) {
  auto* const layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(6);
}

ParameterForm::~ParameterForm() = default;

void ParameterForm::SetParameters(std::span<const apps::NumberParameter> parameters) {
  for (const Row& row : rows_) delete row.holder;
  rows_.clear();
  auto* const layout = static_cast<QVBoxLayout*>(this->layout());
  for (const apps::NumberParameter& parameter : parameters) {
    auto* const holder = new QWidget(this);
    auto* const lines = new QVBoxLayout(holder);
    lines->setContentsMargins(0, 0, 0, 0);
    lines->setSpacing(2);
    auto* const label = new QLabel(LabelOf(parameter), holder);
    label->setWordWrap(true);
    auto* const cell = MakeNumberCell(parameter.start, label->text(), holder);
    cell->setObjectName(QString::fromUtf8(parameter.option).mid(2));
    label->setBuddy(cell);
    lines->addWidget(label);
    lines->addWidget(cell);
    layout->addWidget(holder);
    rows_.push_back({&parameter, holder, cell});
    message_.Watch(*cell);
    connect(cell, &TQorFloatEdit::Changed, this, &ParameterForm::Changed);
  }
}

std::vector<Extended> ParameterForm::Numbers() const {
  std::vector<Extended> numbers;
  for (const Row& row : rows_) numbers.push_back(row.cell->Value());
  return numbers;
}

QStringList ParameterForm::Texts() const {
  QStringList texts;
  for (const Row& row : rows_) texts.append(NumberText(*row.cell));
  return texts;
}

void ParameterForm::SetTexts(const QStringList& texts) {
  for (std::size_t i = 0; i < rows_.size(); ++i)
    SetNumberText(*rows_[i].cell, texts.value(static_cast<qsizetype>(i)));
}

QList<QStringList> ParameterForm::Rows() const {
  QList<QStringList> rows;
  for (const Row& row : rows_) rows.append({LabelOf(*row.parameter), ExactText(row.cell->Value())});
  return rows;
}

QString ParameterForm::WhatIsWrong() const {
  QStringList messages;
  for (const Row& row : rows_) {
    const Extended number = row.cell->Value();
    if (const char* const wrong = apps::WhatIsWrong(number, row.parameter->kind)) {
      messages += LabelOf(*row.parameter) + QStringLiteral(": ") + ExactText(number) + ' ' +
                  Translated(wrong);
    }
  }
  return messages.join(QStringLiteral("; "));
}

QString ParameterForm::Labelled(const std::string& message) const {
  QString text = Translated(message.c_str());
  for (const Row& row : rows_)
    text.replace(QLatin1String(row.parameter->option), '"' + LabelOf(*row.parameter) + '"');
  return text;
}

TQorFloatEdit* MakeNumberCell(Extended value, const QString& accessible_name, QWidget* parent) {
  auto* const cell = new TQorFloatEdit(parent);
  cell->setFullAccuracy(true);
  cell->setAllowKbdNull(false);
  cell->setValue(value);
  cell->setAccessibleName(accessible_name);
  return cell;
}

QString NumberText(const TQorFloatEdit& cell) {
  return QString::fromStdString(Float2Str(cell.Value()));
}

void SetNumberText(TQorFloatEdit& cell, const QString& text) {
  try {
    cell.setValue(Str2Float(text.toStdString()));
  } catch (const EConvertError&) {
    // The text was not written by NumberText.
  }
}

}  // namespace qorvex::gallery
