#include "qorvex/base_controls/uictrl.h"

namespace qorvex::inline QorvexBaseControls {

TQorUICtrl::TQorUICtrl(QObject* owner) : QObject(owner) {}
TQorUICtrl::~TQorUICtrl() = default;

CellSettings TQorUICtrl::Merged(CellSettings own, TQorUIUsage usage) const {
  const CellSettings shared = Settings();
  if (usage.testFlag(uuColors)) own.colors = shared.colors;
  if (usage.testFlag(uuNumberFormat)) {
    own.number = shared.number;
    own.read_expressions = shared.read_expressions;
  }
  if (usage.testFlag(uuNullHandling)) own.nulls = shared.nulls;
  if (usage.testFlag(uuBehaviour)) own.selection = shared.selection;
  return own;
}

void TQorUICtrl::SettingsChanged() {
  Q_EMIT Changed();
}

void TQorUICtrl::DoColorSetChange() {
  Q_EMIT Changed();
}

}  // namespace qorvex::inline QorvexBaseControls
