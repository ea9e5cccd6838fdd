#include "qorvex/base_controls/cell_properties.h"

namespace qorvex::inline QorvexBaseControls {

CellProperties::CellProperties() {
  QObject::connect(&color_set_, &TQorEditColorSet::Changed, [this] { DoColorSetChange(); });
}

CellProperties::~CellProperties() = default;

CellSettings CellProperties::Settings() const {
  CellSettings settings = settings_;
  settings.colors = color_set_.Colors();
  return settings;
}

void CellProperties::setSettings(const CellSettings& settings) {
  color_set_.setColors(settings.colors);
  CellSettings rest = settings;
  rest.colors = {};
  rest.number.decimal_places = std::clamp(rest.number.decimal_places, 0, 255);
  Assign(settings_, rest);
}

}  // namespace qorvex::inline QorvexBaseControls
