#include "qorvex/controls/panel/detail/panel_axis.h"

#include <limits>
#include <utility>

namespace qorvex::inline QorvexControls::detail {

PanelAxis::PanelAxis(CurrentRule rule, EditWindowEvents events)
    : window_(rule, WithBar(std::move(events))) {}

EditWindowEvents PanelAxis::WithBar(EditWindowEvents events) {
  events.before_top = [this, announce = std::move(events.before_top)](quint32 top) {
    wanted_top_ = 0;
    announce(top);
  };
  events.place_bar = [this] { PlaceBar(); };
  return events;
}

void PanelAxis::AddBar(Qt::Orientation orientation, QWidget& panel) {
  bar_ = std::make_unique<QScrollBar>(orientation, &panel);
  // A click on the bar must take the focus from a cell, so that its text is committed to the row
  // in which it was typed.
  bar_->setFocusPolicy(Qt::ClickFocus);
  QObject::connect(bar_.get(), &QScrollBar::actionTriggered, bar_.get(),
                   [this](int action) { BarActed(action); });
  QObject::connect(bar_.get(), &QScrollBar::valueChanged, bar_.get(),
                   [this](int position) { BarMoved(position); });
}

void PanelAxis::SetTop(quint32 top) {
  window_.SetTop(top);
  wanted_top_ = loaded_ ? 0 : top;
}

void PanelAxis::ReachWantedTop() {
  if (wanted_top_ > window_.Top()) SetTop(wanted_top_);
}

quint32 PanelAxis::Lines(quint32 count, bool spare) {
  return spare && count < std::numeric_limits<quint32>::max() ? count + 1 : count;
}

void PanelAxis::SetCount(quint32 count, bool spare) {
  count_ = count;
  has_spare_ = spare;
  window_.SetCount(Lines(count, spare));
}

void PanelAxis::ScrollUp(quint32 elements) {
  wanted_top_ = 0;
  window_.ScrollUp(elements);
}

void PanelAxis::ScrollDown(quint32 elements) {
  wanted_top_ = 0;
  window_.ScrollDown(elements);
}

void PanelAxis::ScrollToStart() {
  wanted_top_ = 0;
  window_.SetTop(0);
}

void PanelAxis::ScrollToEnd() {
  wanted_top_ = 0;
  window_.SetTop(window_.Count());
}

void PanelAxis::Loaded() {
  loaded_ = true;
  wanted_top_ = 0;
}

void PanelAxis::PlaceBar() {
  if (!bar_) return;
  placing_bar_ = true;
  bar_->setRange(0, window_.BarMaximum());
  bar_->setPageStep(window_.BarPageStep());
  bar_->setValue(window_.BarPosition());
  placing_bar_ = false;
}

void PanelAxis::BarActed(int action) {
  switch (action) {
    case QAbstractSlider::SliderSingleStepAdd:
    case QAbstractSlider::SliderSingleStepSub:
      window_.StepFromBar(action == QAbstractSlider::SliderSingleStepAdd);
      break;
    default:
      window_.SetTopFromBar(bar_->sliderPosition());
  }
  // Qt moves the bar to its slider next.
  bar_->setSliderPosition(window_.BarPosition());
}

void PanelAxis::BarMoved(int position) {
  // The bar's menu and assistive programs set its value without an action.
  if (!placing_bar_ && position != window_.BarPosition()) window_.SetTopFromBar(position);
}

}  // namespace qorvex::inline QorvexControls::detail
