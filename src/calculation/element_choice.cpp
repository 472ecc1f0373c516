#include "calculation/element_choice.h"

#include <cmath>

#include "foundation/decimal.h"

namespace velmar::calculation {

void TakeBaseElement(elements::Setup& setup, const ChosenElement& chosen) {
  elements::BaseElement& base = setup.base;
  base.name = chosen.name;
  base.description = chosen.description;
  base.rating_text = chosen.rating_text;
  base.c_text = chosen.c_text;
  base.ctr_text = chosen.ctr_text;
  base.band_texts = chosen.band_texts;
  base.mass_kg_m2 = chosen.mass_kg_m2;
  base.thickness_mm = chosen.thickness_mm;
  if (base.area_text.empty()) base.area_text = chosen.area_text;
}

void TakeComponent(elements::Setup& setup, int index, const ChosenElement& chosen) {
  elements::FacadeComponent& component = setup.facade.components.at(static_cast<std::size_t>(index));
  const bool was_small = component.area_text == elements::kSmallElementArea;
  component.name = chosen.name;
  component.description = chosen.description;
  component.rating_text = chosen.rating_text;
  component.c_text = chosen.c_text;
  component.ctr_text = chosen.ctr_text;
  component.band_texts = chosen.band_texts;
  component.mass_kg_m2 = chosen.mass_kg_m2;
  if (chosen.small_element) {
    component.area_text = std::string(elements::kSmallElementArea);
  } else if (was_small || !chosen.area_text.empty()) {
    component.area_text = chosen.area_text;
  }
}

bool EnterElementNumber(std::string& box, const std::string& text) {
  const bool kept = text.empty() || text == "," || text == "." || ParseDecimal(text).has_value();
  if (kept) {
    box = text;
  } else {
    box.clear();
  }
  return kept;
}

bool EnterComponentArea(std::string& box, const std::string& text) {
  if (text != std::string_view(elements::kSmallElementArea)) return EnterElementNumber(box, text);
  box = text;
  return true;
}

std::optional<double> AreaShare(const elements::Setup& setup, int index) {
  const std::optional<double> whole_m2 = ParseDecimal(setup.base.area_text);
  if (!whole_m2 || *whole_m2 == 0.0) return std::nullopt;
  const std::string& text = setup.facade.components.at(static_cast<std::size_t>(index)).area_text;
  if (text == elements::kSmallElementArea) return 0.0;
  const std::optional<double> part_m2 = ParseDecimal(text);
  if (!part_m2) return std::nullopt;
  return std::abs(*part_m2) / std::abs(*whole_m2) * 100.0;
}

}  // namespace velmar::calculation
