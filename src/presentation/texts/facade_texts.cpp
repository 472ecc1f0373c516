#include "presentation/texts/facade_texts.h"

#include <cmath>

#include "foundation/decimal.h"
#include "foundation/message_rows.h"
#include "presentation/texts/box_number.h"

namespace velmar::presentation {
double FacadeArea(const elements::Setup& setup) { return std::abs(NumberOf(setup.base.area_text)); }

double ComponentArea(const elements::FacadeComponent& component) {
  return std::abs(NumberOf(component.area_text));
}

double OpaqueArea(const elements::Setup& setup) {
  double area = FacadeArea(setup);
  for (int i = 0; i < setup.facade.Count(); ++i) {
    area -= ComponentArea(setup.facade.components[static_cast<std::size_t>(i)]);
  }
  return area;
}

std::string ShareText(const elements::Setup& setup, double area_m2) {
  const double whole = FacadeArea(setup);
  return whole > 0.0 ? FormatFixed(area_m2 / whole * 100.0, 1) + "%" : std::string();
}

std::string TightnessText(int tightness_class, const Words& words) {
  if (tightness_class == 0) return words(kClassZeroRow);
  return words(kAirTightnessClassRow) + " " + std::to_string(tightness_class);
}

}  // namespace velmar::presentation
