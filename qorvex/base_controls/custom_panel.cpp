#include "qorvex/base_controls/custom_panel.h"

#include <QEvent>

namespace qorvex::inline QorvexBaseControls {

TQorCustomPanel::TQorCustomPanel(QWidget* parent) : QFrame(parent) {}
TQorCustomPanel::~TQorCustomPanel() = default;

void TQorCustomPanel::EndUpdate() {
  if (updates_ > 0 && --updates_ == 0) Redisplay();
}

bool TQorCustomPanel::event(QEvent* event) {
  const bool handled = QFrame::event(event);
  if (event->type() == QEvent::Polish && !loaded_) {
    loaded_ = true;
    Loaded();
  }
  return handled;
}

}  // namespace qorvex::inline QorvexBaseControls
