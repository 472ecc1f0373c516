#include <algorithm>

#include "models/sea/cavity.h"

namespace velmar::models {

SeaCavity ShownCavity(const SeaCavity& cavity) {
  SeaCavity shown = cavity;
  const auto fills = static_cast<std::size_t>(acoustics::FibreCount(cavity.type));
  const auto masses = static_cast<std::size_t>(acoustics::MassCount(cavity.type));
  for (std::size_t i = fills; i < shown.fills.size(); ++i) shown.fills[i].reset();
  for (std::size_t i = masses; i < shown.masses.size(); ++i) shown.masses[i].reset();
  return shown;
}

double CavityContentsThickness(const SeaCavity& cavity) {
  const SeaCavity shown = ShownCavity(cavity);
  double sum_mm = 0.0;
  for (const auto& mass : shown.masses) {
    if (!mass) continue;
    sum_mm += mass->thickness_mm;
    if (mass->damping) sum_mm += mass->damping->thickness_mm;
  }
  for (const auto& fill : shown.fills) {
    if (fill) sum_mm += fill->thickness_mm;
  }
  return sum_mm;
}

std::vector<std::string> FillsWithoutAbsorption(const SeaCavity& cavity) {
  std::vector<std::string> names;
  for (const auto& fill : ShownCavity(cavity).fills) {
    if (!fill) continue;
    const auto& bands = fill->absorption;
    if (std::find(bands.begin(), bands.end(), kNoAbsorption) != bands.end()) names.push_back(fill->name);
  }
  return names;
}

}  // namespace velmar::models
