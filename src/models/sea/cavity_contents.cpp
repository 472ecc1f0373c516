#include <algorithm>

#include "models/sea/cavity.h"

namespace velmar::models {

SeaCavityContents ContentsOf(SeaCavityType type) {
  switch (type) {
    case SeaCavityType::kEmpty:
      return {.fills = 0, .masses = 0};
    case SeaCavityType::kFill:
      return {.fills = 1, .masses = 0};
    case SeaCavityType::kFillMass:
      return {.fills = 1, .masses = 1};
    case SeaCavityType::kMassFillMass:
      return {.fills = 1, .masses = 2};
    case SeaCavityType::kFillMassFill:
      return {.fills = 2, .masses = 1};
    case SeaCavityType::kFillMassFillMass:
      return {.fills = 2, .masses = 2};
    case SeaCavityType::kFillMassFillMassFill:
      return {.fills = 3, .masses = 2};
  }
  return {};
}

SeaCavity ShownCavity(const SeaCavity& cavity) {
  SeaCavity shown = cavity;
  const SeaCavityContents contents = ContentsOf(cavity.type);
  for (std::size_t i = contents.fills; i < shown.fills.size(); ++i) shown.fills[i].reset();
  for (std::size_t i = contents.masses; i < shown.masses.size(); ++i) shown.masses[i].reset();
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
