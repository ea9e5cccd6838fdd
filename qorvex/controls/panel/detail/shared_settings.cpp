#include "qorvex/controls/panel/detail/shared_settings.h"

#include <utility>

#include "qorvex/base_controls/detail/find_by_name.h"

namespace qorvex::inline QorvexControls::detail {

SharedSettings::SharedSettings(QWidget& control, std::function<void()> changed)
    : control_(control), changed_(std::move(changed)) {}

SharedSettings::~SharedSettings() {
  Disconnect();
}

QString SharedSettings::Name() const {
  return linked_ ? linked_->objectName() : name_;
}

void SharedSettings::Link(TQorUICtrl* settings) {
  name_.clear();
  Connect(settings);
}

void SharedSettings::Link(const QString& name) {
  Link(nullptr);
  name_ = name;
  Find();
}

void SharedSettings::Find() {
  if (name_.isEmpty()) return;
  auto* const settings = QorvexBaseControls::detail::FindByName<TQorUICtrl>(control_, name_);
  if (settings != nullptr && settings != linked_) Connect(settings);
}

void SharedSettings::SetUsage(TQorUICtrl::TQorUIUsage usage) {
  if (usage == usage_) return;
  usage_ = usage;
  changed_();
}

CellSettings SharedSettings::Merged(const CellSettings& own) const {
  return linked_ ? linked_->Merged(own, usage_) : own;
}

void SharedSettings::Connect(TQorUICtrl* settings) {
  Disconnect();
  linked_ = settings;
  if (linked_) {
    QObject::connect(linked_, &TQorUICtrl::Changed, &control_, changed_);
    QObject::connect(linked_, &QObject::destroyed, &control_, changed_);
  }
  changed_();
}

void SharedSettings::Disconnect() {
  if (linked_) linked_->disconnect(&control_);
}

}  // namespace qorvex::inline QorvexControls::detail
