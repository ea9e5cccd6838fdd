#include "qorvex/base_controls/cell_properties.h"

namespace qorvex::inline QorvexBaseControls {

CellProperties::CellProperties() = default;
CellProperties::~CellProperties() = default;

TQorEditColorSet* CellProperties::ColorSet() {
  if (!color_set_) {
    color_set_ = std::make_unique<TQorEditColorSet>();
    color_set_->setColors(settings_.colors);
    QObject::connect(color_set_.get(), &TQorEditColorSet::Changed,
                     [this] { SetColors(color_set_->Colors()); });
  }
  return color_set_.get();
}

void CellProperties::SetColors(const EditColors& colors) {
  if (color_set_ && color_set_->Colors() != colors) {
    // Its signal calls this again, before it reaches the program.
    color_set_->setColors(colors);
    return;
  }
  if (colors == settings_.colors) return;
  settings_.colors = colors;
  DoColorSetChange();
}

void CellProperties::setSettings(const CellSettings& settings) {
  SetColors(settings.colors);
  CellSettings rest = settings;
  rest.colors = settings_.colors;
  rest.number.decimal_places = std::clamp(rest.number.decimal_places, 0, 255);
  rest.number.significant_digits = std::clamp(rest.number.significant_digits, 1, 255);
  Assign(settings_, rest);
}

}  // namespace qorvex::inline QorvexBaseControls
