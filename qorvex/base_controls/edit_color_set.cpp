#include "qorvex/base_controls/edit_color_set.h"

namespace qorvex::inline QorvexBaseControls {

TQorEditColorSet::TQorEditColorSet(QObject* owner) : QObject(owner) {}
TQorEditColorSet::~TQorEditColorSet() = default;

void TQorEditColorSet::setColors(const EditColors& colors) {
  if (colors == colors_) return;
  colors_ = colors;
  Q_EMIT Changed();
}

}  // namespace qorvex::inline QorvexBaseControls
