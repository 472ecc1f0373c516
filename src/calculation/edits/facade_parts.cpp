#include "calculation/edits/facade_parts.h"

#include <cstddef>
#include <stdexcept>

#include "foundation/decimal.h"

namespace velmar::calculation {
namespace {

elements::BandTexts BoxTexts(const BandValues& values) {
  elements::BandTexts texts;
  for (std::size_t i = 0; i < texts.size(); ++i) {
    if (values[i] != kNotMeasuredDb) texts[i] = BoxText(values[i]);
  }
  return texts;
}

/// What a base element and a component have in common.
template <typename Element>
void TakeValues(Element& element, const FacadePart& part) {
  element.name = part.name;
  element.description = part.description;
  element.rating_text = BoxText(part.rating_db);
  element.c_text = BoxText(part.c_db);
  element.ctr_text = BoxText(part.ctr_db);
  element.band_texts = BoxTexts(part.bands_db);
  element.mass_kg_m2 = static_cast<float>(part.mass_kg_m2.value_or(0.0));
}

}  // namespace

std::string BoxText(const std::optional<double>& value) {
  return value ? FormatShortest(*value) : std::string();
}

void TakeAsOpaquePart(elements::Setup& setup, const FacadePart& part) { TakeValues(setup.base, part); }

void TakeAsLiningBase(elements::Setup& setup, const FacadePart& part) {
  TakeValues(setup.base, part);
  const bool takes_area = part.origin == PartOrigin::kMeasurement || setup.base.area_text.empty();
  if (takes_area && part.area_m2) setup.base.area_text = BoxText(part.area_m2);
  setup.base.thickness_mm = part.thickness_mm.value_or(0.0);
}

void TakeAsComponent(elements::Setup& setup, int number, const FacadePart& part) {
  if (number < 1) throw std::out_of_range("component " + std::to_string(number));
  elements::FacadeComponent& component = setup.facade.components.at(static_cast<std::size_t>(number) - 1);
  TakeValues(component, part);
  if (part.quantity == PartQuantity::kElementDifference) {
    component.area_text = elements::kSmallElementArea;
  } else if (part.area_m2 || component.area_text == elements::kSmallElementArea) {
    component.area_text = BoxText(part.area_m2);
  }
}

}  // namespace velmar::calculation
